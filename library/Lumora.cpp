// SPDX-License-Identifier: LGPL-3.0-or-later
#include "library/lumora.h"
#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "image/framing/BestFit.h"
#include "library/HostRandom.h"
#include "library/Pixels.h"
#include "library/Styles.h"

using namespace lumora;

namespace {

bool isIn(std::span<const int> styles, int number)
{
    return number >= 0 && number < int(styles.size());
}

/// The filter number behind one of the library's; that of no look, crop or border for LUMORA_NONE.
int filterOf(std::span<const int> styles, int number)
{
    return number == LUMORA_NONE ? int(Filter::original) : styles[std::size_t(number)];
}

const char* nameOf(std::span<const int> styles, int number)
{
    return isIn(styles, number) ? CharImage::getFilterName(filterOf(styles, number)) : nullptr;
}

void vary(unsigned random)
{
    CharImage::useRandom = random != 0;
    if (random != 0)
        CharImage::renewRandomNumbers();
}

/// A row of a caller's picture as an image, which does not free it.
class RowImage : public CharImage {
public:
    RowImage(unsigned char* row, int columns)
        : CharImage(row, columns, 1)
    {
    }
    ~RowImage() { data = nullptr; }
};

} // namespace

const char* lumora_version()
{
    return LUMORA_VERSION;
}

const char* lumora_error_text(int code)
{
    switch (code) {
    case LUMORA_OK:
        return "No error.";
    case LUMORA_NULL:
        return "A pointer is null.";
    case LUMORA_UNKNOWN:
        return "There is no look, crop or border of this number.";
    case LUMORA_BAD_SIZE:
        return "The picture is empty or too large.";
    case LUMORA_BAD_STRIDE:
        return "The rows of the picture overlap, or reach beyond the memory.";
    case LUMORA_BAD_STRENGTH:
        return "A strength is 0 to 100.";
    case LUMORA_NO_MEMORY:
        return "The memory does not suffice.";
    default:
        return "Not an error of Lumora.";
    }
}

int lumora_look_count()
{
    return int(looks().size());
}

const char* lumora_look_name(int look)
{
    return nameOf(looks(), look);
}

int lumora_crop_count()
{
    return int(crops().size());
}

const char* lumora_crop_name(int crop)
{
    return nameOf(crops(), crop);
}

int lumora_border_count()
{
    return int(borders().size());
}

const char* lumora_border_name(int border)
{
    return nameOf(borders(), border);
}

int lumora_look_crop(int look)
{
    return isIn(looks(), look) ? cropOf(filterOf(looks(), look)) : LUMORA_NONE;
}

int lumora_look_border(int look)
{
    return isIn(looks(), look) ? borderOf(filterOf(looks(), look)) : LUMORA_NONE;
}

int lumora_apply(int look, unsigned char* data, int width, int height, size_t stride, unsigned random)
{
    const Pixels pixels = {data, width, height, stride};
    if (const int fault = pixels.fault())
        return fault;
    if (!isIn(looks(), look))
        return LUMORA_UNKNOWN;
    return workOn(pixels, [&](CharImage& image) {
        const HostRandom drawn(random);
        CharImage::prints = false;
        vary(random);
        image.applyFilter(filterOf(looks(), look));
    });
}

int lumora_mix(int strength, unsigned char* data, int width, int height, size_t stride, const unsigned char* formerData,
    size_t formerStride)
{
    // Of the former picture nothing is changed: an image of the engine is never of constant pixels.
    const Pixels pixels = {data, width, height, stride};
    const Pixels former = {const_cast<unsigned char*>(formerData), width, height, formerStride};
    for (const int fault : {pixels.fault(), former.fault()})
        if (fault != LUMORA_OK)
            return fault;
    if (strength < 0 || strength > CharImage::wholeStrength)
        return LUMORA_BAD_STRENGTH;
    for (int y = 0; y < height; y++)
        RowImage(pixels.row(y), width).mixIn(RowImage(former.row(y), width), strength);
    return LUMORA_OK;
}

int lumora_crop(int crop, int width, int height, lumora_rect* part)
{
    if (!part)
        return LUMORA_NULL;
    if (crop != LUMORA_NONE && !isIn(crops(), crop))
        return LUMORA_UNKNOWN;
    if (!isSize(width, height))
        return LUMORA_BAD_SIZE;
    const float across = float(width), down = float(height);
    const float aspect = CharImage::getFilterAspect(filterOf(crops(), crop), across / down);
    if (!(aspect > 0.0f)) {
        *part = {0, 0, width, height};
        return LUMORA_OK;
    }
    float fittedWidth, fittedHeight;
    findBestFit(aspect, 1.0f, across, down, &fittedWidth, &fittedHeight);
    const int columns = int(fittedWidth), rows = int(fittedHeight);
    *part = {(width - columns) / 2, (height - rows) / 2, columns, rows};
    return LUMORA_OK;
}

int lumora_border(int border, int longerSide, lumora_margins* margins)
{
    if (!margins)
        return LUMORA_NULL;
    if (border != LUMORA_NONE && !isIn(borders(), border))
        return LUMORA_UNKNOWN;
    if (!isSide(longerSide))
        return LUMORA_BAD_SIZE;
    float left, right, top, bottom;
    CharImage::getBorderReqsForFilter(filterOf(borders(), border), &left, &right, &top, &bottom);
    const auto pixels = [&](float fraction) { return int(float(longerSide) * fraction); };
    *margins = {pixels(left), pixels(right), pixels(top), pixels(bottom)};
    return LUMORA_OK;
}

int lumora_draw_border(int border, int longerSide, unsigned char* data, int width, int height, size_t stride)
{
    const Pixels pixels = {data, width, height, stride};
    if (const int fault = pixels.fault())
        return fault;
    if (border != LUMORA_NONE && !isIn(borders(), border))
        return LUMORA_UNKNOWN;
    if (!isSide(longerSide))
        return LUMORA_BAD_SIZE;
    return workOn(pixels, [&](CharImage& image) { image.applyFilterBorder(filterOf(borders(), border), longerSide); });
}
