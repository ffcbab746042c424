// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/ColorProfile.h"

#include "photo/IccProfile.h"

#include <cmath>

namespace {

/// Files that name the gamma 1 / 2.2 and no profile mean sRGB, whose curve it stands for; a second conversion would
/// only lose tones.
bool isPlainDisplayGamma(const QColorSpace& space)
{
    return space.transferFunction() == QColorSpace::TransferFunction::Gamma && std::abs(space.gamma() - 2.2f) < 0.05f
        && space.primaries() == QColorSpace::Primaries::SRgb;
}

} // namespace

bool isSRgb(const QColorSpace& space)
{
    return space == QColorSpace(QColorSpace::SRgb) || (space.isValid() && isPlainDisplayGamma(space));
}

QImage inSRgb(QImage image)
{
    if (image.pixelFormat().colorModel() == QPixelFormat::CMYK) // as newer platforms decode inks
        image.convertTo(QImage::Format_RGBX8888);
    const QColorSpace sRgb(QColorSpace::SRgb), embedded = image.colorSpace();
    if (embedded.isValid()) {
        if (!isSRgb(embedded))
            image.convertToColorSpace(sRgb);
    } else if (const QByteArray icc = embedded.iccProfile(); !icc.isEmpty()) {
        // An RGB profile of tables, which QColorSpace does not read.
        convertToSRgb(image, openProfile(icc, cmsSigRgbData), TYPE_RGBA_8, INTENT_PERCEPTUAL, cmsFLAGS_COPY_ALPHA);
    }
    image.setColorSpace(sRgb);
    return image;
}
