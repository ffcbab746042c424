// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/RenderPipeline.h"

#include "image/CharImage.h"
#include "photo/FreeMemory.h"
#include "photo/OnWhite.h"
#include "photo/PhotoDecoder.h"
#include "render/ImageBridge.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

using namespace lumora;

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

/// Where a render puts its picture, and the border round it.
struct Frame {
    float aspect; ///< of the picture, width / height
    int maxSide; ///< of the source
    int left, right, top, bottom; ///< margins in pixels

    int boxWidth() const { return maxSide - left - right; }
    int boxHeight() const { return maxSide - top - bottom; }
    bool hasMargins() const { return left > 0 || right > 0 || top > 0 || bottom > 0; }
};

Frame frameOf(const QImage& source, const RenderSettings& settings)
{
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
    const auto margin = [maxSide](float fraction) { return int(float(maxSide) * fraction); };
    return {cropAspect, maxSide, margin(left), margin(right), margin(top), margin(bottom)};
}

QSize sizeOf(const QImage& source, const Frame& frame, bool asThumbnail)
{
    QSize size = fittedSize(source.size(), frame.aspect, frame.boxWidth(), frame.boxHeight(), 3);
    if (!asThumbnail)
        size += QSize(frame.left + frame.right, frame.top + frame.bottom);
    return size;
}

/// By the loader's rule. One of the blocks that it counts is the photo, which is there already.
bool hasRoomFor(const QSize& size, int blocks)
{
    return qint64(size.width()) * size.height() * 4 <= freeMemory() / blocks;
}

constexpr int blocksOfRender = blocksPerPhoto - 1;

/// A picture of undefined pixels, whose block has room for the margins, too.
std::unique_ptr<CharImage> roomyImage(const QSize& size, const Frame& frame)
{
    auto block = newExchangeBlock(size.width() + frame.left + frame.right, size.height() + frame.top + frame.bottom);
    return std::make_unique<CharImage>(block.release(), size.width(), size.height());
}

std::unique_ptr<CharImage> fitted(const QImage& source, const Frame& frame)
{
    auto image = roomyImage(sizeOf(source, frame, true), frame);
    drawIntoBlock(source, image->data, image->width, image->height);
    return image;
}

std::unique_ptr<CharImage> copyOf(const CharImage& image, const Frame& frame)
{
    auto copy = roomyImage({image.width, image.height}, frame);
    std::memcpy(copy->data, image.data, image.pixelCount() * 4);
    return copy;
}

bool hasLooks(const RenderSettings& settings)
{
    return settings.filter != -1 || (settings.filterIDs && settings.filterIDs->numThings > 0);
}

/// Whether the looks are taken back in part.
bool isMixed(const RenderSettings& settings)
{
    return settings.strength < CharImage::wholeStrength && !settings.asThumbnail && hasLooks(settings);
}

/// Whether a render would be the source once more. Its copy would cost as much as a look.
bool leavesAll(const QImage& source, const RenderSettings& settings, const Frame& frame)
{
    return !settings.asThumbnail && !hasLooks(settings) && settings.borderFilter == Filter::original
        && sizeOf(source, frame, false) == source.size()
        && (source.format() == QImage::Format_RGB32 || source.format() == QImage::Format_RGBX8888);
}

void applyLooks(CharImage& image, const RenderSettings& settings, const RenderProgress& progress)
{
    if (settings.filter != -1)
        applyStep(image, settings.filter, progress);
    else if (settings.filterIDs)
        for (int i = 0; i < settings.filterIDs->numThings; i++)
            applyStep(image, settings.filterIDs->theArray[i], progress);
}

constexpr std::size_t stripBytes = 1 << 20; ///< about; of the photo before its looks

/// Mixes a fitted photo under its looks with the photo before them, which is fitted once more strip by strip: a second
/// picture may be as large as the photo.
void mixWithSource(CharImage& image, const QImage& source, int strength)
{
    const QImage photo = onWhiteInEitherOrder(source);
    const std::size_t row = std::size_t(image.width) * 4;
    const int height = int(std::clamp(stripBytes / row, std::size_t(1), std::size_t(image.height)));
    CharImage before(newExchangeBlock(image.width, height).release(), image.width, height);
    for (int y = 0; y < image.height; y += height) {
        before.height = std::min(height, image.height - y);
        drawRowsIntoBlock(photo, before.data, image.width, image.height, y, before.height);
        CharImage after(image.data + std::size_t(y) * row, image.width, before.height);
        after.mixIn(before, strength);
        after.data = nullptr; // it is the picture's
    }
}

