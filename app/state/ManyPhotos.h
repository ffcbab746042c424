// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"
#include "image/CharImage.h"
#include "photo/PhotoSaver.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

/// What is made of many photos: the window's choices, named as people see them there.
struct ManyChoices {
    lumora::GrowArray<int> looks; ///< filter numbers in the order of application
    int strength = lumora::CharImage::wholeStrength;
    QString crop, border, size; ///< the chosen items
    std::optional<unsigned> variation; ///< the seed of the numbers that looks vary with; none: their fixed settings
    Kept kept = Kept::Everything;
    JpegQuality quality = JpegQuality::Standard;
};

/// The arguments with which lumora-render does that: it takes the photos' paths from its standard input, each with a
/// NUL byte at its end, writes into `folder` and works on `jobs` photos at once.
QStringList renderArguments(const ManyChoices& choices, const QString& folder, int jobs);

/// How a run of lumora-render goes, by the lines that it prints.
class ManyPhotos {
public:
    explicit ManyPhotos(int count = 0)
        : m_count(count)
    {
    }

    /// What was printed since, in whatever pieces.
    void add(const QByteArray& printed);

    int count() const { return m_count; }
    int done() const { return m_saved + m_there + m_failed; }
    int saved() const { return m_saved; }
    int there() const { return m_there; } ///< before the run
    int failed() const { return m_failed; }
    /// The path of the output that was written last, as text; empty before the first.
    const QString& newest() const { return m_newest; }

    struct Remark {
        QString file, words;
    };
    /// On the photos that failed, and on those that were damaged.
    const QList<Remark>& remarks() const { return m_remarks; }

    /// The milliseconds that the rest will take, after so many since the beginning; -1 where nobody can know.
    qint64 timeLeft(qint64 passed) const;

private:
    void addLine(const QByteArray& line);

    int m_count, m_saved = 0, m_there = 0, m_failed = 0;
    QByteArray m_unfinished; ///< the part of a line that has come
    QString m_newest;
    QList<Remark> m_remarks;
};
