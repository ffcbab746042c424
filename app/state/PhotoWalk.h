// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>

/// The way from photo to photo: through the files that the program was started with, in their order, while one of them
/// is open; else through the folder of the open photo, in the natural order of names ("2" before "10"). Paths are of
/// any bytes.
class PhotoWalk {
public:
    enum Direction { Back = -1, On = 1 };

    /// One file alone is no way: its folder is.
    void setFiles(const QByteArrayList& files);

    /// The regular files that follow that path, the nearest first; hidden ones are left out. Nothing is read of them:
    /// one may be no photo.
    QByteArrayList from(const QByteArray& path, Direction direction) const;

private:
    QByteArrayList m_files; ///< each once
};
