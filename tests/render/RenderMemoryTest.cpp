// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/RenderPipeline.h"
#include "tests/photo/Samples.h"
#include "tests/photo/ScarceMemory.h"

#include <QTest>
#include <memory>

class RenderMemoryTest : public QObject {
    Q_OBJECT

private slots:
    void memoryThatGoesDuringTheRenderIsNoCrash()
    {
        const QImage strip = samples::noise(1, 5000);
        RenderSettings settings;
        settings.cropFilter = lumora::Filter::square;
        std::unique_ptr<ScarceMemory> memory;
        QString reason;
        const auto takeMemory = [&](const char*) { memory = std::make_unique<ScarceMemory>(10 << 20); };
        QVERIFY(renderPhoto(strip, settings, takeMemory, &reason).isNull());
        QCOMPARE(reason, QString("There is not enough free memory for a picture of 5000 x 5000 pixels."));
    }
};

QTEST_GUILESS_MAIN(RenderMemoryTest)
#include "RenderMemoryTest.moc"
