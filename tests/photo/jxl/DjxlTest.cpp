// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Converters.h"
#include "tests/photo/Samples.h"

#include <QFile>
#include <QTest>
#include <algorithm>
#include <cstring>

// JPEG XL photos have the pixels that the library's own converter finds in them.

namespace {

constexpr int width = 321, height = 283; // more than one group of 256, the last ones not whole

} // namespace

class DjxlTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    /// What the converter makes of the photo, as a PNG. Its own PNG of 16 bits with transparency is broken, so that it
    /// writes such a picture as an array of numbers.
    QString converted(const QString& photo, const QImage& given, int bits)
    {
        const QString picture = m_folder.filePath(QStringLiteral("converted.png"));
        if (!given.hasAlphaChannel() || bits == 8) {
            samples::run(DJXL, {photo, picture});
            return picture;
        }
        const QString numbers = m_folder.filePath(QStringLiteral("converted.npy"));
        samples::run(DJXL, {photo, numbers});
        const QByteArray bytes = samples::readFile(QFile::encodeName(numbers));
        const char* at = bytes.constEnd() - given.width() * given.height() * 16;
        QImage image(given.size(), QImage::Format_RGBA64);
        for (int y = 0; y < given.height(); y++)
            for (int x = 0; x < given.width(); x++, at += 16) {
                float pixel[4]; // a little over 1 or below 0 here and there
                std::memcpy(pixel, at, sizeof pixel);
                const auto number = [&](int i) { return quint16(qRound(std::clamp(pixel[i], 0.0f, 1.0f) * 65535)); };
                reinterpret_cast<QRgba64*>(image.scanLine(y))[x] =
                    QRgba64::fromRgba64(number(0), number(1), number(2), number(3));
            }
        image.save(picture);
        return picture;
    }

    QString encoded(const QString& given, const QStringList& options)
    {
        const QString photo = m_folder.filePath(QStringLiteral("photo.jxl"));
        samples::run(CJXL, QStringList{given, photo} + options);
        return photo;
    }

private slots:
    void pixelsAreTheConverters_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::addColumn<int>("bits");
        QTest::addColumn<QStringList>("options");
        const std::pair<const char*, QStringList> ways[] = {
            {"without loss", {"-d", "0"}}, {"with loss", {"-d", "1"}}, {"progressive", {"-d", "2", "-p"}}};
        for (const samples::Given& given : samples::toConvert(width, height))
            for (const auto& [name, options] : ways)
                QTest::addRow("%s, %s", given.name, name) << given.picture << given.bits << options;
    }
    void pixelsAreTheConverters()
    {
        QFETCH(QImage, picture);
        QFETCH(int, bits);
        QFETCH(QStringList, options);
        const QString photo = encoded(samples::png(m_folder, picture, bits), options);
        const int found = samples::largestDifference(photo, converted(photo, picture, bits));
        QVERIFY2(found <= 1, qPrintable(QString::number(found)));
    }

    void aTurnedJpegInsideHasThem_data()
    {
        QTest::addColumn<int>("orientation");
        for (int orientation = 1; orientation <= 8; orientation++)
            QTest::addRow("%d", orientation) << orientation;
    }
    void aTurnedJpegInsideHasThem()
    {
        QFETCH(int, orientation);
        const QByteArray jpeg = samples::encoded(samples::noise(width, height), "jpeg");
        const QString given = m_folder.filePath(QStringLiteral("given.jpg"));
        samples::writeFile(QFile::encodeName(given), samples::withCameraExif(jpeg, orientation));
        const QString photo = encoded(given, {});
        const int found = samples::largestDifference(photo, converted(photo, {}, 8));
        QVERIFY2(found <= 1, qPrintable(QString::number(found)));
    }
};

QTEST_GUILESS_MAIN(DjxlTest)
#include "DjxlTest.moc"
