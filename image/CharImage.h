// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Api.h"
#include "core/GrowArray.h"

#include <cstddef>

namespace lumora {

/// A picture of 8-bit channels, and every operation of the engine on it.
///
/// Pixels stand row by row, the top row first, without padding: the pixel at column x, row y starts at byte
/// `(y * width + x) * bytesPerPixel`. Its bytes 0, 1 and 2 are red, green and blue, each 0 .. 255; byte 3 is carried
/// along and never interpreted. Every operation works in place. None checks its arguments or reports a failure; a
/// failed allocation throws `std::bad_alloc`. The static members are shared by all images and unguarded: one thread
/// only.
class LUMORA_API CharImage {
public:
    int width = 0; ///< pixels per row
    int height = 0; ///< rows
    int bytesPerPixel = 0; ///< 4 for every image with pixels
    unsigned char* data = nullptr; ///< the pixel block, array-new, owned

    CharImage() = default;
    /// Adopts `data`, an array-new block of at least width x height x 4 bytes. A side below 1 becomes 1.
    CharImage(unsigned char* data, int width, int height);
    CharImage(const CharImage& other);
    CharImage& operator=(const CharImage&) = delete;
    ~CharImage();

    /// width x height, safe for pictures of more than 2^31 bytes; 0 for an image without pixels.
    std::size_t pixelCount() const;
    /// Writes width x height x 4 bytes of red, green, blue and the constant 1 to `out`.
    void copyToRGBACharArray(unsigned char* out) const;

    // ---- Random variation ----
    /// 20 records of 5 values in 0 .. 0.999999 from which the looks draw their variation.
    static float random[100];
    /// Not 0: looks vary with `random`. 0: they use their fixed settings.
    static int useRandom;
    /// Reserved scratch block of 108 bytes; nothing reads or writes it.
    static unsigned char* samplePixels;
    /// Refills `random` by exactly 100 draws from `rand()`, in order.
    static void renewRandomNumbers();

    // ---- Lines ----
    /// Whether the operations that are said to print write their lines to standard output. A program that is to print
    /// something else there, and a library that is to print nothing, switch it off.
    static bool prints;

    // ---- Filter catalogue: looks, lists, crops and borders share the numbers of FilterNumber.h ----
    static GrowArray<int> customFilterFiltersA; ///< what Filter::customA applies
    static GrowArray<int> customFilterFiltersB; ///< what Filter::customB applies
    static GrowArray<int> customFilterFiltersC; ///< what Filter::customC applies
    /// How many numbers the main catalogue has: 15, the last of which is Filter::original. The numbers beyond it are
    /// later looks, crops and borders.
    static int getFilterCount();
    /// The name of a filter number, a constant; that of Filter::unnamed, "Filter", for a number outside the catalogue.
    static const char* getFilterName(int filter);
    /// The lowest number of that exact name; Filter::original for a name that is not in the catalogue.
    static int getFilterFromName(const char* name);
    /// The numbers of all looks in the order of the catalogue: no list, crop, border or test.
    static GrowArray<int> getLooks();
    /// Replaces a custom list. The numbers of the custom lists are left out, so that a list never contains a list.
    static void setCustomFilterA(const GrowArray<int>& filters);
    static void setCustomFilterB(const GrowArray<int>& filters);
    static void setCustomFilterC(const GrowArray<int>& filters);
    /// The list behind the number of a custom list; null for every other number.
    static const GrowArray<int>* customFilters(int filter);
    /// Applies one filter number. A number without an effect prints "applying original filter".
    void applyFilter(int filter);
    /// Prints "applying original filter" and changes nothing.
    void applyOriginalFilter();
    void applyCustomFilterA();
    void applyCustomFilterB();
    void applyCustomFilterC();
    /// White, with one black dot per column along the S-shaped tone curve of the square root: a visual check of curve
    /// code.
    void drawTestPattern();

    // ---- Looks: each stands in image/looks/, in a file of its name ----
    void applyCrossProcessFilter();
    void applyHelgaFilter();
    void applyLoloFilter();
    void applyMagazineFilter();
    void applyInstantFilter();
    void applyMonoFilter();
    void apply1962Filter();
    void apply1974Filter();
    void applyCinemaFilter();
    void applyInfraredFilter();
    void makeFisheye();
    void applyFisheyeFilter();
    void applyLightleakFilter();
    void applyDeliciousFilter();
    void deliciousColorCore2();
    void applyArcticFilter();
    void applyBlowoutFilter();

