// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Photo.h"

#include "render/Scaled.h"
#include "tests/app/Desk.h"

#include <QColorSpace>
#include <QtTest>

class PhotoTest : public QObject {
    Q_OBJECT

private slots:
    void thereIsNoneAtFirst()
    {
        const Photo photo;
        QVERIFY(photo.isNull() && photo.original().isNull() && photo.display().isNull() && photo.thumb().isNull());
        QVERIFY(photo.filePath.isEmpty() && photo.fileName().isEmpty() && photo.metadata.exif.isEmpty());
    }

    void thePictureIsKeptAndCopied()
    {
        Photo photo;
        const QImage picture = makePhoto(300, 200);
        photo.setOriginal(picture, 150, 1);
        QVERIFY(!photo.isNull());
        QCOMPARE(photo.original().cacheKey(), picture.cacheKey()); // not a copy of it
        QCOMPARE(photo.display().size(), QSize(150, 100));
        QCOMPARE(photo.thumb().size(), QSize(150, 100));
    }

    void copiesHaveTheirSizes_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<qreal>("density");
        QTest::addColumn<QSize>("display");
        QTest::addColumn<QSize>("thumb");
        QTest::newRow("wide") << QSize(1200, 800) << 1.0 << QSize(800, 533) << QSize(150, 100);
        QTest::newRow("high") << QSize(800, 1200) << 1.0 << QSize(533, 800) << QSize(100, 150);
        QTest::newRow("square, never reduced") << QSize(900, 900) << 1.0 << QSize(900, 900) << QSize(100, 100);
        QTest::newRow("small") << QSize(64, 48) << 1.0 << QSize(64, 48) << QSize(133, 100);
        QTest::newRow("sharp screen") << QSize(1200, 800) << 2.0 << QSize(800, 533) << QSize(300, 200);
        QTest::newRow("as long as may be") << QSize(4, 40) << 1.0 << QSize(4, 40) << QSize(100, 1000);
        QTest::newRow("longer") << QSize(3, 700) << 1.0 << QSize(3, 700) << QSize(100, 1000);
    }
    void copiesHaveTheirSizes()
    {
        QFETCH(QSize, picture);
        QFETCH(qreal, density);
        Photo photo;
        photo.setOriginal(makePhoto(picture.width(), picture.height()), 800, density);
        QTEST(photo.display().size(), "display");
        QTEST(photo.thumb().size(), "thumb");
    }

    void aThumbnailIsMadeOfTheDisplayCopyWhereThatIsTwiceAsLarge()
    {
        Photo photo;
        const QImage picture = makePhoto(600, 400);
        photo.setOriginal(picture, 300, 1);
        QCOMPARE(photo.thumb(), scaledTo(photo.display(), QSize(150, 100)));
        photo.setOriginal(picture, 299, 1);
        QCOMPARE(photo.thumb(), scaledTo(picture, QSize(150, 100)));
    }

    void anotherPictureReplacesAllOfIt()
    {
        Photo photo;
        photo.setOriginal(makePhoto(300, 200), 800, 1);
        QImage red(300, 200, QImage::Format_RGB32);
        red.fill(Qt::red);
        photo.setOriginal(red, 800, 1);
        for (const QImage& copy : {photo.original(), photo.display(), photo.thumb()})
            QCOMPARE(copy.pixel(copy.rect().center()), qRgb(255, 0, 0));
    }

    void anotherPictureKeepsMetadataAndName()
    {
        Photo photo;
        photo.metadata.exif = "what the camera wrote";
        photo.filePath = "/photos/a \xff.jpg";
        photo.setOriginal(makePhoto(30, 20), 800, 1);
        QCOMPARE(photo.metadata.exif, QByteArray("what the camera wrote"));
        QCOMPARE(photo.filePath, QByteArray("/photos/a \xff.jpg"));
        QCOMPARE(photo.fileName(), QByteArray("a \xff.jpg"));
    }

    void itsOwnPictureCanBeTakenAgain()
    {
        Photo photo;
        photo.setOriginal(makePhoto(300, 200), 100, 1);
        photo.setOriginal(photo.original(), 200, 1);
        QCOMPARE(photo.original().size(), QSize(300, 200));
        QCOMPARE(photo.display().size(), QSize(200, 133));
    }

    void aCopyStaysWhatItWas()
    {
        Photo photo;
        photo.setOriginal(makePhoto(30, 20), 800, 1);
        const Photo former = photo;
        photo.setOriginal(makePhoto(20, 30), 800, 1);
        QCOMPARE(former.original(), makePhoto(30, 20));
        QCOMPARE(former.display().size(), QSize(30, 20));
    }

    void theColourSpaceIsKept()
    {
        QImage picture = makePhoto(300, 200);
        picture.setColorSpace(QColorSpace::SRgb);
        Photo photo;
        photo.setOriginal(picture, 100, 1);
        for (const QImage& copy : {photo.original(), photo.display(), photo.thumb()})
            QCOMPARE(copy.colorSpace(), QColorSpace(QColorSpace::SRgb));
    }
};

QTEST_APPLESS_MAIN(PhotoTest)
#include "PhotoTest.moc"
