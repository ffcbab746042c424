// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>

// The photos that were opened last, in whatever window, the newest first: at most eight absolute paths of any bytes.
// They are remembered between runs.

QByteArrayList recentPhotos();
/// Puts a photo at the beginning; a relative path is one from the folder in which the program runs.
void addRecentPhoto(const QByteArray& path);
void clearRecentPhotos();
