// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"
#include "tests/photo/ThreadCount.h"

#include <QColorSpace>
#include <QTest>
#include <QTransform>

// HEIC, AVIF and JPEG XL photos, of whatever libraries this program is built with.

namespace {

constexpr const char* names[] = {"HEIC", "AVIF", "JPEG XL"};
const QList<int> kinds = {
#ifdef LUMORA_HEIF
    0,
    1,
#endif
#ifdef LUMORA_JXL
    2,
#endif
};

void eachKind()
{
    QTest::addColumn<int>("kind");
    for (const int kind : kinds)
        QTest::newRow(names[kind]) << kind;
}

/// A file of the kind with that picture; `kind`: 0 HEIC, 1 AVIF, 2 JPEG XL.
QByteArray encoded(int kind, const QImage& picture, int orientation = 1, const PhotoMetadata& carried = {})
{
    return kind == 2 ? samples::jxl(picture, orientation, samples::JxlKind::Lossless, carried)
                     : samples::heif(picture, samples::HeifKind(kind), orientation, carried);
}

} // namespace

class PhoneFormatsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    int m_threads = 0;

    LoadedPhoto open(const QByteArray& file)
    {
        LoadedPhoto photo;
        m_threads += samples::threadsBegunBy([&] { photo = samples::loaded(m_folder, file); });
        return photo;
    }

private slots:
    void init() { m_threads = 0; }
    void cleanup() { QCOMPARE(m_threads, 0); }

    void everyPictureOpensUpright_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("orientation");
        for (const int kind : kinds)
            for (int orientation : {1, 3, 6, 8})
                QTest::addRow("%s, %d", names[kind], orientation) << kind << orientation;
    }
    void everyPictureOpensUpright()
    {
        QFETCH(int, kind);
        QFETCH(int, orientation);
        const QImage upright = samples::quarters(96, 64);
        const int turns = orientation == 3 ? 180 : orientation == 6 ? -90 : orientation == 8 ? 90 : 0;
        const QImage stored = upright.transformed(QTransform().rotate(turns));
        // What the file carries says the same, and does not turn the picture once more.
        const PhotoMetadata carried = {samples::cameraExif(orientation), "<x/>"};
        const LoadedPhoto photo = open(encoded(kind, stored, orientation, carried));
        QVERIFY(!photo.metadata.exif.isEmpty());
        QCOMPARE(photo.reason, QString());
        QVERIFY(samples::showsQuarters(photo.image, upright.size()));
        if (kind == 2)
            QCOMPARE(samples::largestDifference(photo.image, upright), 0);
    }

    void transparencyLiesOnWhite_data() { eachKind(); }
    void transparencyLiesOnWhite()
    {
        QFETCH(int, kind);
        QImage picture(64, 64, QImage::Format_RGBA8888);
        picture.fill(QColor(200, 100, 50, 51));
        const LoadedPhoto photo = open(encoded(kind, picture));
        QVERIFY(samples::largestDifference(photo.image, samples::flat(64, 64, QColor(244, 224, 214))) <= 3);
    }

    void profilesAreConverted_data() { eachKind(); }
    void profilesAreConverted()
    {
        QFETCH(int, kind);
        QImage picture = samples::flat(64, 64, QColor(64, 64, 64));
        picture.setColorSpace(QColorSpace::SRgbLinear);
        const LoadedPhoto photo = open(encoded(kind, picture));
        QVERIFY(samples::largestDifference(photo.image, samples::flat(64, 64, QColor(137, 137, 137))) <= 3);
    }

#ifdef LUMORA_HEIF
    void coloursMayHaveNumbers_data()
    {
        QTest::addColumn<int>("primaries");
        QTest::addColumn<QColor>("colour"); // of (128, 64, 64), by the published matrices to sRGB
        QTest::newRow("BT.709") << 1 << QColor(128, 64, 64);
        QTest::newRow("BT.2020") << 9 << QColor(154, 49, 62);
        QTest::newRow("P3") << 12 << QColor(138, 59, 62);
    }
    void coloursMayHaveNumbers()
    {
        QFETCH(int, primaries);
        QFETCH(QColor, colour);
        QByteArray file = samples::heif(samples::flat(64, 64, QColor(128, 64, 64)), samples::HeifKind::Av1);
        const qsizetype numbers = file.indexOf("colrnclx");
        QVERIFY(numbers > 0);
        file[numbers + 9] = char(primaries);
        file[numbers + 11] = 13; // the curve of sRGB
        const LoadedPhoto photo = open(file);
        QVERIFY(samples::largestDifference(photo.image, samples::flat(64, 64, colour)) <= 3);
    }
#endif

    void aCutFileIsRefused_data()
    {
        eachKind();
    }
    void aCutFileIsRefused()
    {
        QFETCH(int, kind);
        const QByteArray file = encoded(kind, samples::noise(48, 48));
        for (qsizetype size = 1; size < file.size() - 8; size += 1 + file.size() / 40) {
            const LoadedPhoto photo = open(file.first(size));
            QVERIFY2(photo.image.isNull(), qPrintable(QString::number(size)));
            QVERIFY(!photo.reason.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(PhoneFormatsTest)
#include "PhoneFormatsTest.moc"
