// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/reference/Picture.h"

#include <vector>

/// Slow literal evaluations of the toolkit, pixel by pixel, without tables and without the engine's code: what the fast
/// engine is held to, byte for byte.
namespace reference {

int toInt(float value); ///< truncation; NaN and values out of range give the least int
unsigned char clamped(float value); ///< truncated, then held at 0 .. 255
unsigned char wrapped(float value); ///< truncated, then modulo 256
float luminance(float r, float g, float b);

void rgbToHsl(float r, float g, float b, float* h, float* s, float* l);
void hslToRgb(float h, float s, float l, float* rgb);
void rgbToHsv(float r, float g, float b, float* h, float* s, float* v);
void hsvToRgb(float h, float s, float v, float* rgb);

std::vector<int> histogram(const Picture& picture, int* minLum);
void fillHistogram(Picture& picture, float lowFraction, float highFraction, float lowLevel, float highLevel,
    bool clampToLowLevel, bool clampToHighLevel);
void makeBlurry(Picture& picture, int size, float exponent);
void vignette(Picture& picture, float innerRadius, float outerRadius, float exponent, float strength,
    bool boostSaturation, bool softenEdges);
void mixIn(Picture& picture, const Picture& before, int strength);
void addNoise(Picture& picture, int count, int spotSize, int amplitude);

std::vector<float> smoothingKernel(int size, float exponent);
std::vector<unsigned char> edgeMap(const Picture& picture);
void smoothMap(std::vector<unsigned char>& map, int width, int height, int size, float exponent, float threshold);

void testPattern(Picture& picture);

} // namespace reference
