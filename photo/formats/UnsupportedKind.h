// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QIODevice;

/// Whether a file that the platform's decoder did not read is of a kind that it cannot read, rather than damaged: a BMP
/// or a TIFF that is laid out in a rare way. The device is left anywhere.
bool isUnsupportedKind(QIODevice& file);
