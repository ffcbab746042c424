// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>

namespace reference {

int toInt(float value)
{
    if (std::isnan(value) || value < -2147483648.0f || value >= 2147483648.0f)
        return INT_MIN;
    return int(value);
}

unsigned char clamped(float value)
{
    const int whole = toInt(value);
    if (whole < 0)
        return 0;
    if (whole > 255)
        return 255;
    return static_cast<unsigned char>(whole);
}

unsigned char wrapped(float value)
{
    return static_cast<unsigned char>(unsigned(toInt(value)) % 256u);
}

float luminance(float r, float g, float b)
{
    return float(double(r) * 0.3 + double(g) * 0.59 + double(b) * 0.11);
}

std::vector<int> histogram(const Picture& picture, int* minLum)
{
    std::vector<int> bins;
    *minLum = 0;
    const int n = picture.width * picture.height - 11;
    for (int i = 0; i < n; i += 10) {
        const unsigned char* p = &picture.pixels[std::size_t(i) * 4];
        const int lum = int(luminance(p[0], p[1], p[2]));
        if (int(bins.size()) <= lum)
            bins.resize(lum + 1, 0);
        bins[lum]++;
        if (i == 0 || lum < *minLum)
            *minLum = lum;
    }
    return bins;
}

void fillHistogram(Picture& picture, float lowFraction, float highFraction, float lowLevel, float highLevel,
    bool clampToLowLevel, bool clampToHighLevel)
{
    int minLum;
    const std::vector<int> bins = histogram(picture, &minLum);
    int total = 0;
    for (int count : bins)
        total += count;

    int lowIndex = 0, running = 0;
    for (int k = 0; k < int(bins.size()); k++) {
        running += bins[k];
        if (running != 0 && float(running) / float(total) >= lowFraction) {
            lowIndex = k == 0 ? 0 : k - 1;
            break;
        }
    }
    int highIndex = 0;
    running = 0;
    for (int j = int(bins.size()) - 1; j >= 0; j--) {
        running += bins[j];
        if (running != 0 && float(running) / float(total) >= highFraction) {
            highIndex = j;
            break;
        }
    }

    const float scale = (highLevel - lowLevel) / float(highIndex - lowIndex);
    const float floor = clampToLowLevel ? lowLevel : 0.0f;
    const float ceiling = clampToHighLevel ? highLevel : 255.0f;
    for (std::size_t i = 0; i < picture.pixels.size(); i++) {
        if (i % 4 == 3)
            continue;
        const int c = picture.pixels[i];
        const float product = scale * float(c - minLum - lowIndex);
        float x = product + lowLevel;
        if (x < floor)
            x = floor;
        else if (x >= ceiling)
            x = ceiling;
        picture.pixels[i] = wrapped(x);
    }
}

void makeBlurry(Picture& picture, int size, float exponent)
{
    const float half = float((size < 3 ? 3 : size) * 0.5);
    std::vector<float> weights;
    for (int k = 1;; k++) {
        weights.push_back(exponent <= 0.0f ? 1.0f : powf(float(k) / half, exponent));
        if (!(float(k) < half))
            break;
    }
    const int K = int(weights.size());
    weights[K - 1] = 1.0f;
    for (int k = K - 2; k >= 0; k--)
        weights.push_back(weights[k]);
    float sum = 0.0f;
    for (float w : weights)
        sum = sum + w;
    const float reciprocal = 1.0f / sum;
    for (float& w : weights)
        w = w * reciprocal;

    for (int pass = 0; pass < 2; pass++) {
        Picture result = picture;
        for (int y = 0; y < picture.height; y++)
            for (int x = 0; x < picture.width; x++)
                for (int channel = 0; channel < 3; channel++) {
                    unsigned char value = 0;
                    for (int t = 0; t < int(weights.size()); t++) {
                        int sx = x, sy = y;
                        if (pass == 0)
                            sx = std::clamp(x + (K - 1) - t, 0, picture.width - 1);
                        else
                            sy = std::clamp(y + (K - 1) - t, 0, picture.height - 1);
                        const float product = float(picture.at(sx, sy)[channel]) * weights[t];
                        value = wrapped(float(value) + product);
                    }
                    result.at(x, y)[channel] = value;
                }
        picture = result;
    }
}

void vignette(Picture& picture, float innerRadius, float outerRadius, float exponent, float strength,
    bool boostSaturation, bool softenEdges)
{
    Picture blurred = picture;
    if (softenEdges) {
        const float m = float(std::max(picture.width, picture.height));
        const double size = m * 0.005;
        makeBlurry(blurred, size >= 7 ? 7 : int(size), 0.0f);
    }
    const int cx = picture.width / 2, cy = picture.height / 2;
    const float span = outerRadius - innerRadius;
    for (int y = 0; y < picture.height; y++)
        for (int x = 0; x < picture.width; x++) {
            const float dx = float(x - cx), dy = float(y - cy);
            const float d = sqrtf(dx * dx + dy * dy);
            const float t = (d - innerRadius) / span;
            if (t < 0)
                continue;
            unsigned char* p = picture.at(x, y);
            float c[3] = {float(p[0]), float(p[1]), float(p[2])};
            const float a = powf(t, 1.5f);
            const float e = powf(t, exponent);
            float dark = ((1 - a) * e + t * a) * strength;
            float keep;
            if (dark < 0)
                dark = 0, keep = 1;
            else if (dark > 1)
                dark = 1, keep = 0;
            else
                keep = 1 - dark;
            if (softenEdges) {
                const float u = float(double(t) - 0.2);
                if (u > 0) {
                    const float w = u > 1 ? 1 : u;
                    for (int k = 0; k < 3; k++)
                        c[k] = (1 - w) * c[k] + w * float(blurred.at(x, y)[k]);
                }
            }
            if (boostSaturation) {
                const float grey = luminance(c[0], c[1], c[2]);
                for (float& v : c)
                    v = v * (1 + dark) - dark * grey;
            }
            for (int k = 0; k < 3; k++)
                p[k] = clamped(keep * c[k]);
        }
}

void mixIn(Picture& picture, const Picture& before, int strength)
{
    const int percent = strength < 0 ? 0 : strength > 100 ? 100 : strength;
    for (int y = 0; y < picture.height; y++)
        for (int x = 0; x < picture.width; x++)
            for (int channel = 0; channel < 3; channel++) {
                unsigned char& after = picture.at(x, y)[channel];
                const int hundredfold = before.at(x, y)[channel] * (100 - percent) + after * percent;
                after = static_cast<unsigned char>(std::floor(hundredfold / 100.0 + 0.5));
            }
}

void addNoise(Picture& picture, int count, int spotSize, int amplitude)
{
    const int half = spotSize / 2;
    const double base = amplitude * -0.5;
    for (int i = 0; i < count; i++) {
        const int x = rand() % picture.width;
        const int y = rand() % picture.height;
        const int n = rand() % amplitude;
        const int delta = int(n + base);
        for (int cx = x - half; cx < x - half + spotSize; cx++)
            for (int cy = y - half; cy < y - half + spotSize; cy++) {
                if (cx < 0 || cy < 0 || cx >= picture.width || cy >= picture.height)
                    continue;
                for (int k = 0; k < 3; k++)
                    picture.at(cx, cy)[k] = static_cast<unsigned char>((picture.at(cx, cy)[k] + delta + 25600) % 256);
            }
    }
}

std::vector<float> smoothingKernel(int size, float exponent)
{
    const int s = size < 3 ? 3 : size;
    const float half = float(s * 0.5);
    std::vector<float> weights;
    for (int i = 0;; i++) {
        const float x = float(i + 1);
        weights.push_back(exponent <= 0 ? 1.0f : powf(x / half, exponent));
        if (!(x < half))
            break;
    }
    const int m = int(weights.size());
    for (int i = m - 2; i >= 0; i--)
        weights.push_back(weights[i]);
    float sum = 0;
    for (float w : weights)
        sum += w;
    const float reciprocal = 1 / sum;
    for (float& w : weights)
        w *= reciprocal;
    return weights;
}

std::vector<unsigned char> edgeMap(const Picture& picture)
{
    const float horizontal[9] = {-1, 0, 1, -2, 0, 2, -1, 0, 1}, vertical[9] = {-1, -2, -1, 0, 0, 0, 1, 2, 1};
    std::vector<unsigned char> map;
    for (int y = 0; y < picture.height; y++)
        for (int x = 0; x < picture.width; x++) {
            float gx = 0, gy = 0;
            for (int n = 0; n < 9; n++) {
                const int column = std::clamp(x + n % 3 - 1, 0, picture.width - 1);
                const int row = std::clamp(y + n / 3 - 1, 0, picture.height - 1);
                const unsigned char* p = picture.at(column, row);
                const float lum = luminance(p[0], p[1], p[2]);
                gx += lum * horizontal[n];
                gy += lum * vertical[n];
            }
            map.push_back(clamped(sqrtf(gy * gy + gx * gx)));
        }
    return map;
}

void smoothMap(std::vector<unsigned char>& map, int width, int height, int size, float exponent, float threshold)
{
    const std::vector<float> weights = smoothingKernel(size, exponent);
    const int r = (int(weights.size()) - 1) / 2;
    for (int pass = 0; pass < 2; pass++) {
        std::vector<unsigned char> scratch(map.size());
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++) {
                float sum = 0;
                for (int j = 0; j < int(weights.size()); j++) {
                    const int column = pass == 0 ? std::clamp(x + r - j, 0, width - 1) : x;
                    const int row = pass == 1 ? std::clamp(y + r - j, 0, height - 1) : y;
                    sum += float(map[std::size_t(row) * width + column]) * weights[j];
                }
                const unsigned char v = map[std::size_t(y) * width + x];
                unsigned char out = wrapped(sum);
                if (threshold > 0) {
                    const long d = std::labs(toInt(sum - float(v)));
                    if (float(d) > threshold)
                        out = v;
                }
                scratch[std::size_t(y) * width + x] = out;
            }
        map = scratch;
    }
}

void testPattern(Picture& picture)
{
    for (std::size_t i = 0; i < picture.pixels.size(); i++)
        if (i % 4 != 3)
            picture.pixels[i] = 255;
    for (int x = 0; x < picture.width; x++) {
        const float t = float(x) / float(picture.width);
        float s;
        if (t < 0.5f)
            s = sqrtf(t + t) * 0.5f;
        else
            s = float(1.0 - 0.5 * double(sqrtf(float(2.0 - 2.0 * double(t)))));
        const int v = int(s * float(picture.height));
        int row;
        if (v < 0)
            row = picture.height - 1;
        else if (v > picture.height - 1)
            row = 0;
        else
            row = picture.height - 1 - v;
        for (int k = 0; k < 3; k++)
            picture.at(x, row)[k] = 0;
    }
}

} // namespace reference
