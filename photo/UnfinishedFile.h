// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <string>
#include <sys/types.h>

/// A file that gets its name only when it is complete, and is gone otherwise. Until then it has no name at all where
/// the file system can do that (`Unnamed`), or a hidden one (`Hidden`), which a killed process leaves behind.
class UnfinishedFile {
public:
    enum Kind { Unnamed, Hidden };

    /// Made in `folder`, which ends with a slash or is empty, with these permissions less the umask's. Not open, with
    /// errno set, where that fails.
    UnfinishedFile(const std::string& folder, Kind kind, mode_t permissions);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    /// False with errno set, as the two below.
    bool write(const QByteArray& data);
    /// Waits until it is on the disk.
    bool synchronise();
    /// Puts it where `target` is, a name in its folder, in one step; what stood there is replaced.
    bool place(const std::string& target);
    /// The same where nothing stands; errno is EEXIST otherwise.
    bool placeNew(const std::string& target);

private:
    bool linkTo(const std::string& name) const;
    /// Calls `make` with hidden names until one of them is free.
    template <class Make> bool withHiddenName(Make make);

    std::string m_folder;
    std::string m_hiddenName; ///< where it has one
    int m_descriptor = -1;
};

/// Removes the hidden files in `folder` that killed processes of this user have left behind.
void removeLeftovers(const std::string& folder);
