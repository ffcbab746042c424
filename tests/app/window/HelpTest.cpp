// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include <QAction>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

/// The help's table of keys and the keys of the menus are the same.
class HelpTest : public QObject {
    Q_OBJECT

private:
    QSet<QString> m_told; ///< the keys of the help's table
    QList<QStringList> m_inMenus; ///< the keys of each entry that has any

    /// As the help calls them.
    static QString called(const QKeySequence& keys)
    {
        return keys.toString(QKeySequence::PortableText).replace("PgUp", "Page Up").replace("PgDown", "Page Down");
    }

private slots:
    void initTestCase()
    {
        setPreferences({});
        QFile file(QStringLiteral(HELP_TEXT));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString help = QString::fromUtf8(file.readAll());
        const qsizetype begin = help.indexOf("<h2>Keys</h2>");
        QVERIFY(begin >= 0);
        const QString table = help.mid(begin, help.indexOf("</table>", begin) - begin);
        for (const auto& key : QRegularExpression("<b>(.*?)</b>").globalMatch(table))
            m_told << key.captured(1);
        if (m_told.contains("1") && m_told.contains("9")) // told as "1 to 9"
            for (int digit = 2; digit < 9; digit++)
                m_told << QString::number(digit);

        Desk desk;
        for (const QAction* action : desk.window.findChildren<QAction*>()) {
            QStringList keys; // several where desktops differ
            for (const QKeySequence& key : action->shortcuts())
                keys << called(key);
            if (!keys.isEmpty())
                m_inMenus << keys;
        }
    }

    void eachKeyOfAMenuIsTold()
    {
        QVERIFY(m_inMenus.size() > 20);
        for (const QStringList& keys : m_inMenus)
            QVERIFY2(m_told.intersects({keys.begin(), keys.end()}), qPrintable(keys.join(", ")));
    }

    void eachKeyThatIsToldIsOfAMenu()
    {
        // What other keys do is tested where they are handled.
        const QSet<QString> ofNoMenu = {"Space", "Tab", "Return", "Esc"};
        for (const QString& key : m_told - ofNoMenu)
            QVERIFY2(std::ranges::any_of(m_inMenus, [&](const QStringList& keys) { return keys.contains(key); }),
                qPrintable(key));
    }
};

DESK_MAIN(HelpTest)
#include "HelpTest.moc"
