// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QTemporaryDir>
#include <set>
#include <string>

/// A run of lumora-render, as a shell starts it: arguments and names are bytes. It never outlives this.
class RenderRun {
public:
    enum class Input { Nothing, Open };

    /// In that folder. An open input waits until input() or wait().
    RenderRun(const QByteArray& folder, const QList<QByteArray>& arguments, Input input = Input::Nothing);
    ~RenderRun();
    RenderRun(const RenderRun&) = delete;
    RenderRun& operator=(const RenderRun&) = delete;

    int process() const { return m_process; }
    void write(const QByteArray& input); ///< all there will be
    /// Waits for the next line of the standard output, which comes without its end; empty where there is none.
    QByteArray readLine();
    void send(int signal);

    /// Waits for the end.
    struct Ended {
        int status; ///< of the program; -N where signal N ended it
        QByteArray out, err; ///< what was printed; of `out` what has not been read
    };
    Ended wait();

private:
    int m_process, m_input, m_output;
    QByteArray m_read;
    QTemporaryDir m_errors;
};

/// The same, from its start to its end.
RenderRun::Ended runRender(const QByteArray& folder, const QList<QByteArray>& arguments, const QByteArray& input = {});

/// The lines of JSON that were printed.
QList<QJsonObject> jsonLines(const QByteArray& out);

/// A folder of bytes' names.
class ByteFolder {
public:
    QByteArray path(const QByteArray& name = {}) const;
    std::set<std::string> names(const QByteArray& below = {}) const;

private:
    QTemporaryDir m_folder;
};
