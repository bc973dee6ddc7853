// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "tests/support/sampletimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/defaultproducts.h"
#include "timerbar/menu.h"
#include "timerbar/newentries.h"

using namespace Qt::StringLiterals;

class TestTimerBarMenu : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newMenuIsEmpty();
    void defaultProducts();
    void newProduct();
    void duplicate();
    void smallestFreeId_data();
    void smallestFreeId();
    void fullWithHundred();
    void idsOfDeletedProductsAreGivenAgain();
    void productById();
    void removalEmptiesEveryCell();
    void filledBinsOfTheCabinet();
    void copiedBinsOfTheCabinet();
};

void TestTimerBarMenu::newMenuIsEmpty()
{
    const timerbar::Menu menu;
    const QString emptyRow = u"100 "_s.repeated(timerbar::maxColumns) + u"/ "_s;
    const QStringList expected{u"KTR22, unit 0"_s};
    const QStringList emptyDayparts(6, emptyRow.repeated(timerbar::maxRows));
    QCOMPARE(sample::describe(menu), expected + emptyDayparts);
}

void TestTimerBarMenu::defaultProducts()
{
    const QStringList expected{
        u"0: Bacon \"BACN\" 215/215 °F 3600 s, alert 600 s"_s,
        u"1: Biscuits \"BSCT\" 200/200 °F 3600 s, alert 1500 s"_s,
        u"2: Hamburger Patties \"BURG\" 200/200 °F 5400 s, alert 300 s"_s,
        u"3: Chili \"CHIL\" 190/190 °F 5400 s, alert 1500 s"_s,
        u"4: Breaded Chicken Patties \"CKPT\" 225/225 °F 3600 s, alert 600 s"_s,
        u"5: Chicken Nuggets \"CNUG\" 225/225 °F 3600 s, alert 600 s"_s,
        u"6: Chicken Strips \"CSTR\" 225/225 °F 3600 s, alert 300 s"_s,
        u"7: Eggs / Egg Patties \"EGGS\" 210/210 °F 5400 s, alert 300 s"_s,
        u"8: Breaded Fish Fillets \"FISH\" 225/225 °F 3600 s, alert 300 s"_s,
        u"9: Fruit Compote \"FRUT\" 190/190 °F 5400 s, alert 1500 s"_s,
        u"10: French Toast \"FTOS\" 215/215 °F 4500 s, alert 900 s"_s,
        u"11: Grilled Chicken \"GCHK\" 215/215 °F 5400 s, alert 600 s"_s,
        u"12: Grilled Fish \"GFSH\" 215/215 °F 5400 s, alert 300 s"_s,
        u"13: Gravy \"GRVY\" 190/190 °F 5400 s, alert 300 s"_s,
        u"14: Grilled Steak \"GSTK\" 215/215 °F 5400 s, alert 600 s"_s,
        u"15: Ham Steak \"HAM\" 215/215 °F 5400 s, alert 600 s"_s,
        u"16: Hash Browns \"HASH\" 225/225 °F 3600 s, alert 300 s"_s,
        u"17: Hot Dogs \"HDOG\" 225/225 °F 5400 s, alert 300 s"_s,
        u"18: Mozzarella Sticks \"MOZZ\" 225/225 °F 3600 s, alert 300 s"_s,
        u"19: Meat Balls \"MTBL\" 215/215 °F 5400 s, alert 1500 s"_s,
        u"20: Meat Loaf \"MTLF\" 215/215 °F 5400 s, alert 300 s"_s,
        u"21: Fried Mushrooms \"MUSH\" 225/225 °F 3600 s, alert 300 s"_s,
        u"22: Pancakes \"PANC\" 225/225 °F 3600 s, alert 300 s"_s,
        u"23: Pasta \"PAST\" 200/200 °F 5400 s, alert 1200 s"_s,
        u"24: Poppers \"POPP\" 225/225 °F 900 s, alert 600 s"_s,
        u"25: Product 1 \"PRD1\" 160/160 °F 3600 s, alert 600 s"_s,
        u"26: Product 2 \"PRD2\" 170/170 °F 4200 s, alert 600 s"_s,
        u"27: Product 3 \"PRD3\" 180/180 °F 4800 s, alert 600 s"_s,
        u"28: Sausage Patties \"SAUS\" 215/215 °F 5400 s, alert 600 s"_s,
        u"29: Scrambled Eggs \"SCEG\" 210/210 °F 5400 s, alert 600 s"_s,
        u"30: Sausage Crumbles \"SSCR\" 215/215 °F 5400 s, alert 1500 s"_s,
        u"31: Tater Tots \"TOTS\" 225/225 °F 3600 s, alert 600 s"_s,
        u"32: Vegetables \"VEGE\" 200/200 °F 5400 s, alert 1800 s"_s,
    };
    timerbar::Menu menu;
    menu.products = timerbar::defaultProducts();
    QCOMPARE(sample::describe(menu).mid(1, 33), expected);
    QCOMPARE(menu.products.size(), std::size_t(33));
}

