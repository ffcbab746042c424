// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// A picture, laid on white where it is transparent, scaled to `size` by the resampling of the bridge: where it
/// shrinks, areas are averaged. Format_RGBX8888; one of that format and size stays as it is. A null picture when there
/// is no memory for it. In the sizes of a preview this takes less than half the time of QImage::scaled, and no thread.
QImage scaledTo(const QImage& image, const QSize& size);
