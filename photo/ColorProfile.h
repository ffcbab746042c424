// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColorSpace>
#include <QImage>

/// Whether the colours of such a space are taken for sRGB as they are.
bool isSRgb(const QColorSpace& space);

/// The picture in sRGB, by the colour profile that it carries. A picture without a profile is taken as sRGB, and so is
/// one whose profile is broken or of another colour model.
QImage inSRgb(QImage image);
