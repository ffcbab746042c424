// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/Appearance.h"
#include "tests/app/Desk.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <algorithm>
#include <cmath>
#include <map>

// What can be told apart on the screen, measured in its pixels: 1 is nothing, 21 is black and white.

namespace {

constexpr double enough = 4.5;

double luminance(QRgb colour)
{
    const auto light = [](int value) {
        const double v = value / 255.0;
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * light(qRed(colour)) + 0.7152 * light(qGreen(colour)) + 0.0722 * light(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

/// The most frequent colour.
QRgb ground(const QImage& picture)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++)
            counts[picture.pixel(x, y)]++;
    return std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; })->first;
}

QImage painted(QWidget& widget)
{
    return pixelsOf(widget.grab().toImage());
}

/// Of what is written or drawn to its ground: the third strongest pixel's, as one alone is no sign.
double contrastOfSigns(const QImage& picture)
{
    const QRgb below = ground(picture);
    std::vector<double> all;
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++)
            all.push_back(contrast(picture.pixel(x, y), below));
    std::ranges::nth_element(all, all.begin() + 2, std::greater());
    return all[2];
}

/// Of what has changed between two pictures of a widget, to what was there: that of the nth pixel, the strongest first.
double contrastOfChange(const QImage& before, const QImage& after, int pixels)
{
    std::vector<double> all;
    for (int y = 0; y < before.height(); y++)
        for (int x = 0; x < before.width(); x++)
            all.push_back(contrast(before.pixel(x, y), after.pixel(x, y)));
    std::ranges::nth_element(all, all.begin() + pixels, std::greater());
    return all[std::size_t(pixels)];
}

#define CLEAR(measured, what)                                                                                          \
    {                                                                                                                  \
        const double found = measured;                                                                                 \
        if (found < enough)                                                                                            \
            m_faint << QStringLiteral("%1: %2").arg(what).arg(found, 0, 'f', 2);                                       \
    }

} // namespace

class ContrastTest : public QObject {
    Q_OBJECT

private:
    QStringList m_faint;

private slots:
    void init() { m_faint.clear(); }

    void everythingIsSeen_data()
    {
        QTest::addColumn<bool>("high");
        QTest::newRow("as it is described") << false;
        QTest::newRow("with high contrast") << true;
    }

