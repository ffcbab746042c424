// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Converters.h"

#include "tests/photo/Samples.h"

#include <QColorSpace>
#include <QFile>
#include <QProcess>

namespace samples {

QImage transparentRamps(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGBA64);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            picture.setPixelColor(x, y,
                QRgba64::fromRgba64(quint16(x * 65535 / (width - 1)), quint16(y * 65535 / (height - 1)),
                    quint16((x * y * 97 + x * 31) % 65536 / 2 + (x + y) * 32767 / (width + height)),
                    quint16((width - 1 - x + y) * 65535 / (width + height - 2))));
    return picture;
}

QImage deepRamps(int width, int height)
{
    QImage picture = transparentRamps(width, height);
    picture.reinterpretAsFormat(QImage::Format_RGBX64);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            reinterpret_cast<QRgba64*>(picture.scanLine(y))[x].setAlpha(65535);
    return picture;
}

QList<Given> toConvert(int width, int height)
{
    const QImage opaque = deepRamps(width, height), transparent = transparentRamps(width, height);
    QImage wide = opaque, adobe = opaque;
    wide.setColorSpace(QColorSpace::DisplayP3);
    adobe.setColorSpace(QColorSpace::AdobeRgb);
    return {{"8 bits", opaque, 8}, {"deep", opaque, 16}, {"8 bits, transparent", transparent, 8},
        {"deep, transparent", transparent, 16}, {"8 bits, Display P3", wide, 8}, {"deep, Display P3", wide, 16},
        {"8 bits, Adobe RGB", adobe, 8}, {"grey", opaque.convertToFormat(QImage::Format_Grayscale8), 8}};
}

void run(const char* program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QString::fromUtf8(program), arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s %s: %s", program, qPrintable(arguments.join(' ')), process.readAll().constData());
}

QString png(const QTemporaryDir& folder, const QImage& picture, int bits)
{
    const bool hasAlpha = picture.hasAlphaChannel();
    const QImage::Format deep = hasAlpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64;
    const QImage::Format shallow = hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
    const bool isGrey = picture.isGrayscale() && !hasAlpha;
    const QImage stored = picture.convertToFormat(isGrey ? QImage::Format_Grayscale8 : bits == 16 ? deep : shallow);
    const QString path = folder.filePath(QStringLiteral("given.png"));
    if (!stored.save(path, "png"))
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

int largestDifference(const QString& file, const QString& otherFile)
{
    const LoadedPhoto photo = loadPhoto(QFile::encodeName(file)), other = loadPhoto(QFile::encodeName(otherFile));
    if (photo.image.isNull() || other.image.isNull()) {
        qWarning("%s", qPrintable(photo.reason + other.reason));
        return 256;
    }
    return largestDifference(photo.image, other.image);
}

} // namespace samples
