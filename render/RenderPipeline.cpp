#include "render/RenderPipeline.h"

#include "image/CharImage.h"
#include "render/ImageBridge.h"

#include <QColorSpace>
#include <memory>
#include <utility>

namespace {

void report(const RenderProgress& progress, const char* step)
{
    if (progress)
        progress(step);
}

void applyStep(CharImage& image, int filter, const RenderProgress& progress)
{
    report(progress, CharImage::getFilterName(filter));
    image.applyFilter(filter);
}

} // namespace

QImage renderPhoto(const QImage& source, const RenderSettings& settings, const RenderProgress& progress)
{
    if (source.isNull())
        return {};
    const float width = float(source.width()), height = float(source.height());
    const float aspect = width / height;
    const int maxSide = int(width - height >= 0.0f ? width : height);

    float cropAspect = CharImage::getFilterAspect(settings.cropFilter, aspect);
    if (settings.asThumbnail)
        cropAspect = 1.0f;
    else if (!(cropAspect > 0.0f))
        cropAspect = aspect;
    float left, right, top, bottom;
    CharImage::getBorderReqsForFilter(settings.borderFilter, &left, &right, &top, &bottom);
    const int l = int(float(maxSide) * left), r = int(float(maxSide) * right);
    const int t = int(float(maxSide) * top), b = int(float(maxSide) * bottom);

    report(progress, "Fit");
    const std::unique_ptr<CharImage> image(
        charImageFromNSImage(source, cropAspect, maxSide - l - r, maxSide - t - b, 0, 0, 0, 0, false, 3));

    if (settings.filter != -1)
        applyStep(*image, settings.filter, progress);
    else if (settings.filterIDs)
        for (int i = 0; i < settings.filterIDs->numThings; i++)
            applyStep(*image, settings.filterIDs->theArray[i], progress);

    if (!settings.asThumbnail) {
        report(progress, "Border");
        if (l > 0 || r > 0 || t > 0 || b > 0)
            image->addBorder(l, r, t, b, 255.0f, 255.0f, 255.0f);
        image->applyFilterBorder(settings.borderFilter, maxSide);
    }
    QImage picture = getImageRefFromRGBACharArray(std::exchange(image->data, nullptr), image->width, image->height);
    picture.setColorSpace(source.colorSpace());
    return picture;
}
