// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

/// The bytes that this process can still take without swapping or running into its own limit; the highest number where
/// the system does not tell.
qint64 freeMemory();

/// What people are told where a picture of that size finds no room.
QString memoryRefusal(const QSize& picture);
