// SPDX-License-Identifier: GPL-3.0-or-later
// Paints sample.jpg, the photo that Lumora opens when it is given none: a lake at a late hour, computed and not
// photographed, so that it belongs to the project. It holds what looks work on: blue sky, greens, warm skin-like tones,
// deep shadows and fine texture.
//
//     cmake --build build/dev --target make_sample && build/dev/bin/make_sample resources/sample/sample.jpg

#include <QImage>
#include <QImageWriter>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>

namespace {

constexpr int imageWidth = 1600, imageHeight = 1067;
constexpr int samplesPerSide = 2; ///< rays across and down each pixel
constexpr float farAway = 900.0f;
constexpr float eyeHeight = 3.4f; ///< scene units, roughly metres, above the water

struct Vec {
    float x = 0.0f, y = 0.0f, z = 0.0f;
};
Vec operator+(Vec a, Vec b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vec operator-(Vec a, Vec b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
Vec operator*(Vec a, Vec b)
{
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}
Vec operator*(Vec a, float s)
{
    return {a.x * s, a.y * s, a.z * s};
}
float dot(Vec a, Vec b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vec unit(Vec a)
{
    return a * (1.0f / std::sqrt(dot(a, a)));
}
float clamp01(float v)
{
    return std::clamp(v, 0.0f, 1.0f);
}
float mix(float a, float b, float t)
{
    return a + (b - a) * t;
}
Vec mix(Vec a, Vec b, float t)
{
    return a + (b - a) * t;
}
float smooth(float from, float to, float v)
{
    const float t = clamp01((v - from) / (to - from));
    return t * t * (3.0f - 2.0f * t);
}

/// A number in 0 .. 1 that belongs to a place of the whole-number grid.
float hash(int x, int y)
{
    std::uint32_t h = std::uint32_t(x) * 374761393u + std::uint32_t(y) * 668265263u;
    h = (h ^ (h >> 13)) * 1274126177u;
    return float((h ^ (h >> 16)) & 0xffffffu) / float(0xffffff);
}

/// Smooth noise of one hill per unit, 0 .. 1.
float noise(float x, float y)
{
    const float fx = std::floor(x), fy = std::floor(y);
    const int ix = int(fx), iy = int(fy);
    const float u = smooth(0.0f, 1.0f, x - fx), v = smooth(0.0f, 1.0f, y - fy);
    return mix(mix(hash(ix, iy), hash(ix + 1, iy), u), mix(hash(ix, iy + 1), hash(ix + 1, iy + 1), u), v);
}

/// Noise of several sizes, each half as large and half as strong as the one before; about 0 .. 1.
float layers(float x, float y, int count)
{
    float sum = 0.0f, strength = 0.5f;
    for (int i = 0; i < count; i++, strength *= 0.5f) {
        sum += strength * noise(x, y);
        const float turned = 1.6f * x + 1.2f * y;
        y = 1.6f * y - 1.2f * x;
        x = turned;
    }
    return sum;
}

const Vec sun = unit({-0.62f, 0.34f, 0.62f});
const Vec sunColour = {3.1f, 2.25f, 1.35f};

float crowns(float x, float z)
{
    return 1.7f * std::sqrt(noise(x * 0.8f, z * 0.8f)) + 0.9f * noise(x * 1.9f, z * 1.9f)
        + 0.45f * noise(x * 5.3f, z * 5.3f);
}

/// How much of a place is covered with trees, 0 .. 1, on ground of the given height.
float forest(float x, float z, float ground)
{
    const float cover =
        smooth(0.36f, 0.46f, layers(x * 0.024f + 4.0f, z * 0.024f, 3) + (x > 0.0f && z < 140.0f ? 0.12f : 0.0f));
    return cover * smooth(1.0f, 2.4f, ground)
        * (1.0f - smooth(34.0f, 60.0f, ground + 14.0f * noise(x * 0.05f, z * 0.05f)));
}

/// Height of the land above the water; negative under the lake. `detail` counts noise layers.
float bareGround(float x, float z, int detail)
{
    const float shore = z - 92.0f + 22.0f * noise(x * 0.02f, 3.0f) - 0.0024f * x * x;
    float height = 0.05f * shore + 4.0f * layers(x * 0.02f, z * 0.02f, 3) - 1.9f;
    const float far = smooth(190.0f, 560.0f, z);
    const float ridge = 1.0f - std::fabs(2.0f * layers(x * 0.0042f + 1.7f, z * 0.0042f + 0.4f, detail) - 0.95f);
    height += far * (190.0f * ridge * ridge * ridge - 28.0f);
    const float bank = 11.0f * smooth(26.0f, 60.0f, x + 0.05f * z) - 9.0f * (1.0f - smooth(30.0f, 46.0f, z));
    return z < 130.0f ? std::max(height, std::min(bank, 8.0f) + 2.0f * layers(x * 0.06f, z * 0.06f, 3) - 3.0f) : height;
}

float land(float x, float z, int detail)
{
    const float ground = bareGround(x, z, detail);
    return ground < 0.8f || ground > 80.0f ? ground : ground + forest(x, z, ground) * crowns(x, z);
}

/// Distance along a ray to the land, or a negative number.
float meetLand(Vec from, Vec direction, int detail)
{
    float t = 1.0f, before = t;
    for (int i = 0; i < 360 && t < farAway; i++) {
        const Vec p = from + direction * t;
        const float above = p.y - land(p.x, p.z, detail);
        if (above < 0.0008f * t) {
            float low = before, high = t;
            for (int k = 0; k < 8; k++) {
                const float middle = 0.5f * (low + high);
                const Vec q = from + direction * middle;
                (q.y < land(q.x, q.z, detail) ? high : low) = middle;
            }
            return high;
        }
        before = t;
        t += std::max(0.32f * above, 0.004f * t);
        if (p.y > 190.0f && direction.y > 0.0f)
            break;
    }
    return -1.0f;
}

Vec sky(Vec direction)
{
    const float up = std::max(direction.y, 0.0f);
    const float towardsSun = std::max(dot(direction, sun), 0.0f);
    Vec colour = mix(Vec{0.48f, 0.66f, 0.90f}, Vec{0.055f, 0.17f, 0.52f}, std::pow(smooth(0.0f, 0.55f, up), 0.70f));
    colour = mix(colour, Vec{1.20f, 0.86f, 0.60f}, 0.75f * std::pow(1.0f - up, 7.0f) * (0.25f + 0.75f * towardsSun));
    colour =
        colour + Vec{1.0f, 0.72f, 0.42f} * (0.55f * std::pow(towardsSun, 12.0f) + 1.6f * std::pow(towardsSun, 180.0f));
    const float scale = 1.0f / (up + 0.10f);
    const float cx = direction.x * scale * 1.05f + 2.3f, cy = direction.z * scale * 0.75f + 6.1f;
    const float warp = layers(cx * 0.8f, cy * 0.8f, 3);
    const float density = layers(cx + warp, cy * 1.7f - warp, 6);
    const float cover = smooth(0.47f, 0.80f, density) * smooth(0.015f, 0.16f, up);
    const float lit = clamp01(1.25f - 1.7f * (layers(cx + warp + 0.10f, cy * 1.7f - warp - 0.12f, 4) - 0.28f));
    const Vec cloud = mix(Vec{0.54f, 0.52f, 0.60f}, Vec{1.32f, 1.10f, 0.92f}, lit);
    return mix(colour, cloud, 0.92f * cover);
}

Vec haze(Vec colour, Vec direction, float distance)
{
    const float towardsSun = std::max(dot(direction, sun), 0.0f);
    const Vec air = mix(Vec{0.34f, 0.48f, 0.74f}, Vec{1.05f, 0.74f, 0.50f}, 0.8f * std::pow(towardsSun, 3.0f));
    return mix(colour, air, 0.80f * (1.0f - std::exp(-std::pow(distance / 760.0f, 1.5f))));
}

Vec shadeLand(Vec p, Vec direction, float distance)
{
    const float e = std::max(0.05f, 0.0011f * distance);
    const float here = land(p.x, p.z, 8);
    const Vec normal = unit({here - land(p.x + e, p.z, 8), e, here - land(p.x, p.z + e, 8)});
    const float ground = bareGround(p.x, p.z, 6);
    const float trees = ground < 80.0f ? forest(p.x, p.z, ground) : 0.0f;
    const float patches = layers(p.x * 0.09f, p.z * 0.09f, 4);
    const Vec meadow = mix(Vec{0.10f, 0.17f, 0.030f}, Vec{0.30f, 0.28f, 0.070f}, smooth(0.3f, 0.6f, patches));
    const Vec leaves = mix(Vec{0.022f, 0.060f, 0.018f}, Vec{0.13f, 0.145f, 0.030f},
        0.6f * noise(p.x * 0.23f, p.z * 0.23f) + 0.4f * noise(p.x * 2.3f, p.z * 2.3f));
    const Vec stone = mix(Vec{0.20f, 0.18f, 0.17f}, Vec{0.40f, 0.35f, 0.31f}, layers(p.x * 0.12f, p.y * 0.3f, 5));
    Vec albedo = mix(meadow, leaves, smooth(0.1f, 0.5f, trees));
    albedo = mix(albedo, stone, smooth(0.68f, 0.55f, normal.y) * smooth(22.0f, 44.0f, p.y));
    albedo = mix(albedo, stone, smooth(44.0f, 74.0f, p.y));
    albedo = mix(albedo, Vec{0.86f, 0.88f, 0.93f},
        smooth(78.0f, 108.0f, p.y + 26.0f * patches) * smooth(0.34f, 0.55f, normal.y));
    albedo = mix(Vec{0.50f, 0.38f, 0.26f}, albedo, smooth(0.25f, 0.9f, p.y + 0.5f * patches));
    float shadow = 1.0f;
    for (float t = 2.0f * e + 0.3f; t < 160.0f; t *= 1.28f) {
        const Vec q = p + sun * t;
        shadow = std::min(shadow, 7.0f * (q.y - land(q.x, q.z, 5)) / t + 0.25f);
    }
    shadow = clamp01(shadow);
    const float hollow = mix(1.0f, clamp01(0.25f + (here - ground) / 3.2f), trees);
    const Vec light = sunColour * (std::max(dot(normal, sun), 0.0f) * shadow)
        + Vec{0.34f, 0.46f, 0.72f} * (0.55f + 0.45f * normal.y) + Vec{0.26f, 0.19f, 0.10f} * std::max(-normal.x, 0.0f);
    return haze(albedo * light * hollow, direction, distance);
}

/// A hot-air balloon, or nothing: distance along the ray and the colour there.
float meetBalloon(Vec from, Vec direction, Vec* colour)
{
    constexpr float radius = 10.5f;
    const Vec centre = {26.0f, 50.0f, 118.0f};
    const auto shade = [](Vec albedo, Vec normal) {
        const float facing = std::max(0.55f * dot(normal, sun) + 0.45f, 0.0f);
        return albedo * (sunColour * (0.9f * facing * facing) + Vec{0.36f, 0.44f, 0.58f});
    };
    // The envelope narrows below its middle: the ray is met in a space where it is a ball.
    float nearest = -1.0f;
    for (float t = 90.0f; t < 170.0f; t += 0.05f) {
        const Vec p = from + direction * t - centre;
        const float y = p.y / radius;
        if (y > 1.0f || y < -2.0f)
            continue;
        const float round = std::hypot(p.x, p.z) / radius;
        const float profile = y > 0.0f ? std::sqrt(1.0f - y * y) : y > -1.4f ? std::cos(y * 1.04f) : 0.0f;
        const bool basket = y < -1.64f && y > -1.86f && std::fabs(p.x) < 1.1f && std::fabs(p.z) < 1.1f;
        const bool rope = y <= -1.30f && y >= -1.64f && std::fabs(std::fabs(p.x) - 1.0f) < 0.07f
            && std::fabs(std::fabs(p.z) - 1.0f) < 0.07f;
        if (!basket && !rope && round > profile)
            continue;
        nearest = t;
        if (basket || rope) {
            *colour = shade({0.30f, 0.17f, 0.08f}, {-1.0f, 0.0f, 0.0f});
            break;
        }
        const float turn = std::atan2(p.z, p.x) * 12.0f / 3.14159265f;
        const int gore = int(std::floor(turn + 12.0f)) % 3;
        const Vec stripe[3] = {{0.62f, 0.10f, 0.05f}, {0.86f, 0.46f, 0.26f}, {0.90f, 0.76f, 0.56f}};
        Vec albedo = stripe[gore];
        if (y < -0.15f && y > -0.42f)
            albedo = {0.05f, 0.11f, 0.28f};
        const float seam = std::fabs(turn - std::round(turn));
        *colour = shade(albedo, unit({p.x, p.y * (y > 0.0f ? 1.0f : 0.7f), p.z}))
            * mix(0.72f, 1.0f, smooth(0.0f, 0.07f, seam));
        break;
    }
    return nearest;
}

/// The jetty: a deck of planks over posts.
float meetJetty(Vec from, Vec direction, Vec* colour)
{
    const Vec low = {-6.6f, 0.75f, -2.0f}, high = {-3.4f, 1.0f, 26.0f};
    float enter = 0.0f, leave = farAway;
    int side = 0;
    const float o[3] = {from.x, from.y, from.z}, d[3] = {direction.x, direction.y, direction.z};
    const float a[3] = {low.x, low.y, low.z}, b[3] = {high.x, high.y, high.z};
    for (int k = 0; k < 3; k++) {
        const float t0 = (a[k] - o[k]) / d[k], t1 = (b[k] - o[k]) / d[k];
        if (std::min(t0, t1) > enter) {
            enter = std::min(t0, t1);
            side = k;
        }
        leave = std::min(leave, std::max(t0, t1));
    }
    float post = farAway;
    for (int i = 0; i < 8; i++) { // round posts, flat on towards the eye
        const float z = 4.0f + 7.2f * float(i / 2), x = i % 2 ? high.x - 0.1f : low.x + 0.1f;
        const float t = (z - from.z) / direction.z;
        const Vec p = from + direction * t;
        if (t > 0.0f && std::fabs(p.x - x) < 0.17f && p.y < 1.75f && p.y > -0.2f)
            post = std::min(post, t);
    }
    const bool deck = enter < leave && enter > 0.0f;
    if (!deck && post == farAway)
        return -1.0f;
    const float t = deck ? std::min(enter, post) : post;
    const Vec p = from + direction * t;
    const bool top = deck && enter <= post && side == 1;
    const float plank = p.z / 0.42f;
    const float tone = hash(int(std::floor(plank)), 77);
    const float grain = layers(p.x * 2.2f, p.z * 34.0f, 5);
    Vec wood = mix(Vec{0.12f, 0.065f, 0.032f}, Vec{0.52f, 0.32f, 0.19f}, clamp01(0.45f * tone + 1.1f * grain - 0.30f));
    const float gap = std::fabs(plank - std::round(plank));
    if (top)
        wood = wood * smooth(0.015f, 0.075f, gap);
    const Vec light = top ? sunColour * 0.40f + Vec{0.26f, 0.30f, 0.40f} : Vec{0.22f, 0.23f, 0.28f} + sunColour * 0.07f;
    *colour = wood * light;
    return t;
}

/// What a ray sees when it looks at anything but water.
Vec lookAt(Vec from, Vec direction, int detail, bool* hit)
{
    Vec colour;
    const float jetty = meetJetty(from, direction, &colour);
    *hit = true;
    if (jetty > 0.0f)
        return colour;
    const float ground = meetLand(from, direction, detail);
    const float balloon = meetBalloon(from, direction, &colour);
    if (balloon > 0.0f && (ground < 0.0f || balloon < ground))
        return haze(colour, direction, 0.6f * balloon);
    if (ground > 0.0f)
        return shadeLand(from + direction * ground, direction, ground);
    *hit = false;
    return sky(direction);
}

Vec shadeWater(Vec p, Vec direction, float distance)
{
    const float fade = 1.0f / (1.0f + 0.020f * distance);
    const float calm = smooth(0.35f, 0.65f, layers(p.x * 0.012f + 9.0f, p.z * 0.03f, 3));
    const float swell = mix(0.010f, 0.034f, calm) * fade;
    const auto wave = [&](float x, float z) { return layers(x * 0.9f + 0.6f * noise(z, x), z * 2.4f, 4); };
    const float here = wave(p.x, p.z);
    const Vec normal =
        unit({(here - wave(p.x + 0.08f, p.z)) * swell / 0.08f, 1.0f, (here - wave(p.x, p.z + 0.08f)) * swell / 0.08f});
    Vec away = direction - normal * (2.0f * dot(direction, normal));
    away.y = std::max(away.y, 0.004f);
    bool hit = false;
    const Vec mirrored = lookAt(p, unit(away), 6, &hit);
    const float fresnel = 0.05f + 0.95f * std::pow(1.0f - std::max(-dot(direction, normal), 0.0f), 4.0f);
    const Vec deep = mix(Vec{0.045f, 0.13f, 0.14f}, Vec{0.10f, 0.17f, 0.15f}, noise(p.x * 0.1f, p.z * 0.1f));
    const float glitter = hit ? 0.0f : 3.0f * std::pow(std::max(dot(unit(away), sun), 0.0f), 900.0f);
    return haze(
        mix(deep, mirrored * 0.92f, std::min(fresnel + 0.10f, 1.0f)) + sunColour * glitter, direction, 0.5f * distance);
}

Vec see(float u, float v)
{
    const Vec eye = {0.0f, eyeHeight, 0.0f};
    const Vec direction = unit({u, v + 0.085f, 1.62f});
    bool hit = false;
    const Vec seen = lookAt(eye, direction, 8, &hit);
    if (direction.y >= 0.0f)
        return seen;
    const float water = -eyeHeight / direction.y;
    Vec unused;
    const float jetty = meetJetty(eye, direction, &unused);
    const float ground = meetLand(eye, direction, 8);
    if ((jetty > 0.0f && jetty < water) || (ground > 0.0f && ground < water) || water > farAway)
        return seen;
    return shadeWater(eye + direction * water, direction, water);
}

float film(float light)
{
    const float x = light * 0.74f;
    const float c = std::pow(clamp01(x * (2.51f * x + 0.03f) / (x * (2.43f * x + 0.59f) + 0.14f)), 1.0f / 2.2f);
    return mix(c, c * c * (3.0f - 2.0f * c), 0.35f);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "make_sample: give the path of the JPEG file to write\n");
        return 2;
    }
    QImage image(imageWidth, imageHeight, QImage::Format_RGB32);
    std::mt19937 random(1962);
    std::normal_distribution<float> grain(0.0f, 0.009f);
    for (int y = 0; y < imageHeight; y++)
        for (int x = 0; x < imageWidth; x++) {
            Vec sum;
            for (int s = 0; s < samplesPerSide * samplesPerSide; s++) {
                const float sx = (float(s % samplesPerSide) + 0.5f) / samplesPerSide;
                const float sy = (float(s / samplesPerSide) + 0.5f) / samplesPerSide;
                const Vec light = see(
                    (2.0f * (float(x) + sx) - imageWidth) / imageHeight, 1.0f - 2.0f * (float(y) + sy) / imageHeight);
                sum = sum + Vec{film(light.x), film(light.y), film(light.z)};
            }
            sum = sum * (1.0f / (samplesPerSide * samplesPerSide));
            const float u = 2.0f * float(x) / imageWidth - 1.0f, v = 2.0f * float(y) / imageHeight - 1.0f;
            const float corner = 1.0f - 0.09f * (u * u + v * v);
            const float speck = grain(random);
            const auto byte = [&](float c) { return int(clamp01(c * corner + speck) * 255.0f + 0.5f); };
            image.setPixel(x, y, qRgb(byte(sum.x), byte(sum.y), byte(sum.z)));
        }
    QImageWriter writer(argv[1], "jpg");
    writer.setQuality(86);
    if (!writer.write(image)) {
        std::fprintf(stderr, "make_sample: %s\n", qPrintable(writer.errorString()));
        return 1;
    }
    return 0;
}