void TestTimerBarMenu::newProduct()
{
    const auto product = timerbar::newProduct(17);
    QCOMPARE(product->get_productId(), 17);
    QCOMPARE(product->get_productName(), QStringList{QString()});
    QCOMPARE(product->get_productShortName(), QString());
    QCOMPARE(product->get_upperTemp(), 200);
    QCOMPARE(product->get_lowerTemp(), 200);
    QCOMPARE(product->get_holdTime(), 1800);
    QCOMPARE(product->get_warningTime(), 300);
    QCOMPARE(product->get_zoneSplits(), u"1/2"_s);
}

void TestTimerBarMenu::duplicate()
{
    ProductInfo source;
    source.set_productId(3);
    source.set_productLocked(true);
    source.set_productName({u"Bacon"_s, u"Speck"_s});
    source.set_productShortName(u"BACN"_s);
    source.set_upperTemp(215);
    source.set_lowerTemp(200);
    source.set_holdTime(3661);
    source.set_warningTime(61);
    source.set_zoneSplits(u"1/3"_s);
    source.set_lidType(u"Solid"_s);
    source.set_bottomType(u"False"_s);
    source.set_fanSpeed(60);
    source.set_resetTime(30);
    source.set_timerColor(u"#ff0000"_s);
    const auto copy = timerbar::duplicateOf(source, 8);
    QCOMPARE(copy->get_productId(), 8);
    QCOMPARE(copy->get_productLocked(), true);
    QCOMPARE(copy->get_productName(), source.get_productName());
    QCOMPARE(copy->get_productShortName(), u"BACN"_s);
    QCOMPARE(copy->get_upperTemp(), 215);
    QCOMPARE(copy->get_lowerTemp(), 200);
    QCOMPARE(copy->get_holdTime(), 3661);
    QCOMPARE(copy->get_warningTime(), 61);
    QCOMPARE(copy->get_zoneSplits(), u"1/3"_s);
    QCOMPARE(copy->get_lidType(), u"Solid"_s);
    QCOMPARE(copy->get_bottomType(), u"False"_s);
    QCOMPARE(copy->get_fanSpeed(), 60);
    QCOMPARE(copy->get_resetTime(), 30);
    QCOMPARE(copy->get_timerColor(), u"#ff0000"_s);
    QCOMPARE(source.get_productId(), 3);
}

void TestTimerBarMenu::smallestFreeId_data()
{
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<int>("free");
    QTest::newRow("none") << QList<int>{} << 0;
    QTest::newRow("0 free") << QList<int>{1, 2} << 0;
    QTest::newRow("behind the last") << QList<int>{0, 1, 2} << 3;
    QTest::newRow("gap") << QList<int>{0, 1, 3} << 2;
    QTest::newRow("in any order") << QList<int>{3, 0, 2, 1, 5} << 4;
    QTest::newRow("repeated") << QList<int>{0, 0, 1, 1} << 2;
}