    // ---- Toolkit: tone levels ----
    /// Counts the luminances (0 .. 255) of every tenth pixel into the empty `hist`, up to the highest one met, and
    /// gives the lowest one met. The last 11 pixels are never sampled; an image of 11 pixels or fewer gives an empty
    /// list and 0.
    void getHistogram(GrowArray<int>* hist, int* minLum) const;
    /// Stretches red, green and blue alike so that the luminances at which the fractions (0 .. 1) of the sampled pixels
    /// are cut off at the dark and at the bright end land on the two levels (0 .. 255). A clamp flag holds the result
    /// at that level instead of at 0 or 255.
    void fillHistogram(float lowFraction, float highFraction, float lowLevel, float highLevel, bool clampToLowLevel,
        bool clampToHighLevel);

    // ---- Toolkit: blur and vignette ----
    /// Separable blur with a kernel of about `size` pixels (3 at least) that rises to its centre by the power
    /// `exponent`; a box when the exponent is 0 or less. Each tap is truncated to a whole number, which darkens
    /// slightly.
    void makeBlurry(int size, float exponent);
    /// Darkens from `innerRadius` (pixels from the centre) outwards to full `strength` (0 .. 1) at `outerRadius`.
    /// `boostSaturation` pushes darkened pixels away from grey, `softenEdges` mixes in a blurred copy.
    void vignette(
        float innerRadius, float outerRadius, float exponent, float strength, bool boostSaturation, bool softenEdges);

    // ---- Toolkit: strength ----
    /// Takes a look back in part: `before` is the picture as it was, of the same size, and `strength` what is to stay
    /// of the look, 0 .. 100 per cent (held there). Each of red, green and blue becomes the mix of its two values,
    /// rounded half up: 100 leaves the picture as it is, 0 gives the colours of `before`.
    void mixIn(const CharImage& before, int strength);
    static constexpr int wholeStrength = 100; ///< per cent

    // ---- Toolkit: grain and maps ----
    /// Adds `count` squares of `spotSize` pixels at random places, each brighter or darker by one random amount of
    /// -amplitude/2 .. amplitude/2 (amplitude at least 1). Sums wrap round modulo 256; squares are clipped to the
    /// image.
    void addNoise(int count, int spotSize, int amplitude);
    /// Writes the strength of the brightness edges, one byte a pixel, to `map` (width x height bytes).
    void fillEdgeDetectMap(unsigned char* map) const;
    /// Smooths a map (width x height bytes) with a separable kernel of about `size` pixels shaped by `exponent`. With a
    /// `threshold` above 0 a value that would change by more keeps itself. Prints the kernel to standard output.
    static void smoothCharMap(unsigned char* map, int width, int height, int size, float exponent, float threshold);

    // ---- Framing (findBestFit stands in image/framing/BestFit.h) ----
    /// The crop aspect (width / height) of a filter number for a picture of the given aspect; -1 for no crop.
    static float getFilterAspect(int filter, float aspect);
    /// The margins of a border style, each a fraction of the picture's longer side.
    static void getBorderReqsForFilter(int filter, float* left, float* right, float* top, float* bottom);
    /// Grows the canvas by margins (pixels) of one colour (channels 0 .. 255). Byte 3 of what they add is undefined. A
    /// negative margin crops; margins that crop everything leave a picture without pixels. A side beyond an int throws
    /// `std::bad_alloc` and changes nothing.
    void addBorder(int left, int right, int top, int bottom, float red, float green, float blue);
    /// Paints margins (pixels) inside the canvas; `colour` is red, green, blue. A negative margin paints nothing.
    void fillBorder(int left, int right, int top, int bottom, const unsigned char* colour);
    /// Rounds the inner corners of the area inside the margins by blending `colour` into squares of `radius` pixels.
    void fillRoundedBorder(int left, int right, int top, int bottom, int radius, const unsigned char* colour);
    /// Finishes a border style on a canvas whose margins were made from `maxSide`, the source's longer side in pixels.
    void applyFilterBorder(int border, int maxSide);
};

} // namespace lumora
