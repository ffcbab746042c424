// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/FreeMemory.h"
#include "tests/photo/ScarceMemory.h"

#include <QTest>

class FreeMemoryTest : public QObject {
    Q_OBJECT

private slots:
    void aLimitLeavesWhatIsNotTaken()
    {
        constexpr qint64 left = 100 << 20, page = 4096;
        const ScarceMemory memory(left);
        const qint64 told = freeMemory();
        QVERIFY2(told <= left && told > left - 100 * page, qPrintable(QString::number(told)));
    }

    void aSystemHasSome()
    {
        QFile memory("/proc/meminfo");
        QVERIFY(memory.open(QIODevice::ReadOnly));
        const qint64 all = memory.readLine().simplified().split(' ').at(1).toLongLong() * 1024;
        QVERIFY(freeMemory() > 0 && freeMemory() < all);
    }
};

QTEST_GUILESS_MAIN(FreeMemoryTest)
#include "FreeMemoryTest.moc"
