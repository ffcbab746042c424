// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// The endings of names that photos have whose formats open, without their dots, in small letters. The content decides
/// what opens, not the name.
QStringList photoEndings();

/// The paths of the files in a folder whose names have such an ending, sorted; those of folders in it are left out. The
/// folder and the paths are any bytes.
std::vector<QByteArray> photosIn(const QByteArray& folder);
