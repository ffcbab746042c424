// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/JpegMarkers.h"

#include <QIODevice>
#include <QtEndian>

namespace {

constexpr int startOfImage = 0xD8, endOfImage = 0xD9, startOfScan = 0xDA, app1 = 0xE1, app13 = 0xED, comment = 0xFE;
constexpr char exifHeading[] = "Exif\0", xmpHeading[] = "http://ns.adobe.com/xap/1.0/",
               resourceHeading[] = "Photoshop 3.0";
constexpr qsizetype longestResources = 4'000'000; ///< bytes

/// Takes what follows the heading, which includes its final zero, unless there is something already.
template <std::size_t length> bool take(QByteArray& block, const QByteArray& payload, const char (&heading)[length])
{
    if (!payload.startsWith(QByteArrayView(heading, length)))
        return false;
    if (block.isEmpty())
        block = payload.mid(length);
    return true;
}

bool isFrame(int marker)
{
    constexpr int huffmanTables = 0xC4, reserved = 0xC8, arithmeticTables = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != reserved
        && marker != arithmeticTables;
}

/// Reads up to the next marker, over the coded picture with its zero-stuffed bytes and restart markers, and gives its
/// code; -1 at the end of the file.
int nextMarker(QIODevice& device)
{
    for (;;) {
        const QByteArray window = device.peek(512);
        if (window.size() < 2)
            return -1;
        for (qsizetype at = window.indexOf('\xFF'); at >= 0 && at + 1 < window.size();
             at = window.indexOf('\xFF', at + 1)) {
            const int code = static_cast<unsigned char>(window[at + 1]);
            const bool restart = code >= 0xD0 && code <= 0xD7;
            if (code != 0x00 && code != 0xFF && !restart) {
                device.skip(at + 2);
                return code;
            }
        }
        device.skip(window.endsWith('\xFF') ? window.size() - 1 : window.size());
    }
}

} // namespace

JpegMarkers readJpegMarkers(QIODevice& device)
{
    JpegMarkers found;
    device.seek(0);
    if (device.peek(2) != "\xFF\xD8")
        return found;
    for (int marker = nextMarker(device); marker != -1 && marker != endOfImage; marker = nextMarker(device)) {
        if (++found.markers > maxJpegMarkers)
            break;
        if (marker == startOfImage)
            continue;
        const QByteArray lengthBytes = device.read(2);
        if (lengthBytes.size() < 2)
            break;
        const int length =
            (static_cast<unsigned char>(lengthBytes[0]) << 8 | static_cast<unsigned char>(lengthBytes[1])) - 2;
        if (length < 0)
            continue;
        const QByteArray payload = device.read(length);
        if (marker == startOfScan)
            found.scans++;
        else if (isFrame(marker) && payload.size() >= 5)
            found.pixels = qint64(qFromBigEndian<quint16>(payload.constData() + 1))
                * qFromBigEndian<quint16>(payload.constData() + 3);
        else if (marker == app1)
            take(found.exif, payload, exifHeading) || take(found.xmp, payload, xmpHeading);
        else if (marker == app13 && found.resources.size() < longestResources) {
            QByteArray part;
            take(part, payload, resourceHeading);
            found.resources += part; // they go on in the next segment
        } else if (marker == comment && found.comment.isEmpty())
            found.comment = payload;
    }
    return found;
}
