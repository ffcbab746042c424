// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/LookList.h"
#include "image/FilterNumber.h"

#include <QtTest>
#include <vector>

using namespace lumora::Filter;

class LookListTest : public QObject {
    Q_OBJECT

private:
    static void add(LookList& list, const std::vector<int>& looks)
    {
        for (int look : looks)
            list.add(look);
    }
    static std::vector<int> looksOf(const LookList& list) { return {list.theArray, list.theArray + list.numThings}; }

private slots:
    void aPressInSingleModeGivesOneLookOrNone()
    {
        LookList list;
        list.press(helga, false);
        QCOMPARE(looksOf(list), (std::vector<int>{helga}));
        list.press(lolo, false);
        QCOMPARE(looksOf(list), (std::vector<int>{lolo}));
        list.press(lolo, false);
        QCOMPARE(looksOf(list), std::vector<int>());
    }

    void aPressInMultiModeStacks()
    {
        LookList list;
        for (int look : {helga, lolo, mono})
            list.press(look, true);
        QCOMPARE(looksOf(list), (std::vector<int>{helga, lolo, mono}));
        list.press(cinema, true);
        QCOMPARE(looksOf(list), (std::vector<int>{helga, lolo, mono, cinema}));
        list.press(lolo, true);
        QCOMPARE(looksOf(list), (std::vector<int>{helga, mono, cinema}));
    }

    void aPressInSingleModeEndsAStack()
    {
        LookList list;
        add(list, {helga, mono});
        list.press(helga, false); // of the stack only this one stays, and then it is switched off
        QCOMPARE(looksOf(list), std::vector<int>());
        add(list, {helga, mono});
        list.press(lolo, false);
        QCOMPARE(looksOf(list), (std::vector<int>{lolo}));
    }

    void onlyWhatIsInTheListIsRemoved()
    {
        LookList list;
        add(list, {helga, mono});
        list.remove(lolo);
        QCOMPARE(looksOf(list), (std::vector<int>{helga, mono}));
        list.remove(helga);
        QCOMPARE(looksOf(list), (std::vector<int>{mono}));
    }

    void onlyWhatIsInTheListIsKept()
    {
        LookList list;
        add(list, {helga, mono, lolo});
        list.keepOnly(mono);
        QCOMPARE(looksOf(list), (std::vector<int>{mono}));
        list.keepOnly(lolo);
        QCOMPARE(looksOf(list), std::vector<int>());
        list.keepOnly(list.last());
        QCOMPARE(looksOf(list), std::vector<int>());
    }

    void theLastOfAnEmptyListIsOriginal()
    {
        LookList list;
        QCOMPARE(list.last(), int(original));
        add(list, {helga, cinema});
        QCOMPARE(list.last(), cinema);
    }

    void originalIsShownForAnEmptyList()
    {
        LookList list;
        QVERIFY(list.isShownAsApplied(original) && !list.isShownAsApplied(colorcross));
        add(list, {colorcross});
        QVERIFY(!list.isShownAsApplied(original) && list.isShownAsApplied(colorcross));
        QVERIFY(!list.isShownAsApplied(helga));
    }
};

QTEST_APPLESS_MAIN(LookListTest)
#include "LookListTest.moc"
