// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>

class QMimeData;
class QUrl;

/// The path that a file's address stands for, byte for byte as the file system has it; empty for any other address.
QByteArray localFile(const QUrl& address);

/// The paths of the files that a drag or the clipboard carries, byte for byte as the file system has them.
QByteArrayList localFiles(const QMimeData& content);
