// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/IccProfile.h"

#include <utility>

IccProfile openProfile(const QByteArray& icc, cmsColorSpaceSignature model)
{
    IccProfile profile(cmsOpenProfileFromMem(icc.constData(), cmsUInt32Number(icc.size())));
    return profile && cmsGetColorSpace(profile.get()) == model ? std::move(profile) : nullptr;
}

bool convertToSRgb(
    QImage& image, const IccProfile& source, cmsUInt32Number pixels, cmsUInt32Number intent, cmsUInt32Number flags)
{
    if (!source)
        return false;
    const IccProfile sRgb(cmsCreate_sRGBProfile());
    const std::unique_ptr<void, DeleteTransform> transform(
        cmsCreateTransform(source.get(), pixels, sRgb.get(), TYPE_RGBA_8, intent, flags));
    if (!transform)
        return false;
    image.convertTo(QImage::Format_RGBA8888);
    for (int y = 0; y < image.height(); y++) {
        unsigned char* row = image.scanLine(y);
        cmsDoTransform(transform.get(), row, row, cmsUInt32Number(image.width()));
    }
    return true;
}

bool convertInksToSRgb(QImage& image, const QByteArray& profile)
{
    if (!convertToSRgb(image, openProfile(profile, cmsSigCmykData), TYPE_CMYK_8_REV, INTENT_RELATIVE_COLORIMETRIC, 0))
        return false;
    for (int y = 0; y < image.height(); y++) // where the black was
        for (uchar *p = image.scanLine(y), *end = p + qsizetype(image.width()) * 4; p != end; p += 4)
            p[3] = 255;
    return true;
}
