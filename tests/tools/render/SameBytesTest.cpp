// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "render/FramingChoice.h"
#include "tests/app/Desk.h"
#include "tests/photo/Samples.h"
#include "tests/tools/render/RenderRun.h"

#include <QAction>
#include <QFile>
#include <QSlider>
#include <cstdlib>
#include <memory>

using namespace lumora;

/// The real window and the real program make the same file, byte for byte, by the same choices.
class SameBytesTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Desk> m_desk;
    QByteArray m_photo;

    static QByteArray nameOf(int look) { return CharImage::getFilterName(look); }

    /// What the window saves now.
    QByteArray saved()
    {
        const QString path = m_desk->folder.filePath("saved.jpg");
        QFile::remove(path);
        printedBy([&] { m_desk->saveAs(path); });
        return contentsOf(QFile::encodeName(path));
    }

    QByteArray rendered(const QList<QByteArray>& options)
    {
        const ByteFolder folder;
        const RenderRun::Ended ended =
            runRender(folder.path(), options + QList<QByteArray>{"--output", "out.jpg", m_photo});
        if (ended.status != 0)
            qFatal("%s", ended.err.constData());
        return samples::readFile(folder.path("out.jpg"));
    }

    /// What the window makes of the photo now, encoded as it saves. Lightleak draws numbers of its own in each render,
    /// and the window's come from its last preview: here they come from `seed`.
    QByteArray madeBySeed(const std::function<void()>& seed)
    {
        seed();
        return encodeJpeg(m_desk->window.saveMultipleFilters(false), loadPhoto(m_photo).metadata);
    }

    void compare(const QList<QByteArray>& options) { compare(options, saved()); }
    void compare(const QList<QByteArray>& options, const QByteArray& mine)
    {
        QVERIFY(mine.size() > 500);
        QVERIFY2(rendered(options) == mine, options.join(' ').constData());
    }

    void trigger(const QString& text)
    {
        for (QAction* action : m_desk->window.findChildren<QAction*>())
            if (action->text().remove('&') == text)
                return action->trigger();
        qFatal("there is no %s", qPrintable(text));
    }

private slots:
    void init()
    {
        setPreferences({});
        m_desk = std::make_unique<Desk>();
        m_photo = QFile::encodeName(m_desk->folder.filePath("photo.jpg"));
        samples::writeFile(m_photo, samples::withCameraExif(samples::encoded(makePhoto(120, 80), "jpeg"), 1));
        QVERIFY(m_desk->window.loadImageFromFile(m_photo));
    }

    void cleanup() { CharImage::useRandom = 0; }

    void everyLook()
    {
        compare({});
        const GrowArray<int> looks = CharImage::getLooks();
        QCOMPARE(looks.numThings, 15);
        for (int i = 0; i < looks.numThings; i++) {
            m_desk->window.pressFilterButton(looks.theArray[i]);
            const QList<QByteArray> options = {"--look", nameOf(looks.theArray[i]).toUpper()};
            if (looks.theArray[i] == Filter::lightleak)
                compare(options, madeBySeed([] { std::srand(1); }));
            else
                compare(options);
        }
    }

    void everyCropAndBorder()
    {
        m_desk->window.pressFilterButton(Filter::instant);
        for (const QString& crop : cropChoices()) {
            m_desk->choose("btnCropping", crop.toLatin1());
            compare({"--look", "Instant", "--crop", crop.toLatin1()});
        }
        for (const QString& border : borderChoices()) {
            m_desk->choose("btnBorders", border.toLatin1());
            compare({"--look", "Instant", "--crop", "none", "--border", border.toLatin1()});
        }
    }

    void severalSizes()
    {
        m_desk->window.pressFilterButton(Filter::cinema);
        for (const char* size : {"Original", "1600", "100", "600"}) {
            m_desk->choose("btnImgSize", size);
            compare({"--look", "Cinema", "--size", size});
        }
    }

    void aStackInPart()
    {
        m_desk->click("chkMultiFilter");
        for (const int look : {Filter::mono, Filter::helga, Filter::look1974})
            m_desk->window.pressFilterButton(look);
        compare({"--look", "Mono", "--look", "Helga", "--look", "1974"});
        m_desk->find<QSlider>("sldStrength")->setValue(40);
        compare({"--look", "Mono", "--look", "Helga", "--look", "1974", "--strength", "40"});
    }

    void oneVariation()
    {
        const auto seed = [] {
            std::srand(7);
            CharImage::renewRandomNumbers();
        };
        seed();
        m_desk->click("chkRandomness");
        for (const int look : {Filter::lolo, Filter::instant, Filter::lightleak}) {
            m_desk->window.pressFilterButton(look);
            const QList<QByteArray> options = {"--look", nameOf(look), "--random", "7"};
            compare(options, look == Filter::lightleak ? madeBySeed(seed) : saved());
        }
    }

    void everyQuality()
    {
        for (const char* entry : {"High", "Best", "Standard"}) {
            trigger(entry);
            compare({"--quality", entry});
        }
    }

    void everyMetadataLevel()
    {
        QList<QByteArray> files;
        for (const auto& [entry, level] : {std::pair("Everything it carried", "all"),
                 std::pair("Everything but the place", "no-place"), std::pair("Nothing", "none")}) {
            trigger(entry);
            compare({"--metadata", level});
            files << saved();
        }
        QVERIFY(files[0].size() > files[1].size() && files[1].size() > files[2].size());
    }
};

DESK_MAIN(SameBytesTest)
#include "SameBytesTest.moc"
