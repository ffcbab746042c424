// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTemporaryDir>
#include <functional>
#include <set>
#include <string>
#include <sys/types.h>

/// A folder to save into, which every user may change.
class SaveFolder {
public:
    SaveFolder();

    QByteArray path(const QByteArray& name = {}) const;
    std::set<std::string> names() const;
    /// The hidden files of unfinished saves.
    int leftovers() const;

private:
    QTemporaryDir m_folder;
};

inline constexpr uid_t nobody = 65534;
inline constexpr gid_t sharedGroup = 12345; ///< one that the user without rights is in

/// True when it was written and no reason given.
bool saves(const QByteArray& path, const QByteArray& data);
mode_t permissionsOf(const QByteArray& path);

/// Runs `child` in a process of its own, as a user without rights where it has all; gives its result.
int resultInChild(const std::function<int()>& child);

/// What the file system answers to the program of this test; all as it is until set.
struct FileSystemFaults {
    bool noUnnamedFiles = false; ///< no O_TMPFILE
    bool noLinks = false; ///< no hard links
    bool noNewNames = false; ///< no renaming that tells whether the name was free
    bool noRights = false; ///< neither permissions nor owners nor attributes, as on a memory card
    int settingLists = 0; ///< the error of setting an access control list
    int synchronising = 0; ///< the error of fsync
    std::function<void()> atWrite = {}; ///< called before the first write of a file's data
    std::function<void()> atRename = {}; ///< called before a file is renamed
};
extern FileSystemFaults fileSystem;
