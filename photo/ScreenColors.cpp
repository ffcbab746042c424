// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/ScreenColors.h"

#include "photo/IccProfile.h"
#include "photo/ScreenPrimaries.h"
#include "photo/ScreenTable.h"

#include <cstdlib>
#include <utility>

std::shared_ptr<const ScreenColors> ScreenColors::of(const QByteArray& icc)
{
    if (icc.size() > largestProfile)
        return nullptr;
    const IccProfile screen = openProfile(icc, cmsSigRgbData), sRgb(cmsCreate_sRGBProfile());
    if (!screen || cmsGetDeviceClass(screen.get()) != cmsSigDisplayClass)
        return nullptr;
    auto convert = throughPrimaries(sRgb, screen);
    if (!convert)
        convert = throughTable(sRgb, screen);
    if (!convert)
        return nullptr;
    const std::shared_ptr<const ScreenColors> colors(new ScreenColors(std::move(convert)));
    return colors->changeAnything() ? colors : nullptr;
}

bool ScreenColors::changeAnything() const
{
    constexpr int step = 15; // of levels
    for (int red = 0; red < 256; red += step)
        for (int green = 0; green < 256; green += step)
            for (int blue = 0; blue < 256; blue += step) {
                QRgb pixel = qRgb(red, green, blue);
                m_convert(&pixel, 1);
                if (std::abs(qRed(pixel) - red) > 1 || std::abs(qGreen(pixel) - green) > 1
                    || std::abs(qBlue(pixel) - blue) > 1)
                    return true;
            }
    return false;
}

QImage ScreenColors::shown(QImage picture) const
{
    picture.convertTo(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); y++)
        m_convert(reinterpret_cast<QRgb*>(picture.scanLine(y)), picture.width());
    return picture;
}

QImage onScreen(QImage picture, const std::shared_ptr<const ScreenColors>& colors)
{
    return colors ? colors->shown(std::move(picture)) : picture;
}
