// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the inputs that the fuzz targets start from: make_seeds FOLDER
//
// There is one folder for each target, named after it. The files are small, and together they use every feature of the
// formats.

#include "image/FilterNumber.h"
#include "photo/reader/Message.h"
#include "tests/photo/PhoneSamples.h"

#include <QColorSpace>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QtEndian>
#include <cstdio>
#include <utility>

namespace {

bool write(const QString& folder, const QString& name, const QByteArray& bytes)
{
    QFile file(folder + '/' + name);
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

template <class Number> QByteArray big(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// Rows of 4 x 3 pixels, or as good as.
QByteArray ramp(int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; i++)
        bytes += char(i * 37);
    return bytes;
}

QByteArray tga(int type, int bits, int mapBits, int corner)
{
    const bool mapped = type % 8 == 1;
    QByteArray file("\2", 1);
    file += char(mapped);
    file += char(type);
    file += QByteArray("\0\0", 2) + char(mapped ? 12 : 0) + '\0' + char(mapped ? mapBits : 0);
    file += QByteArray("\0\0\0\0\4\0\3\0", 8) + char(bits) + char(corner << 4 | (bits == 32 ? 8 : 0)) + "id";
    if (mapped)
        file += ramp(12 * ((mapBits + 7) / 8));
    const int pixel = (bits + 7) / 8;
    if (type > 8)
        return file + char(0x85) + ramp(pixel) + char(5) + ramp(6 * pixel);
    return file + ramp(12 * pixel) + QByteArray(495, '\3') + char(file.size() + 12 * pixel) + QByteArray(7, '\0')
        + QByteArray("TRUEVISION-XFILE.\0", 18);
}

QByteArray psd(int mode, int bits, int channels, bool wide, bool runLength, const QByteArray& profile)
{
    QByteArray file = "8BPS" + big(quint16(wide ? 2 : 1)) + QByteArray(6, '\0') + big(quint16(channels));
    file += big(quint32(3)) + big(quint32(4)) + big(quint16(bits)) + big(quint16(mode));
    file += mode == 2 ? big(quint32(768)) + ramp(768) : big(quint32(0));
    const QByteArray resource =
        "8BIM" + big(quint16(0x040f)) + QByteArray(2, '\0') + big(quint32(profile.size())) + profile;
    file += big(quint32(resource.size())) + resource;
    const QByteArray layers = (wide ? big(quint64(2)) : big(quint32(2))) + big(qint16(-1));
    file += (wide ? big(quint64(layers.size())) : big(quint32(layers.size()))) + layers;
    file += big(quint16(runLength));
    const int row = bits == 1 ? 1 : 4 * bits / 8, rows = channels * 3;
    if (!runLength)
        return file + ramp(row * rows);
    for (int i = 0; i < rows; i++)
        file += wide ? big(quint32(2)) : big(quint16(2));
    for (int i = 0; i < rows; i++)
        file += QByteArray(1, char(1 - row)) + char(i * 50);
    return file;
}

bool makePictures(const QString& folder)
{
    bool made = true;
    for (int type : {1, 2, 3, 9, 10, 11})
        for (int bits : {8, 15, 16, 24, 32}) {
            if ((type % 8 == 2) == (bits == 8) || (type % 8 == 3 && bits != 8))
                continue;
            const QByteArray file =
                type % 8 == 1 ? tga(type, bits == 16 ? 16 : 8, bits, 0) : tga(type, bits, 0, bits & 3);
            const QString name = QStringLiteral("%1-%2.tga").arg(type).arg(bits);
            made = made && write(folder + "/TgaFuzz", name, file) && write(folder + "/LoaderFuzz", name, file);
        }
    const QByteArray profile = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    const int kinds[][3] = {{0, 1, 1}, {1, 8, 1}, {1, 16, 2}, {2, 8, 1}, {3, 8, 3}, {3, 8, 4}, {3, 16, 3}, {3, 32, 3},
        {4, 8, 4}, {4, 16, 5}, {7, 8, 3}, {8, 8, 1}, {9, 8, 3}, {9, 16, 3}};
    for (const auto& [mode, bits, channels] : kinds)
        for (int layout = 0; layout < 4; layout++) {
            const QByteArray file =
                psd(mode, bits, channels, layout & 1, layout & 2, mode == 3 ? profile : QByteArray());
            const QString name = QStringLiteral("%1-%2-%3-%4.psd").arg(mode).arg(bits).arg(channels).arg(layout);
            made = made && write(folder + "/PsdFuzz", name, file) && write(folder + "/LoaderFuzz", name, file);
        }
    QImage image(7, 5, QImage::Format_RGBA8888);
    image.fill(QColor(200, 100, 50, 150));
    image.setPixelColor(2, 3, Qt::green);
    image.setColorSpace(QColorSpace::AdobeRgb);
    for (const QByteArray& format : QImageWriter::supportedImageFormats()) {
        QDir().mkpath(folder + "/LoaderFuzz");
        QImageWriter(folder + "/LoaderFuzz/small." + format, format).write(image);
    }
    return made;
}

/// Photos as phones and cameras write them; empty files of a format whose library is missing here.
bool makePhonePhotos(const QString& folder)
{
    QImage opaque(32, 24, QImage::Format_RGBX8888);
    for (int y = 0; y < opaque.height(); y++)
        for (int x = 0; x < opaque.width(); x++)
            opaque.setPixel(x, y, qRgb(x * 8, y * 10, (x ^ y) * 7));
    QImage transparent = opaque.convertToFormat(QImage::Format_RGBA8888);
    transparent.setPixelColor(3, 4, QColor(200, 100, 50, 51));
    QImage wide = opaque;
    wide.setColorSpace(QColorSpace::DisplayP3);
    bool made = true;
    const auto seed = [&](const char* target, const QString& name, const QByteArray& file) {
        made = made && write(folder + target, name, file) && write(folder + "/LoaderFuzz", name, file);
    };
    const std::pair<const char*, const QImage*> pictures[] = {
        {"opaque", &opaque}, {"transparent", &transparent}, {"wide", &wide}};
    for (const auto& [name, picture] : pictures)
        for (int orientation : {1, 6}) {
            const QString file = QStringLiteral("%1-%2").arg(name).arg(orientation);
            seed("/HeifFuzz", file + ".heic", samples::heif(*picture, samples::HeifKind::Hevc, orientation));
            seed("/HeifFuzz", file + ".avif", samples::heif(*picture, samples::HeifKind::Av1, orientation));
            seed("/JxlFuzz", file + ".jxl", samples::jxl(*picture, orientation));
            seed("/JxlFuzz", file + "-lossy.jxl", samples::jxl(*picture, orientation, samples::JxlKind::Lossy));
        }
    for (int orientation : {1, 6})
        seed("/RawFuzz", QStringLiteral("%1.dng").arg(orientation),
            samples::dng(QSize(32, 24), {0.2, 0.4, 0.3}, {0.5, 1, 0.5}, orientation));
    return made;
}

/// Answers of a reader behind the size of the memory that came with them, and the limits that it gets.
bool makeMessages(const QString& folder)
{
    const auto sized = [](qint64 sharedBytes, const QByteArray& message) {
        return QByteArray(reinterpret_cast<const char*>(&sharedBytes), sizeof sharedBytes) + message;
    };
    ReaderAnswer photo;
    photo.size = QSize(30, 20);
    photo.format = QImage::Format_RGB32;
    bool made = write(folder, "photo", sized(2400, packed(photo)));
    photo.format = QImage::Format_RGBX8888;
    photo.blocks = {5, 0, 70};
    made = made && write(folder, "blocks", sized(2475, packed(photo)));
    ReaderAnswer refusal;
    refusal.reason = QStringLiteral("It is “broken”.");
    return made && write(folder, "reason", sized(0, packed(refusal)))
        && write(folder, "limits", sized(0, packed(ReadingLimits{1 << 30, 3})));
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const QString folder = QFile::decodeName(argv[1]);
    bool made = makePictures(folder) && makePhonePhotos(folder) && makeMessages(folder + "/ReaderMessageFuzz");
    made = made
        && write(folder + "/PreferencesFuzz", "whole",
            "[General]\nBorderStyle=3\nCroppingStyle=2\nName=\"a, \\x41\"\nOutputSize=@Size(1 2)\nPrefsVersion=2\n"
            "UseMultiFilter=true\n")
        && write(
            folder + "/PreferencesFuzz", "odd", "; note\n[%General]\nPrefsVersion=@Variant(\\0\\0\\0\\b)\n[x\n=\n");
    for (int filter = 0; filter <= lumora::Filter::end; filter++)
        made = made && write(folder + "/EngineFuzz", QString::number(filter), ramp(40 + filter * 97) + char(filter));
    for (int look = 0; look < 20; look++)
        made = made && write(folder + "/LibraryFuzz", QString::number(look), ramp(60 + look * 61) + char(look));
    if (!made)
        std::fprintf(stderr, "make_seeds: cannot write to %s\n", argv[1]);
    return made ? 0 : 1;
}
