// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

class QFile;

/// Opens the file of that path (any bytes) for reading, when it is a regular file that is not empty; gives the reason
/// for people otherwise. Never waits for a pipe or a device.
QString openPhotoFile(const QByteArray& path, QFile& file);
