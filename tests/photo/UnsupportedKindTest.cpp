// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"
#include "tests/photo/TiffSample.h"

#include <QTest>

// What is no photo, or of a kind that nothing here reads, is not called damaged.

namespace {

template <class T> QByteArray littleEndian(T value)
{
    QByteArray bytes(sizeof(T), 0);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray bmp(int headerSize, int bits)
{
    const QByteArray header = littleEndian(quint32(headerSize)) + littleEndian(quint32(4)) + littleEndian(quint32(2))
        + littleEndian(quint16(1)) + littleEndian(quint16(bits)) + QByteArray(headerSize - 16, '\0');
    const QByteArray data(200, 'x');
    return "BM" + littleEndian(quint32(14 + header.size() + data.size())) + QByteArray(4, '\0')
        + littleEndian(quint32(14 + header.size())) + header + data;
}

} // namespace

class UnsupportedKindTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void rareKindsAreNotCalledDamaged_data()
    {
        QTest::addColumn<QByteArray>("file");
        for (int bits : {2, 4, 6, 10, 12, 14, 24})
            QTest::addRow("tiff of %d bits", bits)
                << samples::tiff(samples::tiffPicture(8, 8, bits, 3, 2), {QByteArray(8 * 3 * bits, 'x')});
        for (int size : {52, 56})
            QTest::addRow("bmp with a header of %d bytes", size) << bmp(size, 24);
        QTest::newRow("bmp of 2 bits") << bmp(40, 2);
    }
    void rareKindsAreNotCalledDamaged()
    {
        QFETCH(QByteArray, file);
        QCOMPARE(samples::loaded(m_folder, file).reason, "The picture is of a kind that is not supported.");
    }

    void otherKindsAreCalledDamaged()
    {
        QCOMPARE(samples::loaded(m_folder, samples::tiff(samples::tiffPicture(80, 80, 8, 3, 2), {"x"})).reason,
            "The picture is damaged and cannot be read.");
    }

    void iconsAreNoPhotosWhateverTheirName()
    {
        for (const char* name : {"photo.ico", "photo.png", "photo"})
            QCOMPARE(samples::loaded(m_folder, samples::encoded(samples::noise(16, 16), "ico"), name).reason,
                "The file is not a picture of a kind that can be read.");
        for (const char* name : {"photo.ico", "photo.svg", "photo.pdf", "photo.icns"})
            QCOMPARE(
                samples::loaded(m_folder, samples::encoded(samples::noise(16, 16), "png"), name).reason, QString());
    }
};

QTEST_GUILESS_MAIN(UnsupportedKindTest)
#include "UnsupportedKindTest.moc"
