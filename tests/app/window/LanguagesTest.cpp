// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookButton.h"
#include "app/controls/LookStrip.h"
#include "app/desktop/Language.h"
#include "app/panels/SaveManyPanel.h"
#include "app/preview/DragDropImageView.h"
#include "photo/Reason.h"
#include "tests/app/Clipping.h"
#include "tests/app/Desk.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSlider>
#include <QUrl>
#include <cstdio>
#include <cstring>

/// The window in each language, and in one that is read from the right.
class LanguagesTest : public QObject {
    Q_OBJECT

private:
    QUrl m_opened; ///< last, by the desktop

    static void allLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const QString& language : QStringList(QString()) + languages())
            QTest::addRow("%s", language.isEmpty() ? "en" : qPrintable(language)) << language;
    }

    static void useFetched()
    {
        QFETCH(QString, language);
        useLanguage(language);
        QCOMPARE(usedLanguage(), language);
    }

    /// The texts of the entries or controls that the same letter opens; empty where each has its own.
    static QStringList sharedLetters(const QStringList& texts)
    {
        QMap<QString, QStringList> byLetter;
        for (const QString& text : texts)
            if (const QKeySequence letter = QKeySequence::mnemonic(text); !letter.isEmpty())
                byLetter[letter.toString()] << text;
        QStringList shared;
        for (const QStringList& same : byLetter)
            if (same.size() > 1)
                shared << same.join(" and ");
        return shared;
    }

    static QStringList texts(const QList<QAction*>& actions)
    {
        QStringList all;
        for (const QAction* action : actions)
            all << action->text();
        return all;
    }

    template <class Widget> static QStringList texts(const QWidget& parent)
    {
        QStringList all;
        for (const auto* widget : parent.findChildren<Widget*>())
            all << widget->text();
        return all;
    }

    static void useFont(qreal factor)
    {
        static const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * factor);
        QApplication::setFont(font);
    }

    static int middleOf(Desk& desk, const char* name)
    {
        auto* widget = desk.find<QWidget>(name);
        return widget->mapTo(&desk.window, widget->rect().center()).x();
    }

public slots:
    void noteOpened(const QUrl& url) { m_opened = url; }

