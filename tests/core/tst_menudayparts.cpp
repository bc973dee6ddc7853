// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menu.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// Adding and removing day parts.
class TestMenuDayparts : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void addedOneIsEmptyAndNotInUse();
    void addedOneForgetsWhatWasThere();
    void addedCopyHasEverything();
    void addUpToTheLast();
    void addTheFirst();
    void removeMovesTheLaterOnes_data();
    void removeMovesTheLaterOnes();
    void removeDownToNone();
    void removeOfTenResetsTheLast();
};

namespace {

// Told apart by name, flag and every bin.
Daypart marked(int mark)
{
    Daypart daypart;
    daypart.names = sameNameInAllLanguages(u"Part %1"_s.arg(mark));
    daypart.inUse = mark % 2 != 0;
    for (auto &row : daypart.bins)
        row = {mark, mark, mark, mark};
    daypart.bins[7][3] = -mark;
    return daypart;
}

Daypart named(const QStringList &names)
{
    Daypart daypart;
    daypart.names = names;
    return daypart;
}

Menu menuOf(int count)
{
    Menu menu;
    menu.dayparts = {};
    menu.daypartCount = count;
    for (int i = 0; i < count; ++i)
        menu.dayparts[std::size_t(i)] = marked(i + 1);
    return menu;
}

void compare(const Daypart &actual, const Daypart &expected)
{
    REQUIRE_EQUAL(actual.names, expected.names);
    REQUIRE_EQUAL(actual.inUse, expected.inUse);
    REQUIRE(actual.bins == expected.bins);
}

// The day parts with these marks, then vacant places.
void compareAll(const Menu &menu, const QList<int> &marks)
{
    REQUIRE_EQUAL(menu.daypartCount, marks.size());
    for (int i = 0; i < maxDayparts; ++i)
        compare(menu.dayparts[std::size_t(i)], i < marks.size() ? marked(marks[i]) : Daypart());
}

} // namespace

void TestMenuDayparts::addedOneIsEmptyAndNotInUse()
{
    Menu menu = menuOf(2);
    const QStringList names{u"Brunch"_s, u"Almuerzo"_s};
    menu.addDaypart(named(names));
    QCOMPARE(menu.daypartCount, 3);
    compare(menu.dayparts[0], marked(1));
    compare(menu.dayparts[1], marked(2));
    compare(menu.dayparts[2], named(names));
}

void TestMenuDayparts::addedOneForgetsWhatWasThere()
{
    Menu menu = menuOf(3);
    menu.daypartCount = 2;
    menu.addDaypart(named({u"Brunch"_s}));
    QVERIFY(!menu.dayparts[2].inUse);
    QVERIFY(menu.dayparts[2].bins == Daypart().bins);
    QCOMPARE(menu.dayparts[2].names, QStringList{u"Brunch"_s});
}

void TestMenuDayparts::addedCopyHasEverything()
{
    Menu menu = menuOf(3);
    menu.addDaypart(menu.dayparts[1]);
    compareAll(menu, {1, 2, 3, 2});
}

void TestMenuDayparts::addUpToTheLast()
{
    Menu menu = menuOf(9);
    menu.addDaypart(named({u"Last"_s}));
    QCOMPARE(menu.daypartCount, 10);
    QCOMPARE(menu.dayparts[9].names, QStringList{u"Last"_s});
    compare(menu.dayparts[8], marked(9));
}

void TestMenuDayparts::addTheFirst()
{
    Menu menu = menuOf(0);
    menu.addDaypart(named({u"Only"_s}));
    QCOMPARE(menu.daypartCount, 1);
    QCOMPARE(menu.dayparts[0].names, QStringList{u"Only"_s});
}

void TestMenuDayparts::removeMovesTheLaterOnes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    for (int count = 1; count <= maxDayparts; ++count) {
        for (int index = 0; index < count; ++index)
            QTest::addRow("%d of %d", index + 1, count) << count << index;
    }
}

void TestMenuDayparts::removeMovesTheLaterOnes()
{
    QFETCH(int, count);
    QFETCH(int, index);
    Menu menu = menuOf(count);
    menu.removeDaypart(index);
    QList<int> left;
    for (int mark = 1; mark <= count; ++mark)
        left.append(mark);
    left.removeAt(index);
    compareAll(menu, left);
}

void TestMenuDayparts::removeDownToNone()
{
    Menu menu = menuOf(3);
    menu.removeDaypart(1);
    compareAll(menu, {1, 3});
    menu.removeDaypart(0);
    compareAll(menu, {3});
    menu.removeDaypart(0);
    compareAll(menu, {});
}

void TestMenuDayparts::removeOfTenResetsTheLast()
{
    Menu menu = menuOf(10);
    menu.removeDaypart(0);
    compare(menu.dayparts[8], marked(10));
    compare(menu.dayparts[9], Daypart());
    menu.addDaypart(named({u"Again"_s}));
    QCOMPARE(menu.daypartCount, 10);
    QVERIFY(menu.dayparts[9].bins == Daypart().bins);
}

QTEST_APPLESS_MAIN(TestMenuDayparts)
#include "tst_menudayparts.moc"
