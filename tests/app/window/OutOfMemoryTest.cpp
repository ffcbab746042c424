// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"
#include "tests/photo/ScarceMemory.h"

#include <QMenuBar>

class OutOfMemoryTest : public QObject {
    Q_OBJECT

private slots:
    // First, as the large photo below leaves freed blocks behind that would hold the enlarged picture.
    void aPictureThatCannotBeEnlargedIsNotSaved()
    {
        Desk desk(makePhoto(60, 60));
        desk.choose("btnImgSize", "1600");
        const ScarceMemory memory(6 << 20);
        desk.click("btnSave");
        QCOMPARE(desk.sheet(),
            QStringList({"The photo cannot be saved.",
                "There is not enough free memory for a picture of 1600 x 1600 pixels."}));
    }

    void formerPhotosTakeAQuarterOfTheFreeMemory()
    {
        Desk desk(makePhoto(2000, 1500)); // 12 million bytes
        const ScarceMemory memory(100 << 20);
        for (int i = 0; i < 4; i++)
            desk.click("btnFlatten");
        QCOMPARE(desk.sheet(), QStringList());
        int taken = 0;
        for (; desk.window.menuBar()->actions().at(1)->menu()->actions().at(0)->isEnabled(); taken++)
            desk.window.undo();
        QVERIFY2(taken == 1 || taken == 2, qPrintable(QString::number(taken)));
    }

    void aPhotoThatCannotBeTurnedStays()
    {
        Desk desk(makePhoto(6000, 3000));
        const qint64 photo = desk.window.getoriginalImage().cacheKey();
        const qint64 preview = desk.find<DragDropImageView>("mainImageView")->image().cacheKey();
        const ScarceMemory memory(30 << 20);
        desk.click("btnRight");
        QCOMPARE(desk.sheet(),
            QStringList({"The photo cannot be turned.",
                "There is not enough free memory for a picture of 3000 x 6000 pixels."}));
        QCOMPARE(desk.window.getoriginalImage().cacheKey(), photo);
        QCOMPARE(desk.find<DragDropImageView>("mainImageView")->image().cacheKey(), preview);
    }
};

DESK_MAIN(OutOfMemoryTest)
#include "OutOfMemoryTest.moc"