/// Makes the picture larger by the margins, which are opaque white, within its block. A new one would be fresh memory,
/// which costs more than to move the rows.
void addMargins(CharImage& image, const Frame& frame)
{
    const std::size_t left = std::size_t(frame.left) * 4, right = std::size_t(frame.right) * 4;
    const std::size_t row = std::size_t(image.width) * 4, framedRow = left + row + right;
    const auto whiten = [](unsigned char* pixels, std::size_t size) { std::memset(pixels, 255, size); };
    whiten(image.data + std::size_t(frame.top + image.height) * framedRow, std::size_t(frame.bottom) * framedRow);
    for (int y = image.height - 1; y >= 0; y--) {
        unsigned char* const framed = image.data + std::size_t(frame.top + y) * framedRow;
        std::memmove(framed + left, image.data + std::size_t(y) * row, row);
        whiten(framed, left);
        whiten(framed + left + row, right);
    }
    whiten(image.data, std::size_t(frame.top) * framedRow);
    image.width += frame.left + frame.right;
    image.height += frame.top + frame.bottom;
}

void addFrame(CharImage& image, const Frame& frame, int borderFilter)
{
    if (frame.hasMargins())
        addMargins(image, frame);
    image.applyFilterBorder(borderFilter, frame.maxSide);
}

/// Takes the block of the image along.
QImage pictureOf(CharImage& image, const QColorSpace& space)
{
    QImage picture = opaqueImage(std::exchange(image.data, nullptr), image.width, image.height);
    picture.setColorSpace(space);
    return picture;
}

QImage render(const QImage& source, const RenderSettings& settings, const Frame& frame, const RenderProgress& progress)
{
    report(progress, QT_TRANSLATE_NOOP("RenderStep", "Fit"));
    if (leavesAll(source, settings, frame)) {
        report(progress, QT_TRANSLATE_NOOP("RenderStep", "Border"));
        return source;
    }
    const std::unique_ptr<CharImage> image = fitted(source, frame);
    applyLooks(*image, settings, progress);
    if (isMixed(settings))
        mixWithSource(*image, source, settings.strength);
    if (!settings.asThumbnail) {
        report(progress, QT_TRANSLATE_NOOP("RenderStep", "Border"));
        addFrame(*image, frame, settings.borderFilter);
    }
    return pictureOf(*image, source.colorSpace());
}

} // namespace

QString shownStep(const char* step)
{
    return QCoreApplication::translate("RenderStep", step);
}

QImage renderPhoto(
    const QImage& source, const RenderSettings& settings, const RenderProgress& progress, QString* reason)
{
    if (source.isNull())
        return {};
    const Frame frame = frameOf(source, settings);
    const QSize size = sizeOf(source, frame, settings.asThumbnail);
    try {
        if (hasRoomFor(size, blocksOfRender))
            return render(source, settings, frame, progress);
    } catch (const std::bad_alloc&) {
        // Something else took the room in the meantime.
    }
    if (reason)
        *reason = memoryRefusal(size);
    return {};
}

QImage mixedPart(const QImage& before, const QImage& after, int strength, const QRect& part)
{
    const auto partOf = [&part](const QImage& picture) {
        auto block = newExchangeBlock(part.width(), part.height());
        drawIntoBlock(picture.copy(part), block.get(), part.width(), part.height());
        return std::make_unique<CharImage>(block.release(), part.width(), part.height());
    };
    if (part.isEmpty())
        return {};
    const auto mix = partOf(after);
    mix->mixIn(*partOf(before), strength);
    return opaqueImage(std::exchange(mix->data, nullptr), part.width(), part.height());
}

struct RenderedLooks::Parts {
    Frame frame;
    int borderFilter;
    QColorSpace space;
    std::unique_ptr<CharImage> before, after; ///< the looks, without the border
};

RenderedLooks::RenderedLooks(std::unique_ptr<Parts> parts)
    : m(std::move(parts))
{
}

RenderedLooks::~RenderedLooks() = default;

std::unique_ptr<RenderedLooks> RenderedLooks::of(
    const QImage& source, const RenderSettings& settings, const RenderProgress& progress)
{
    if (source.isNull())
        return nullptr;
    const Frame frame = frameOf(source, settings);
    try {
        if (!hasRoomFor(sizeOf(source, frame, false), blocksOfRender + 2)) // both parts, and what is made of them
            return nullptr;
        std::unique_ptr<Parts> parts(
            new Parts{frame, settings.borderFilter, source.colorSpace(), fitted(source, frame), {}});
        parts->after = copyOf(*parts->before, frame);
        applyLooks(*parts->after, settings, progress);
        return std::unique_ptr<RenderedLooks>(new RenderedLooks(std::move(parts)));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

QImage RenderedLooks::withStrength(int strength) const
{
    try {
        const auto image = copyOf(*m->after, m->frame);
        image->mixIn(*m->before, strength);
        addFrame(*image, m->frame, m->borderFilter);
        return pictureOf(*image, m->space);
    } catch (const std::bad_alloc&) {
        return {};
    }
}