private slots:
    void init() { setPreferences({}); }
    void cleanup()
    {
        useLanguage({});
        useFont(1);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void thereAreLanguages() { QVERIFY(languages().contains("de") && languages().contains("ja")); }

    void theDesktopSaysWhich_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("language");
        QTest::newRow("none") << "C"
                              << ""
                              << "";
        QTest::newRow("English") << "en_GB.UTF-8"
                                 << ""
                                 << "";
        QTest::newRow("German") << "de_AT.UTF-8"
                                << ""
                                << "de";
        QTest::newRow("Japanese") << "ja_JP.UTF-8"
                                  << ""
                                  << "ja";
        QTest::newRow("unknown") << "sv_SE.UTF-8"
                                 << ""
                                 << "";
        QTest::newRow("the second") << "sv_SE.UTF-8"
                                    << "sv:fr"
                                    << "fr";
        QTest::newRow("English before the second") << "en_US.UTF-8"
                                                   << "en_US:de"
                                                   << "";
    }

    void theDesktopSaysWhich()
    {
        QFETCH(QString, lang);
        QFETCH(QString, wanted);
        QFETCH(QString, language);
        QProcess self;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("LC_ALL");
        environment.remove("LC_MESSAGES");
        environment.insert("LANG", lang);
        environment.insert("LANGUAGE", wanted);
        self.setProcessEnvironment(environment);
        self.start(QApplication::applicationFilePath(), {"--language-of-desktop"});
        QVERIFY(self.waitForFinished());
        QCOMPARE(QString::fromUtf8(self.readAllStandardOutput()), language);
    }

    void nothingIsClipped_data() { allLanguages(); }
    void nothingIsClipped()
    {
        useFetched();
        for (const qreal factor : {1.0, 1.5, 2.0}) {
            useFont(factor);
            Desk desk(makePhoto(300, 200));
            const QSize least = desk.window.minimumSizeHint();
            // In large letters the window gets wider, but never wider than a laptop's screen.
            const QSize most = factor == 1.0 ? QSize(900, 480) : QSize(1440, 540);
            QVERIFY2(least.width() <= most.width() && least.height() <= most.height(),
                qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
            for (const QSize size : {least, QSize(900, 480).expandedTo(least), QSize(1180, 800).expandedTo(least)}) {
                desk.window.resize(size);
                QTRY_COMPARE(desk.window.size(), size);
                QTRY_COMPARE(whatIsClipped(desk), QString());
            }
        }
    }

    /// And so it is in each menu with what can be taken back, in the bar below the photo with the menu bar, and in
    /// panels.
    void noLetterIsThereTwice_data() { allLanguages(); }
    void noLetterIsThereTwice()
    {
        useFetched();
        Desk desk(makePhoto(300, 200));
        desk.click("btnHelga");
        desk.click("btnLolo");
        desk.window.undo(); // both have names now
        int menus = 0;
        for (const auto* menu : desk.window.findChildren<QMenu*>()) {
            QCOMPARE(sharedLetters(texts(menu->actions())), QStringList());
            menus += menu->actions().isEmpty() ? 0 : 1;
        }
        QVERIFY(menus >= 8);
        const QWidget& bar = *desk.find<QWidget>("optionsBar");
        const QStringList inWindow = texts(desk.find<QMenuBar>("menubar")->actions()) + texts<QPushButton>(bar)
            + texts<QCheckBox>(bar) + texts<QLabel>(bar);
        QVERIFY(inWindow.size() >= 17);
        QCOMPARE(sharedLetters(inWindow), QStringList());

        const SaveManyPanel many(nullptr, {}, "Helga", [](QWidget&, SaveManyPanel::Asked) { return QStringList(); });
        QCOMPARE(sharedLetters(texts<QPushButton>(many)), QStringList());
        const QMessageBox platforms(QMessageBox::Warning, {}, {}, QMessageBox::Cancel);
        QCOMPARE(sharedLetters(texts<QPushButton>(platforms) << QCoreApplication::translate("SavePanel", "&Replace")
                                                             << QCoreApplication::translate("SavePanel", "&Keep both")),
            QStringList());
    }

    void thePlatformSpeaksItToo_data() { allLanguages(); }
    void thePlatformSpeaksItToo()
    {
        useFetched();
        const QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Cancel);
        QCOMPARE(box.button(QMessageBox::Cancel)->text().remove('&') == "Cancel", usedLanguage().isEmpty());
    }

    void helpIsInTheLanguageOfTheWindow()
    {
        QFile german(QCoreApplication::applicationDirPath() + "/../share/lumora/help_de.pdf");
        QVERIFY(QDir().mkpath(QFileInfo(german).path()) && german.open(QIODevice::WriteOnly));
        useLanguage("de");
        Desk desk;
        QDesktopServices::setUrlHandler("file", this, "noteOpened");
        desk.window.openHelp();
        QDesktopServices::unsetUrlHandler("file");
        QCOMPARE(m_opened.fileName(), QString("help_de.pdf"));
        german.remove();
    }

    /// What is chosen, stored and rendered does not depend on how it is called.
    void aChoiceIsTheSame_data() { allLanguages(); }
    void aChoiceIsTheSame()
    {
        const auto outcome = [] {
            setPreferences({});
            Desk desk(makePhoto(300, 200));
            desk.click("btnInstant");
            QByteArrayList told;
            for (const char* name : {"btnBorders", "btnCropping", "btnImgSize"}) {
                auto* popUp = desk.find<QComboBox>(name);
                for (int i = popUp->count() - 1; i >= 0; i--) {
                    popUp->setCurrentIndex(i);
                    told << QByteArray::number(desk.window.cropFilter) + ' '
                            + QByteArray::number(desk.window.borderFilter) + ' '
                            + QByteArray::number(desk.window.imgOutputSize);
                }
                popUp->setCurrentIndex(2);
            }
            desk.window.saveOptions();
            const QByteArray stored = contentsOf(QFile::encodeName(preferencesFile()));
            return told << stored.left(stored.indexOf("[Recent]")); // the photo lies elsewhere each time
        };
        const QByteArrayList inEnglish = outcome();
        QVERIFY(inEnglish.contains("4 4 -1") && inEnglish.last().contains("BorderStyle=2"));
        useFetched();
        QCOMPARE(outcome(), inEnglish);
    }

    void reasonsOfOtherProcessesAreTranslated_data() { allLanguages(); }
    void reasonsOfOtherProcessesAreTranslated()
    {
        useFetched();
        const bool english = usedLanguage().isEmpty();
        const QString large = "The picture is too large: 60000 x 50000 pixels. At most 512 megapixels can be opened.";
        QCOMPARE(Reason::translated(large) == large, english);
        for (const char* number : {"60000", "50000", "512"})
            QCOMPARE(Reason::translated(large).count(number), 1);
        QVERIFY(!Reason::translated(large).contains('%'));
        for (const char* strange : {"", "100 %1 are 7 %2", "%n"})
            QCOMPARE(Reason::translated(strange), QString(strange));

        Desk desk;
        QFile file(desk.folder.filePath("text.png"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
        file.close();
        QVERIFY(!desk.window.loadImageFromFile(QFile::encodeName(file.fileName())));
        const QString reason = "The file is not a picture of a kind that can be read.";
        QCOMPARE(desk.sheet().value(1), Reason::translated(reason));
        QCOMPARE(desk.sheet().value(1) == reason, english);
    }

    void fromTheRightTheWindowIsMirrored()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        Desk desk(makePhoto(300, 200));
        QVERIFY(middleOf(desk, "btnLoad") > middleOf(desk, "btnSave"));
        QVERIFY(middleOf(desk, "btnOriginal") > middleOf(desk, "btnHelga"));
        QVERIFY(middleOf(desk, "btnLeft") < middleOf(desk, "btnRight")); // as they turn
        const QImage words = desk.find<QLabel>("filtersText")->grab().toImage();
        int lastInk = 0;
        for (int x = 0; x < words.width(); x++)
            for (int y = 0; y < words.height(); y++)
                if (words.pixel(x, y) != words.pixel(0, 0))
                    lastInk = x;
        QVERIFY(lastInk > words.width() - 10);
        QCOMPARE(whatIsClipped(desk), QString());
        desk.window.resize(900, 480);
        QTRY_COMPARE(whatIsClipped(desk), QString());
    }

    /// An arrow goes where it points.
    void fromTheRightArrowsGoWhereTheyPoint()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QApplication::setLayoutDirection(direction);
            Desk desk(makePhoto(300, 200));
            auto* lolo = desk.find<QWidget>("btnLolo");
            for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) {
                lolo->setFocus(Qt::TabFocusReason);
                const int before = lolo->mapTo(&desk.window, QPoint()).x();
                QTest::keyClick(lolo, key);
                const QWidget* now = desk.window.focusWidget();
                QVERIFY(now != lolo && qobject_cast<const LookButton*>(now));
                QCOMPARE(now->mapTo(&desk.window, QPoint()).x() < before, key == Qt::Key_Left);
            }
            desk.click("btnMono");
            auto* strength = desk.find<QSlider>("sldStrength");
            strength->setValue(50);
            strength->setFocus();
            QTest::keyClick(strength, Qt::Key_Left); // as its handle moves
            QCOMPARE(strength->value() < 50, direction == Qt::LeftToRight);
        }
    }

    /// Photos are not read from anywhere: they stay as they are, and before stays on the left of after.
    void fromTheRightPhotosAreNotMirrored()
    {
        QList<QImage> seen;
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QApplication::setLayoutDirection(direction);
            Desk desk(makePhoto(300, 200));
            desk.click("btnMono");
            auto* view = desk.find<DragDropImageView>("mainImageView");
            view->setSplit(true);
            const QPixmap grabbed = view->grab(view->imageRect().toRect());
            seen << grabbed.toImage();
            const QColor left = seen.last().pixelColor(20, seen.last().height() - 20),
                         right = seen.last().pixelColor(seen.last().width() - 20, 20);
            QVERIFY(left.saturation() > 0 && right.saturation() == 0); // under Mono all is grey
        }
        QCOMPARE(seen[0].size(), seen[1].size());
        QCOMPARE(seen[0], seen[1]);
    }
};

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--language-of-desktop") == 0)
        return std::fputs(qPrintable(languageOfDesktop()), stdout) < 0;
    return runTest(argc, argv, [] { return new LanguagesTest; });
}
#include "LanguagesTest.moc"
