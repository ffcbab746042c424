// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QIODevice;

/// Whether a BMP file ends before its picture does. The device is left anywhere.
bool bmpBreaksOff(QIODevice& file);
