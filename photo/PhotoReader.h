// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/LoadedPhoto.h"

#include <memory>

/// Reads photos one after another, each in a process of its own, so that no file can harm, hold or end the program that
/// opens it: the one way from a path to a photo. The process gets the open file and nothing else, decodes it with
/// decodePhoto, and may use no other file and no network; its memory and its time are limited. What goes wrong in it is
/// a refused file. One process is always there and waits, so that no photo waits for it.
///
/// Where the system has no means for that (see LUMORA_READER_PROCESS), the photo is read in this process by begin().
class PhotoReader {
public:
    /// How the last reading came to its end.
    enum class End {
        Answered, ///< with a photo, or with what the decoder found
        BrokeDown,
        TookTooLong,
        TookTooMuchMemory,
        TriedFiles,
        TriedNetwork,
        Cancelled,
        NotStarted, ///< there is no process
    };

    enum class Reads {
        Many,
        One, ///< no process waits, neither now nor for a second photo
    };
    explicit PhotoReader(Reads reads = Reads::Many);
    /// Cancels what is being read.
    ~PhotoReader();
    PhotoReader(const PhotoReader&) = delete;
    PhotoReader& operator=(const PhotoReader&) = delete;

    /// Begins with the file of that path, any bytes, and cancels what was being read. The file's content decides the
    /// format, not its name; of several frames the first is taken. Only a regular file is read, and nothing is waited
    /// for.
    void begin(const QByteArray& path);
    /// What was begun last and not taken yet; empty after that.
    const QByteArray& path() const;
    /// Whether the photo, or the reason, is there. Waits so many milliseconds for it.
    bool isDone(int milliseconds = 0);
    /// Can be read from when isDone() would be true without a wait; -1 when it is.
    int descriptor() const;
    void cancel();
    /// The photo or the reason, once; waits for it.
    LoadedPhoto take();
    End end() const;

    /// The program that reads, in place of the one that belongs to this program; for tests.
    static void setProgram(const QByteArray& path);

private:
    class Private;
    std::unique_ptr<Private> m;
};
