#include "photo/JpegMarkers.h"

#include <QIODevice>

namespace {

constexpr int startOfImage = 0xD8, endOfImage = 0xD9, startOfScan = 0xDA, app1 = 0xE1;
constexpr char exifHeading[6] = {'E', 'x', 'i', 'f', 0, 0};

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
        else if (marker == app1 && found.exif.isEmpty() && payload.startsWith(QByteArrayView(exifHeading, 6)))
            found.exif = payload.mid(6);
    }
    return found;
}
