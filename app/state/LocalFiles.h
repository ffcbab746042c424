// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>

class QMimeData;

/// The paths of the files that a drag or the clipboard carries, byte for byte as the file system has them.
QByteArrayList localFiles(const QMimeData& content);
