// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookButton.h"
#include "app/controls/LookStrip.h"
#include "tests/app/Desk.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
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
    /// What a person can use: each stands whole in the window, or in the strip that scrolls.
    static QWidgetList controls(Desk& desk)
    {
        QWidgetList all;
        for (auto* widget : desk.find<QWidget>("centralwidget")->findChildren<QWidget*>())
            if (widget->isVisible()
                && (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget)
                    || qobject_cast<QLabel*>(widget) || qobject_cast<QSlider*>(widget)
                    || widget->objectName() == "mainImageView" || widget->objectName() == "filtersBox"))
                all << widget;
        return all;
    }

    static QRect placeIn(const QWidget* ancestor, const QWidget* widget)
    {
        return {widget->mapTo(ancestor, QPoint()), widget->size()};
    }

    /// The first control that is clipped or that lies outside or on another; empty where all is well.
    static QString whatIsClipped(Desk& desk)
    {
        auto* strip = desk.find<LookStrip>("filtersBox");
        const QWidget* central = desk.find<QWidget>("centralwidget");
        const QWidgetList all = controls(desk);
        for (const QWidget* widget : all) {
            const auto* turn = qobject_cast<const QPushButton*>(widget); // its sign is narrower than words are
            const bool isSign = turn && turn->text().size() == 1;
            const bool mayElide = widget->objectName() == "filtersText";
            const QSize need = widget->minimumSizeHint();
            if (widget->height() < need.height() || (!isSign && !mayElide && widget->width() < need.width())
                || (isSign && widget->width() < 2 * widget->fontMetrics().horizontalAdvance(turn->text())))
                return widget->objectName() + " is clipped";
            const QWidget* ground = strip->widget()->isAncestorOf(widget) ? strip->widget() : central;
            if (!ground->rect().contains(placeIn(ground, widget)))
                return widget->objectName() + " lies outside";
            for (const QWidget* other : all)
                if (other != widget && !strip->widget()->isAncestorOf(widget) && !strip->widget()->isAncestorOf(other)
                    && placeIn(central, widget).intersects(placeIn(central, other)))
                    return widget->objectName() + " lies on " + other->objectName();
        }
        const int bar = strip->horizontalScrollBar()->isVisible() ? strip->horizontalScrollBar()->height() : 0;
        if (strip->height() < strip->widget()->minimumSizeHint().height() + bar)
            return "the strip is clipped";
        if (!desk.window.rect().contains(placeIn(&desk.window, central)))
            return "the window is clipped";
        return {};
    }

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
