// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <lcms2.h>
#include <memory>

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using IccProfile = std::unique_ptr<void, CloseProfile>;

struct DeleteTransform {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};

/// The profile of those bytes; null where they are broken or of another colour model.
IccProfile openProfile(const QByteArray& icc, cmsColorSpaceSignature model);

/// Makes a Format_RGBA8888 of the image, takes its bytes as `pixels` of the profile `source`, and makes them sRGB.
/// False, and nothing is changed, without a source or where it cannot tell how.
bool convertToSRgb(
    QImage& image, const IccProfile& source, cmsUInt32Number pixels, cmsUInt32Number intent, cmsUInt32Number flags);

/// Makes sRGB of a Format_RGBA8888 whose bytes are the light that the four inks of the profile let through, as files
/// store them; its alpha becomes 255. False, and nothing is changed, where the profile is none of inks. The colours are
/// those that were measured on the paper, whose white is the screen's: relative colorimetric, as the perceptual tables
/// of many profiles are made for printing alone. Black is no darker than the ink.
bool convertInksToSRgb(QImage& image, const QByteArray& profile);
