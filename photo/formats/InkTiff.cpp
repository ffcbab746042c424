// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/InkTiff.h"

#include "photo/IccProfile.h"
#include "photo/TiffReader.h"

#include <QColorSpace>
#include <QIODevice>
#include <algorithm>

namespace {

constexpr char ofColours = 2; ///< the kind of red, green and blue
constexpr quint64 longestProfile = 64'000'000; ///< bytes

} // namespace

std::optional<InkTiff> findInkTiff(QIODevice& file)
{
    enum { bitsOfChannels = 258, photometric = 262, channels = 277, setOfInks = 332, profile = 34675 };
    constexpr quint64 inks = 5, cyanMagentaYellowBlack = 1;
    TiffReader reader(file);
    if (!reader.isValid())
        return {};
    InkTiff found = {0, {}};
    QList<quint64> bits;
    quint64 count = 1, set = cyanMagentaYellowBlack;
    for (const TiffField& field : reader.fields(reader.firstDirectory())) {
        const QList<quint64> values = reader.numbers(field, 4);
        const quint64 first = values.value(0);
        if (field.tag == bitsOfChannels)
            bits = values;
        else if (field.tag == photometric && field.size == 2 && first == inks)
            found.kind = qint64(field.position) + reader.isBigEndian();
        else if (field.tag == channels)
            count = first;
        else if (field.tag == setOfInks)
            set = first;
        else if (field.tag == profile && field.size <= longestProfile)
            found.profile = reader.bytes(field.position, field.size);
    }
    const auto isReadable = [&](quint64 depth) { return depth == bits.value(0) && (depth == 8 || depth == 16); };
    if (found.kind == 0 || count != 4 || set != cyanMagentaYellowBlack || bits.isEmpty()
        || !std::all_of(bits.begin(), bits.end(), isReadable) || !openProfile(found.profile, cmsSigCmykData))
        return {};
    return found;
}

QByteArray toldAsColours(QIODevice& file, const InkTiff& inks)
{
    file.seek(0);
    QByteArray bytes = file.readAll();
    if (inks.kind < bytes.size())
        bytes[inks.kind] = ofColours;
    return bytes;
}

bool convertInks(QImage& image, const InkTiff& inks)
{
    if (!image.hasAlphaChannel()) // the black
        return false;
    // Nothing is to be multiplied with it, whatever the decoder has made of it.
    if (image.depth() == 64)
        image.reinterpretAsFormat(QImage::Format_RGBA64);
    else if (image.format() == QImage::Format_ARGB32_Premultiplied)
        image.reinterpretAsFormat(QImage::Format_ARGB32);
    image.convertTo(QImage::Format_RGBA8888);
    image.invertPixels(QImage::InvertRgba); // profiles are asked for the light that the inks let through
    if (!convertInksToSRgb(image, inks.profile))
        return false;
    image.reinterpretAsFormat(QImage::Format_RGBX8888);
    image.setColorSpace({});
    return true;
}
