// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QIODevice;

/// Formats of phones and cameras, as their files tell them.
enum class Signature { Heif, Jxl, Raw, Other };

/// The format of the file; the device is left anywhere. Many raw files are TIFFs, of which those count whose pictures
/// are a sensor's.
Signature signatureOf(QIODevice& file);