    void everythingIsSeen()
    {
        QFETCH(bool, high);
        useDarkAppearance(high);
        Desk desk(makePhoto(600, 400));
        QWidget* central = desk.find<QWidget>("centralwidget");
        desk.click("btnHelga");

        // Words on their ground, also of what is of no use now.
        for (QLabel* label : central->findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                CLEAR(contrastOfSigns(painted(*label)), label->text());
        for (auto* button : central->findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || button->text().isEmpty())
                continue;
            const bool isLook = qobject_cast<QToolButton*>(button);
            const int text = button->fontMetrics().height() + 8; // below the picture of a look
            const auto words = [&] {
                const QImage all = painted(*button);
                if (auto* box = qobject_cast<QCheckBox*>(button))
                    return all.copy(box->height(), 0, all.width() - box->height(), all.height());
                return isLook ? all.copy(8, all.height() - text, all.width() - 16, text - 4)
                              : all.copy(4, 4, all.width() - 8, all.height() - 8);
            };
            CLEAR(contrastOfSigns(words()), button->text());
            button->setEnabled(false);
            CLEAR(contrastOfSigns(words()), button->text() + " without use");
            button->setEnabled(true);
            if (isLook)
                continue;
            button->setDown(true);
            CLEAR(contrastOfSigns(words()), button->text() + " pressed");
            button->setDown(false);
        }
        for (auto* popUp : central->findChildren<QComboBox*>())
            CLEAR(contrastOfSigns(painted(*popUp).copy(5, 5, popUp->width() - 30, popUp->height() - 10)),
                popUp->objectName());

        // With high contrast a control is told from the window by its frame.
        for (const char* name : {"btnLoad", "btnFlatten", "btnBorders", "btnImgSize"}) {
            const QImage framed = painted(*desk.find<QWidget>(name));
            if (high)
                CLEAR(contrast(framed.pixel(0, framed.height() / 2), qRgb(51, 51, 51)), QString("frame of ") + name);
        }
        if (high) {
            auto* slider = desk.find<QSlider>("sldStrength");
            QStyleOptionSlider option;
            option.initFrom(slider);
            option.maximum = slider->maximum();
            option.sliderPosition = option.sliderValue = slider->value();
            const QRect handle =
                slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
            // The handle is light without one, but not as light.
            QCOMPARE(painted(*slider).pixelColor(handle.left(), handle.center().y()),
                slider->palette().color(QPalette::WindowText));
        }

        // Marks: a tick, and the sign of an applied look.
        auto* box = desk.find<QCheckBox>("chkRandomness");
        const QImage off = painted(*box);
        {
            const QSignalBlocker quiet(box);
            box->setChecked(true);
            CLEAR(contrastOfChange(off, painted(*box), 12), "tick");
            box->setChecked(false);
        }
        auto* look = desk.find<QToolButton>("btnCinema");
        const QImage without = painted(*look);
        {
            const QSignalBlocker quiet(look);
            look->setChecked(true);
            const QImage with = painted(*look);
            CLEAR(contrastOfChange(without, with, look->width()), "sign of a look, to the window");
            const QRect line(10, with.height() - 12, with.width() - 20, 12);
            CLEAR(contrastOfSigns(with.copy(line)), "sign of a look, on its button");
            look->setChecked(false);
        }

        // Where the keys go.
        QWidgetList stops;
        for (auto* widget : central->findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
                stops << widget;
        auto* view = desk.find<QWidget>("mainImageView");
        view->setFocus(Qt::MouseFocusReason);
        std::map<QWidget*, QImage> before;
        for (QWidget* stop : stops)
            before[stop] = painted(*stop);
        for (qsizetype i = 0; i < 2 * stops.size(); i++) {
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
            QWidget* stop = desk.window.focusWidget();
            if (!before.contains(stop))
                continue;
            CLEAR(contrastOfChange(before[stop], painted(*stop), stop->height()), "focus on " + stop->objectName());
            before.erase(stop);
        }
        QVERIFY(stops.size() > 20);
        QVERIFY2(before.empty(), "the keys do not go to all");
        QVERIFY2(m_faint.isEmpty(), qPrintable(m_faint.join("\n")));
    }

    void menusAndFieldsAreSeen_data() { everythingIsSeen_data(); }

    void menusAndFieldsAreSeen()
    {
        QFETCH(bool, high);
        useDarkAppearance(high);
        Desk desk(makePhoto(600, 400));
        auto* bar = desk.find<QMenuBar>("menubar");
        CLEAR(contrastOfSigns(painted(*bar).copy(0, 0, 200, bar->height() - 2)), "menu bar");
        QMenu* menu = bar->actions().at(2)->menu();
        menu->popup(QPoint());
        for (QAction* action : menu->actions()) {
            if (action->isSeparator())
                continue;
            const QRect place = menu->actionGeometry(action).adjusted(4, 2, -4, -2);
            menu->setActiveAction(nullptr);
            CLEAR(contrastOfSigns(painted(*menu).copy(place)), action->text());
            if (!action->isEnabled())
                continue;
            menu->setActiveAction(action);
            CLEAR(contrastOfSigns(painted(*menu).copy(place)), action->text() + " chosen");
        }
        menu->hide();
        QLineEdit field;
        field.setPlaceholderText("Name");
        field.resize(200, field.sizeHint().height());
        if (high)
            CLEAR(contrast(painted(field).pixel(0, field.height() / 2), qRgb(51, 51, 51)), "frame of a field");
        CLEAR(contrastOfSigns(painted(field).copy(4, 4, 190, field.height() - 8)), "hint in a field");
        field.setText("Name");
        CLEAR(contrastOfSigns(painted(field).copy(4, 4, 190, field.height() - 8)), "field");
        field.selectAll();
        CLEAR(contrastOfSigns(painted(field).copy(6, 6, 30, field.height() - 12)), "chosen text");
        QLabel tip("Tip");
        tip.setPalette(
            QPalette(qApp->palette().color(QPalette::ToolTipText), qApp->palette().color(QPalette::ToolTipBase)));
        CLEAR(contrast(qApp->palette().color(QPalette::ToolTipText).rgb(),
                  qApp->palette().color(QPalette::ToolTipBase).rgb()),
            "tip");
        Desk empty;
        CLEAR(contrastOfSigns(painted(*empty.find<QWidget>("mainImageView"))), "invitation");
        QVERIFY2(m_faint.isEmpty(), qPrintable(m_faint.join("\n")));
    }
};

DESK_MAIN(ContrastTest)
#include "ContrastTest.moc"
