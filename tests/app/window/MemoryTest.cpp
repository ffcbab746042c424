// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include <malloc.h>
#include <unistd.h>

class MemoryTest : public QObject {
    Q_OBJECT

private:
    /// What the program holds, in KiB, without what the allocator only keeps at hand.
    static double heldMemory()
    {
        malloc_trim(0);
        QFile file("/proc/self/statm");
        if (!file.open(QIODevice::ReadOnly))
            qFatal("the system does not tell the memory");
        return file.readAll().split(' ')[1].toDouble() * double(getpagesize()) / 1024;
    }

private slots:
    void fiveHundredPhotosLeaveNothingBehind()
    {
        setPreferences({});
        Desk desk;
        const QByteArray photos[] = {writePhoto(desk.folder, "landscape.png", makePhoto(640, 420)),
            writePhoto(desk.folder, "portrait.png", makePhoto(300, 500)),
            writePhoto(desk.folder, "square.png", makePhoto(400, 400))};
        const char* const looks[] = {"btnHelga", "btnMono", "btnCinema", "btnFishEye", "btnInstant"};
        const QString saved = desk.folder.filePath("saved.jpg");
        double early = 0;
        const Answers answers(button("Replace"));
        for (int i = 1; i <= 500; i++) {
            QVERIFY(desk.window.loadImageFromFile(photos[i % 3]));
            desk.click(looks[i % 5]);
            desk.click(i % 2 ? "btnLeft" : "btnRight");
            desk.saveAs(saved);
            if (i == 50)
                early = heldMemory();
        }
        const double late = heldMemory();
        QVERIFY2(late <= early * 1.1, qPrintable(QStringLiteral("%1 KiB, then %2 KiB").arg(early).arg(late)));
        qInfo("%.0f KiB after 50, %.0f KiB after 500", early, late);
    }
};

DESK_MAIN(MemoryTest)
#include "MemoryTest.moc"
