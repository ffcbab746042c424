// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookButton.h"
#include "app/controls/LookStrip.h"
#include "tests/app/Clipping.h"
#include "tests/app/Desk.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

// What stands where in the window, at every size. Run at several densities of the screen.

namespace {

QFont enlarged(QFont font, qreal factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

class LayoutTest : public QObject {
    Q_OBJECT

private:
    static void resizeTo(Desk& desk, const QSize& size)
    {
        desk.window.resize(size);
        QTRY_COMPARE(desk.window.size(), size);
        QApplication::sendPostedEvents();
        QTRY_COMPARE(whatIsClipped(desk), QString());
    }

    static void setFactor(qreal factor)
    {
        static const QFont usual = QApplication::font();
        QApplication::setFont(enlarged(usual, factor));
    }

private slots:
    void init() { setPreferences({}); }
    void cleanup() { setFactor(1); }

    void nothingIsClipped_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("font");
        for (const QSize size :
            {QSize(900, 480), QSize(911, 480), QSize(960, 500), QSize(1180, 800), QSize(2560, 1440)})
            for (const qreal font : {1.0, 1.5})
                if (font == 1.0 || size.width() >= 1180)
                    QTest::addRow("%d x %d, font x %.1f", size.width(), size.height(), font) << size << font;
    }

    void nothingIsClipped()
    {
        QFETCH(QSize, size);
        QFETCH(qreal, font);
        setFactor(font);
        for (const QSize photo : {QSize(), QSize(300, 200), QSize(200, 300)}) {
            Desk desk(photo.isEmpty() ? QImage() : makePhoto(photo.width(), photo.height()));
            resizeTo(desk, size);
            if (QTest::currentTestFailed())
                return;
        }
    }

    void theLayoutSaysHowSmallTheWindowMayBe()
    {
        Desk desk;
        const QSize least = desk.window.minimumSizeHint();
        QVERIFY2(least.width() <= 900 && least.height() <= 480,
            qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
        desk.window.resize(100, 100);
        QTRY_COMPARE(desk.window.size(), least);
        QCOMPARE(whatIsClipped(desk), QString());

        setFactor(1.5);
        QTRY_VERIFY(desk.window.minimumSizeHint().width() > least.width());
        QTRY_COMPARE(desk.window.width(), desk.window.minimumSizeHint().width());
        QCOMPARE(whatIsClipped(desk), QString());
    }

    void theStripFollowsTheFont()
    {
        Desk desk;
        QCOMPARE(whatIsClipped(desk), QString());
        resizeTo(desk, {2560, 1440});
        auto* strip = desk.find<QWidget>("filtersBox");
        const int usual = strip->height();
        for (auto* button : desk.find<LookStrip>("filtersBox")->buttons())
            button->setFont(enlarged(button->font(), 1.5));
        QTRY_VERIFY(strip->height() > usual);
        QTRY_COMPARE(whatIsClipped(desk), QString());
    }

    void thumbnailsGrowWithTheWindow()
    {
        Desk desk(makePhoto(300, 300));
        const auto side = [&] { return desk.window.filterButtons.theArray[3]->iconSize(); };
        resizeTo(desk, {900, 480});
        QCOMPARE(side(), QSize(72, 72));
        resizeTo(desk, {2560, 1440});
        QCOMPARE(side(), QSize(120, 120));
        resizeTo(desk, {2560, 900});
        QCOMPARE(side(), QSize(100, 100));
        resizeTo(desk, {900, 480});
        QCOMPARE(side(), QSize(72, 72));
    }

    void theFirstPhotoMovesNothing()
    {
        for (const QSize size : {QSize(900, 480), QSize(1180, 800)}) {
            Desk desk;
            resizeTo(desk, size);
            const QRect strip = desk.find<LookStrip>("filtersBox")->geometry();
            QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a.png", makePhoto(300, 200))));
            QApplication::sendPostedEvents();
            QCOMPARE(desk.find<LookStrip>("filtersBox")->geometry(), strip);
        }
    }

    /// A picture has the pixels that it takes on the screen, whatever the photo's shape.
    void thumbnailsHaveTheScreensPixels()
    {
        for (const QSize photo : {QSize(900, 900), QSize(1200, 800), QSize(800, 1200)}) {
            Desk desk(makePhoto(photo.width(), photo.height()));
            for (const QSize size : {QSize(900, 480), QSize(2560, 1440)}) {
                resizeTo(desk, size);
                const QToolButton* button = desk.window.filterButtons.theArray[1];
                const int pixels = qRound(button->iconSize().width() * desk.window.devicePixelRatioF());
                QTRY_VERIFY(button->icon().availableSizes().first().width() >= pixels);
                const QImage& thumb = desk.window.getoriginalThumb();
                QTRY_VERIFY(qMin(thumb.width(), thumb.height()) >= pixels);
                QCOMPARE(button->icon().pixmap(button->iconSize(), desk.window.devicePixelRatioF()).size(),
                    QSize(pixels, pixels));
            }
        }
    }

    /// The copy's shorter side is 100 points as long as no thumbnail needs more.
    void thumbnailsAreMadeAnewOnlyWhereTheyNeedMorePixels()
    {
        Desk desk(makePhoto(300, 200));
        const qreal density = desk.window.devicePixelRatioF();
        const auto icon = [&] { return desk.window.filterButtons.theArray[1]->icon().cacheKey(); };
        const auto settle = [&](const QSize& size) { // after which the copy for the preview has grown
            desk.window.displayRes = 800;
            resizeTo(desk, size);
            QTRY_VERIFY(desk.window.displayRes > 800);
        };
        const qint64 small = icon();
        settle({1500, 900}); // where 100 points are enough
        QCOMPARE(icon(), small);
        QCOMPARE(desk.window.getoriginalThumb().height(), qRound(100 * density));
        settle({2560, 1440});
        QVERIFY(icon() != small);
        QCOMPARE(desk.window.getoriginalThumb().height(), qRound(120 * density));
    }
};

DESK_MAIN(LayoutTest)
#include "LayoutTest.moc"
