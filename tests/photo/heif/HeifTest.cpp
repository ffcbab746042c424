// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/heif/DecodedPlanes.h"
#include "photo/formats/heif/ItemReferences.h"
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"

#include <QTest>

namespace {

using samples::bigEndian;

QByteArray box(const QByteArray& type, const QByteArray& content)
{
    return bigEndian(quint32(8 + content.size())) + type + content;
}

/// A file of nothing but references: `layers` of pictures, each made of all the pictures of the next layer.
QByteArray madeOfLayers(const QList<int>& layers)
{
    QByteArray references(4, '\0');
    quint16 number = 1;
    for (qsizetype layer = 0; layer + 1 < layers.size(); layer++) {
        const auto next = quint16(number + layers[layer]);
        QByteArray parts = bigEndian(quint16(layers[layer + 1]));
        for (int i = 0; i < layers[layer + 1]; i++)
            parts += bigEndian(quint16(next + i));
        for (; number < next; number++)
            references += box("dimg", bigEndian(number) + parts);
    }
    return box("meta", QByteArray(4, '\0') + box("iref", references));
}

} // namespace

class HeifTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void aBombIsRefusedAtOnce()
    {
        QByteArray file = samples::heif(samples::quarters(64, 64), samples::HeifKind::Hevc);
        for (qsizetype at = file.indexOf("ispe"); at >= 0; at = file.indexOf("ispe", at + 4))
            file.replace(at + 8, 8, bigEndian(quint32(20000)) + bigEndian(quint32(20000)));
        const QString reason = samples::loaded(m_folder, file).reason;
        QVERIFY2(reason.startsWith("The picture is too large: 20000 x 20000 pixels."), qPrintable(reason));
    }

    void aPictureWithoutDataIsRefused_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("HEIC") << int(samples::HeifKind::Hevc);
        QTest::newRow("AVIF") << int(samples::HeifKind::Av1);
    }
    void aPictureWithoutDataIsRefused()
    {
        QFETCH(int, kind);
        QByteArray file = samples::heif(samples::quarters(64, 64), samples::HeifKind(kind));
        const qsizetype data = file.indexOf("mdat") + 4;
        const qsizetype size = file.lastIndexOf(bigEndian(quint32(file.size() - data)), data - 9);
        QVERIFY(size > 0); // where the file tells of it
        file.replace(size, 4, QByteArray(4, '\0'));
        QVERIFY(samples::loaded(m_folder, file).reason.contains("damaged"));
    }

    void aPictureThatIsMadeOfItselfIsRefused()
    {
        // The transparency, a grid as the picture itself, has the picture in place of its tile.
        QImage picture(32, 24, QImage::Format_RGBA8888);
        picture.fill(QColor(200, 100, 50, 51));
        QByteArray file = samples::heif(picture, samples::HeifKind::Hevc);
        const qsizetype tile = file.indexOf(QByteArray("dimg\0\4\0\1\0\3", 10));
        QVERIFY(tile > 0);
        file.replace(tile, 10, QByteArray("dimg\0\4\0\1\0\2", 10));
        QVERIFY(samples::loaded(m_folder, file).reason.contains("damaged"));
    }

    void picturesAreMadeOfSoManyOthers()
    {
        const QList<int> deep(9, 1);
        QVERIFY(itemsComeToAnEnd(madeOfLayers(deep)));
        QVERIFY(!itemsComeToAnEnd(madeOfLayers(deep + QList<int>{1})));
        QVERIFY(itemsComeToAnEnd(madeOfLayers({1, 10000})));
        QVERIFY(itemsComeToAnEnd(madeOfLayers({1, 8, 8, 8, 8, 8})));
        QVERIFY(!itemsComeToAnEnd(madeOfLayers({1, 10, 10, 10, 10, 10, 10})));
    }

    void theKindMayStandAmongTheOthers_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("HEIC") << int(samples::HeifKind::Hevc);
        QTest::newRow("AVIF") << int(samples::HeifKind::Av1);
    }
    void theKindMayStandAmongTheOthers()
    {
        QFETCH(int, kind);
        QByteArray file = samples::heif(samples::quarters(64, 64), samples::HeifKind(kind));
        QCOMPARE(samples::loaded(m_folder, file.replace(8, 4, "isom")).reason, QString());
        // The version after the first one may look like a kind, and what follows the list as well.
        const QByteArray film = box("ftyp", "isommif1mp42") + box("mif1", QByteArray(100, '\0'));
        QVERIFY(samples::loaded(m_folder, film).reason.startsWith("The file is not a picture of a kind"));
    }

    void whatAPictureSaysOfItsColoursGoesAlong()
    {
        const quint8 pixels[16] = {};
        for (const bool isFullRange : {true, false}) {
            const DecodedPlanes planes = {
                heif_chroma_monochrome, {{pixels, 4, 4, 4, 8}, {}, {}}, {12, 13, 6, isFullRange}};
            heif_image* image = nullptr;
            QCOMPARE(copyPlanes(planes, &image).code, heif_error_Ok);
            heif_color_profile_nclx* colours = nullptr;
            QCOMPARE(heif_image_get_nclx_color_profile(image, &colours).code, heif_error_Ok);
            QCOMPARE(int(colours->color_primaries), 12);
            QCOMPARE(int(colours->transfer_characteristics), 13);
            QCOMPARE(int(colours->matrix_coefficients), 6);
            QCOMPARE(bool(colours->full_range_flag), isFullRange);
            heif_nclx_color_profile_free(colours);
            heif_image_release(image);
        }
    }
};

QTEST_GUILESS_MAIN(HeifTest)
#include "HeifTest.moc"
