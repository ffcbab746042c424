// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QStringList>

/// The endings of names that photos have whose formats open, without their dots, in small letters. The content decides
/// what opens, not the name.
QStringList photoEndings();

/// The paths of the filesIn(folder) whose names have such an ending, in their natural order.
QByteArrayList photosIn(const QByteArray& folder);
