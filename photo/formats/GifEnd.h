// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QIODevice;

/// Whether a GIF file ends before its first picture does. The device is left anywhere.
bool gifBreaksOff(QIODevice& file);
