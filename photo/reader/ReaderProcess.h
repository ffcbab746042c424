// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoReader.h"
#include "photo/reader/Descriptor.h"

/// One process that reads one photo. It ends with this.
class ReaderProcess {
public:
    /// Starts it, where the program can be started.
    explicit ReaderProcess(const QByteArray& program);
    ~ReaderProcess();
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;

    bool isRunning() const { return m_process > 0; }
    int channel() const { return m_channel.number(); }
    /// Of the processor, so far.
    qint64 milliseconds() const;
    /// Ends it where it has not ended by itself, and tells how it did.
    PhotoReader::End end();
    void kill();

private:
    Descriptor m_channel;
    int m_process = -1;
};

/// The program that belongs to this one: in the build tree and where they are installed.
QByteArray readerProgram();

/// The milliseconds of the processor that reading a file of so many bytes may take.
qint64 readingTime(qint64 fileBytes);
