// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Rows.h"

#include "bench/Measure.h"
#include "bench/Photo.h"
#include "image/FilterNumber.h"
#ifdef LUMORA_LIBRARY
#include "library/lumora.h"
#endif
#include "render/ImageBridge.h"
#include "render/RenderPipeline.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace lumora;

namespace {

float halfDiagonal(int width, int height)
{
    return std::hypot(float(width), float(height)) * 0.5f;
}

void addLooks(std::vector<Row>& rows)
{
    const GrowArray<int> looks = CharImage::getLooks();
    for (int i = 0; i < looks.numThings; i++) {
        const int look = looks.theArray[i];
        rows.push_back({.name = CharImage::getFilterName(look),
            .operation = [look](Subject& s) { s.image->applyFilter(look); },
            .twin = reference::twinOf(look),
            .isLook = true});
    }
}

void addToolkit(std::vector<Row>& rows)
{
    rows.push_back({.name = "levels stretch",
        .operation = [](Subject& s) { s.image->fillHistogram(0.01f, 0.01f, 0, 255, false, false); },
        .twin = [](Picture& p) { reference::fillHistogram(p, 0.01f, 0.01f, 0, 255, false, false); }});
    rows.push_back({.name = "blur, 7 taps",
        .operation = [](Subject& s) { s.image->makeBlurry(7, 1.5f); },
        .twin = [](Picture& p) { reference::makeBlurry(p, 7, 1.5f); }});
    rows.push_back({.name = "vignette",
        .operation =
            [](Subject& s) {
                const float outer = halfDiagonal(s.image->width, s.image->height);
                s.image->vignette(outer * 0.4f, outer, 1.2f, 0.6f, true, false);
            },
        .twin =
            [](Picture& p) {
                const float outer = halfDiagonal(p.width, p.height);
                reference::vignette(p, outer * 0.4f, outer, 1.2f, 0.6f, true, false);
            }});
    rows.push_back({.name = "strength",
        .operation = [](Subject& s) { s.image->mixIn(*s.made, 40); },
        .twin =
            [](Picture& p) {
                const Picture before = p;
                reference::mixIn(p, before, 40);
            },
        .prepare =
            [](Subject& s) {
                s.made = std::make_unique<CharImage>(*s.image);
                s.image->applyMonoFilter();
            }});
    // One spot of nine pixels to a hundred pixels.
    rows.push_back(
        {.name = "noise", .operation = [](Subject& s) { s.image->addNoise(int(s.image->pixelCount() / 100), 3, 40); }});
    rows.push_back({.name = "edge map", .operation = [](Subject& s) { s.image->fillEdgeDetectMap(s.map.data()); }});
    rows.push_back({.name = "map smoothing, 10 taps",
        .operation =
            [](Subject& s) {
                CharImage::smoothCharMap(s.map.data(), s.image->width, s.image->height, 10, 1.0f, 20.0f);
            },
        .prepare = [](Subject& s) { s.image->fillEdgeDetectMap(s.map.data()); }});
}

void addBorders(std::vector<Row>& rows)
{
    for (const int border :
        {Filter::thin, Filter::medium, Filter::thick, Filter::rounded, Filter::instant, Filter::cinema})
        rows.push_back(
            {.name = std::string("border ") + CharImage::getFilterName(border), .operation = [border](Subject& s) {
                 s.image->applyFilterBorder(border, std::max(s.image->width, s.image->height));
             }});
}

/// Here the allocation belongs to what is measured: a new block is what the bridge gives.
void addBridge(std::vector<Row>& rows)
{
    rows.push_back({.name = "to the engine, 1:1", .operation = [](Subject& s) {
                        s.made.reset(charImageFromNSImage(s.platform, -1, -1, -1, 0, 0, 0, 0, false, 3));
                    }});
    rows.push_back({.name = "to the engine, a fifth", .operation = [](Subject& s) {
                        const int width = s.platform.width() / 5, height = s.platform.height() / 5;
                        s.made.reset(charImageFromNSImage(s.platform, -1, width, height, 0, 0, 0, 0, false, 3));
                    }});
    rows.push_back({.name = "to the platform, a copy",
        .operation = [](Subject& s) { s.rendered = NSImageFromCharImage(s.image.get()); }});
    rows.push_back({.name = "to the platform, the block",
        .operation =
            [](Subject& s) { s.rendered = getImageRefFromRGBACharArray(s.block, s.photo.width, s.photo.height); },
        .prepare =
            [](Subject& s) {
                s.block = new unsigned char[s.photo.pixels.size()];
                std::memcpy(s.block, s.photo.pixels.data(), s.photo.pixels.size());
            }});
    rows.push_back({.name = "pipeline Helga, Square, Instant", .operation = [=](Subject& s) {
                        s.rendered = renderPhoto(s.platform,
                            {.filter = Filter::helga, .cropFilter = Filter::square, .borderFilter = Filter::instant});
                    }});
}

/// Looks by the library for other programs. Beside the row of the look alone it takes a copy of the picture, there and
/// back.
void addLibrary([[maybe_unused]] std::vector<Row>& rows)
{
#ifdef LUMORA_LIBRARY
    for (int look = 0; look < lumora_look_count(); look++) {
        const std::string name = lumora_look_name(look);
        if (name == "Mono" || name == "Helga")
            rows.push_back({.name = "library " + name, .operation = [look](Subject& s) {
                                lumora_apply(look, s.image->data, s.image->width, s.image->height,
                                    std::size_t(s.image->width) * 4, 0);
                            }});
    }
#endif
}

} // namespace

Subject::Subject(int width, int height)
    : photo(benchPhoto(width, height))
    , platform(photo.pixels.data(), width, height, qsizetype(width) * 4, QImage::Format_RGBX8888)
    , image(charImageFromNSImage(platform, -1, -1, -1, 0, 0, 0, 0, false, 3))
    , map(image->pixelCount())
    , copySeconds(1e9)
{
    for (int i = 0; i < 10; i++)
        copySeconds = std::min(copySeconds, processorSecondsOf([this] { restore(); }));
}

void Subject::restore()
{
    made.reset();
    rendered = {};
    std::memcpy(image->data, photo.pixels.data(), photo.pixels.size());
}

std::vector<Row> allRows()
{
    std::vector<Row> rows;
    addLooks(rows);
    addToolkit(rows);
    addBorders(rows);
    addBridge(rows);
    addLibrary(rows);
    return rows;
}
