#include "render/ColorProfile.h"

#include <QColorSpace>
#include <cmath>
#include <lcms2.h>
#include <memory>

namespace {

/// Files that name the gamma 1 / 2.2 and no profile mean sRGB, whose curve it stands for; a second conversion would
/// only lose tones.
bool isPlainDisplayGamma(const QColorSpace& space)
{
    return space.transferFunction() == QColorSpace::TransferFunction::Gamma && std::abs(space.gamma() - 2.2f) < 0.05f
        && space.primaries() == QColorSpace::Primaries::SRgb;
}

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

struct DeleteTransform {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};

/// Converts by the tables of an RGB profile, which QColorSpace does not read.
void convertByTables(QImage& image, const QByteArray& icc)
{
    const Profile source(cmsOpenProfileFromMem(icc.constData(), cmsUInt32Number(icc.size())));
    if (!source || cmsGetColorSpace(source.get()) != cmsSigRgbData)
        return;
    const Profile sRgb(cmsCreate_sRGBProfile());
    const std::unique_ptr<void, DeleteTransform> transform(
        cmsCreateTransform(source.get(), TYPE_RGBA_8, sRgb.get(), TYPE_RGBA_8, INTENT_PERCEPTUAL, cmsFLAGS_COPY_ALPHA));
    if (!transform)
        return;
    image.convertTo(QImage::Format_RGBA8888);
    for (int y = 0; y < image.height(); y++) {
        unsigned char* row = image.scanLine(y);
        cmsDoTransform(transform.get(), row, row, cmsUInt32Number(image.width()));
    }
}

} // namespace

QImage inSRgb(QImage image)
{
    const QColorSpace sRgb(QColorSpace::SRgb), embedded = image.colorSpace();
    if (embedded.isValid()) {
        if (embedded != sRgb && !isPlainDisplayGamma(embedded))
            image.convertToColorSpace(sRgb);
    } else if (const QByteArray icc = embedded.iccProfile(); !icc.isEmpty()) {
        convertByTables(image, icc);
    }
    image.setColorSpace(sRgb);
    return image;
}
