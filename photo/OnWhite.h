// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// The picture as Format_RGBX8888, what is transparent laid on white. A picture of that format comes back as it is.
QImage onWhite(QImage image);

/// The same, but a picture of Format_RGB32 comes back as it is, too: most decoders give that one, and to walk over all
/// of a photo takes a while. Both formats have four bytes a pixel.
QImage onWhiteInEitherOrder(QImage image);