void TestTimerBarMenu::smallestFreeId()
{
    QFETCH(QList<int>, ids);
    QFETCH(int, free);
    QCOMPARE(sample::menuWithIds(ids).nextFreeId(), free);
}

void TestTimerBarMenu::fullWithHundred()
{
    timerbar::Menu menu = sample::menuWithIds(QList<int>(98, 0));
    QVERIFY(!menu.isFull());
    menu.products.push_back(timerbar::newProduct(1));
    QVERIFY(!menu.isFull());
    menu.products.push_back(timerbar::newProduct(2));
    QVERIFY(menu.isFull());
}

void TestTimerBarMenu::idsOfDeletedProductsAreGivenAgain()
{
    timerbar::Menu menu = sample::menuWithIds({0, 1, 2});
    menu.products.erase(menu.products.begin() + 1);
    QCOMPARE(menu.nextFreeId(), 1);
    QCOMPARE(menu.products[1]->get_productId(), 2);
}

void TestTimerBarMenu::productById()
{
    const timerbar::Menu menu = sample::menuWithIds({4, 0, 7, 4});
    QCOMPARE(menu.product(4), menu.products[0].get()); // the first in the list's order
    QCOMPARE(menu.product(7), menu.products[2].get());
    QVERIFY(!menu.product(1));
    QVERIFY(!menu.product(timerbar::emptyCell));
}

void TestTimerBarMenu::removalEmptiesEveryCell()
{
    timerbar::Menu menu = sample::menuWithIds({1, 2});
    menu.dayparts[0][0] = {1, 2, 1, 100};
    menu.dayparts[2][3] = {1, 100, 100, 1}; // beyond the model
    menu.dayparts[5][1] = {2, 2, 1, 2};
    QVERIFY(menu.removeFromDayparts(1));
    using Row = FixedList<int, timerbar::maxColumns>;
    QCOMPARE(menu.dayparts[0][0], (Row{100, 2, 100, 100}));
    QCOMPARE(menu.dayparts[2][3], (Row{100, 100, 100, 100}));
    QCOMPARE(menu.dayparts[5][1], (Row{2, 2, 100, 2}));
    const QStringList before = sample::describe(menu);
    QVERIFY(!menu.removeFromDayparts(1));
    QVERIFY(!menu.removeFromDayparts(7));
    QCOMPARE(sample::describe(menu), before);
}

void TestTimerBarMenu::filledBinsOfTheCabinet()
{
    timerbar::Menu menu = sample::menuWithIds({1, 2});
    menu.model = u"KTR23"_s;
    menu.dayparts[1][1] = {100, 100, 1, 100};
    menu.dayparts[2][1] = {100, 100, 100, 1}; // beyond the model
    menu.dayparts[3][2] = {1, 1, 1, 1};
    QVERIFY(!menu.hasFilledBins(0));
    QVERIFY(menu.hasFilledBins(1));
    QVERIFY(!menu.hasFilledBins(2));
    QVERIFY(!menu.hasFilledBins(3));
}

void TestTimerBarMenu::copiedBinsOfTheCabinet()
{
    timerbar::Menu menu = sample::menuWithIds({1, 2});
    menu.model = u"KTR23"_s;
    menu.dayparts[0][0] = {1, 2, 100, 7};
    menu.dayparts[0][2] = {1, 2, 1, 2};
    menu.dayparts[3][0] = {2, 100, 1, 8};
    menu.dayparts[3][1] = {2, 2, 2, 9};
    const timerbar::DaypartCells source = menu.dayparts[0];
    menu.copyBins(0, 3);
    using Row = FixedList<int, timerbar::maxColumns>;
    QCOMPARE(menu.dayparts[3][0], (Row{1, 2, 100, 8}));
    QCOMPARE(menu.dayparts[3][1], (Row{100, 100, 100, 9}));
    QCOMPARE(menu.dayparts[3][2], (Row{100, 100, 100, 100}));
    QVERIFY(menu.dayparts[0] == source);
}

QTEST_APPLESS_MAIN(TestTimerBarMenu)
#include "tst_timerbarmenu.moc"
