// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include <QDir>
#include <QLabel>

/// Saves to the disk at SMALL_DISK.
class SmallDisk : public QObject {
    Q_OBJECT

private slots:
    void thePanelStaysOpenUntilThePhotoFits()
    {
        setPreferences({});
        const QDir disk(qEnvironmentVariable("SMALL_DISK"));
        QVERIFY(disk.exists() && disk.isEmpty());
        Desk desk(makePhoto(1200, 900));
        desk.withPanel(
            [&](QFileDialog& panel) {
                typeName(panel, disk.filePath("large.jpg"));
                QVERIFY(panel.isVisible());
                QStringList lines;
                for (const QLabel* label : panel.findChildren<QLabel*>())
                    if (label->isVisible())
                        lines << label->text();
                QVERIFY(lines.contains("“large.jpg” cannot be saved there. The disk is full."));
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
        QVERIFY(disk.isEmpty());
        desk.choose("btnImgSize", "100");
        desk.saveAs(disk.filePath("small.jpg"));
        QCOMPARE(disk.entryList(QDir::Files | QDir::Hidden), QStringList("small.jpg"));
    }
};

DESK_MAIN(SmallDisk)
#include "SmallDisk.moc"
