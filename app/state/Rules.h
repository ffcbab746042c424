// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"
#include "image/FilterNumber.h"

#include <QByteArray>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <vector>

// The rules of the window that need no window.

/// The filter numbers of the ten look buttons in their order; the first is "Original".
inline constexpr int buttonFilters[] = {lumora::Filter::original, lumora::Filter::helga, lumora::Filter::lolo,
    lumora::Filter::cinema, lumora::Filter::look1962, lumora::Filter::look1974, lumora::Filter::mono,
    lumora::Filter::colorcross, lumora::Filter::instant, lumora::Filter::magazine};

/// The looks of the catalogue that have none of these buttons, in its order.
std::vector<int> furtherLooks();

/// The longest side of the display copy for a window whose larger frame side is `frameSide` pixels: the first 800 + 20
/// k that is not smaller.
int displayResAtLoad(int frameSide);
/// The same after a resize: grows by factors of 1.2, each truncated, and never shrinks.
int displayResAfterResize(int displayRes, int frameSide);

/// The size of the display copy of a photo: the longer side at most `displayRes`. A square photo is never reduced, on
/// purpose.
QSizeF displaySize(const QSize& photo, int displayRes);
/// The size of the thumbnail copy: the shorter side is 100.
QSizeF thumbnailSize(const QSize& photo);
/// The side of the square at which a thumbnail stands in the strip of looks, in points: 72 to 120, as the width for
/// each button and the height of the window allow.
int thumbnailSide(int buttonWidth, int windowHeight);

/// "Original", one look's name, or the chain "Original > Helga > Mono" in multi mode.
QString breadcrumb(const lumora::GrowArray<int>& filterIDs, bool multi);

/// A number of pixels or per cent, for people: "1600".
QString shownNumber(qint64 number);
/// The length of a file in bytes, for people: "412 kB", "2.1 MB".
QString shownLength(qint64 bytes);

/// What people are told of a saved file: its name, its picture's size in pixels and its length in bytes.
QString savedLine(const QByteArray& fileName, const QSize& picture, qint64 bytes);

/// A path whose name ends with one of the six endings that are offered, in small or capital letters; ".jpg" is added to
/// any other.
QString withJpegEnding(const QString& path);

/// The last component of a path of any bytes, and that name for people: control characters become spaces.
QByteArray fileNameOf(const QByteArray& path);
QString shownName(const QByteArray& fileName);
