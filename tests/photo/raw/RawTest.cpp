// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"
#include "tests/photo/ThreadCount.h"

#include <QTest>

class RawTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void photosAreDevelopedUprightAndWithTheWhiteOfTheMoment()
    {
        // A grey under light of which the sensor sees half as much red, and as much blue again as half the green.
        const QList<double> neutral = {0.5, 1, 0.5};
        LoadedPhoto photo;
        const QByteArray file = samples::dng(QSize(96, 64), {0.2, 0.4, 0.2}, neutral, 6);
        QCOMPARE(samples::threadsBegunBy([&] { photo = samples::loaded(m_folder, file); }), 0);
        QCOMPARE(photo.reason, QString());
        QCOMPARE(photo.image.size(), QSize(64, 96));
        const QColor middle = photo.image.pixelColor(32, 48);
        QVERIFY(std::abs(middle.red() - middle.green()) <= 2 && std::abs(middle.blue() - middle.green()) <= 2);
        QVERIFY(middle.green() > 100);
    }

    void aPhotoThatClaimsTooMuchIsRefused()
    {
        QByteArray file = samples::dng(QSize(60000, 2), {0.2, 0.4, 0.2}, {1, 1, 1});
        const qsizetype height = file.indexOf(QByteArray("\1\1\3\0\1\0\0\0\2\0\0\0", 12));
        QVERIFY(height > 0);
        file.replace(height + 8, 2, QByteArray("\x60\xEA", 2));
        QVERIFY(samples::loaded(m_folder, file).image.isNull());
    }
};

QTEST_GUILESS_MAIN(RawTest)
#include "RawTest.moc"
