// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menu.h"
#include "holding/newentries.h"
#include "tests/support/languages.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

void addEntries(Entries &entries, const QList<int> &ids)
{
    for (const int id : ids) {
        entries.push_back(std::make_unique<ProductInfo>());
        entries.back()->set_productId(id);
    }
}

void addGroup(Menu &menu, const QList<int> &members, int defaultIndex)
{
    menu.groups.push_back(newGroup(menu.nextFreeId()));
    menu.groups.back()->set_productList(members);
    menu.groups.back()->set_defaultIndex(defaultIndex);
}

// As text, because Qt compares an emptied list of numbers with a new one through a null pointer.
QString membersOf(const ProductInfo &group)
{
    QStringList members;
    const QList<int> ids = group.get_productList();
    for (const int id : ids)
        members.append(QString::number(id));
    return members.join(u' ');
}

QList<int> upTo(int last)
{
    QList<int> ids;
    for (int id = 1; id <= last; ++id)
        ids.append(id);
    return ids;
}

} // namespace

using Row = FixedList<int, maxSlots>;

class TestMenu : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newMenu();
    void newDaypart();
    void nextFreeId_data();
    void nextFreeId();
    void isFull_data();
    void isFull();
    void lookUp();
    void removeFromGroups_data();
    void removeFromGroups();
    void removeFromEveryGroup();
    void removeFromDayparts();
    void removeFromVacantPlaces();
    void nothingIsRemovedForNoEntry();
    void clearBins();
    void shapeFollowsConfiguration();
};

void TestMenu::newMenu()
{
    const Menu menu;
    QCOMPARE(menu.daypartCount, 2);
    QCOMPARE(int(menu.dayparts.size()), 10);
    QCOMPARE(menu.dayparts[0].names, inEveryLanguage(u"BREAKFAST"_s));
    QCOMPARE(menu.dayparts[1].names, inEveryLanguage(u"LUNCH/DINNER"_s));
    for (int i = 0; i < menu.dayparts.size(); ++i) {
        QCOMPARE(menu.dayparts[i].inUse, i < 2);
        QVERIFY(menu.dayparts[i].bins == Daypart().bins);
        if (i >= 2)
            QCOMPARE(menu.dayparts[i].names, inEveryLanguage({}));
    }
    QVERIFY(menu.products.empty());
    QVERIFY(menu.groups.empty());
    QVERIFY(!menu.shape().isKnown());
}

void TestMenu::newDaypart()
{
    const Daypart daypart;
    QCOMPARE(daypart.names, inEveryLanguage({}));
    QCOMPARE(daypart.inUse, false);
    for (const auto &row : daypart.bins) {
        for (const int id : row)
            QCOMPARE(id, emptyBin);
    }
}

void TestMenu::nextFreeId_data()
{
    QTest::addColumn<QList<int>>("products");
    QTest::addColumn<QList<int>>("groups");
    QTest::addColumn<int>("next");
    QTest::newRow("empty menu") << QList<int>{} << QList<int>{} << 1;
    QTest::newRow("gap among products") << QList<int>{1, 2, 4} << QList<int>{} << 3;
    QTest::newRow("gap among groups") << QList<int>{} << QList<int>{1, 2, 4} << 3;
    QTest::newRow("gap in a mix") << QList<int>{1, 4} << QList<int>{2} << 3;
    QTest::newRow("filled by a group") << QList<int>{1, 3} << QList<int>{2} << 4;
    QTest::newRow("order does not count") << QList<int>{3, 1} << QList<int>{4, 2} << 5;
    QTest::newRow("first id is free") << QList<int>{2, 3} << QList<int>{} << 1;
    QTest::newRow("several gaps") << QList<int>{1, 3, 5} << QList<int>{} << 2;
    QTest::newRow("repeated ids") << QList<int>{1, 1, 2} << QList<int>{2} << 3;
    QTest::newRow("negative ids") << QList<int>{-1, -2} << QList<int>{} << 1;
    QTest::newRow("no id") << QList<int>{0} << QList<int>{} << 1;
    QTest::newRow("far away id") << QList<int>{2147483647, 1} << QList<int>{} << 2;
    QTest::newRow("full menu") << upTo(100) << QList<int>{} << 101;
}

void TestMenu::nextFreeId()
{
    QFETCH(QList<int>, products);
    QFETCH(QList<int>, groups);
    Menu menu;
    addEntries(menu.products, products);
    addEntries(menu.groups, groups);
    QTEST(menu.nextFreeId(), "next");
}

void TestMenu::isFull_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<int>("groups");
    QTest::addColumn<bool>("full");
    QTest::newRow("empty") << 0 << 0 << false;
    QTest::newRow("one place left") << 99 << 0 << false;
    QTest::newRow("one place left, groups too") << 60 << 39 << false;
    QTest::newRow("60 products and 40 groups") << 60 << 40 << true;
    QTest::newRow("products alone") << 100 << 0 << true;
    QTest::newRow("groups alone") << 0 << 100 << true;
    QTest::newRow("a file may bring more") << 100 << 50 << true;
}

void TestMenu::isFull()
{
    QFETCH(int, products);
    QFETCH(int, groups);
    Menu menu;
    addEntries(menu.products, upTo(products));
    addEntries(menu.groups, upTo(groups));
    QTEST(menu.isFull(), "full");
}

void TestMenu::lookUp()
{
    Menu menu;
    addEntries(menu.products, {5, 7, 5, -1});
    addEntries(menu.groups, {7, 8, 8});
    QCOMPARE(menu.product(5), menu.products[0].get());
    QCOMPARE(menu.entry(5), menu.products[0].get());
    QCOMPARE(menu.entry(-1), menu.products[3].get());
    QCOMPARE(menu.entry(7), menu.products[1].get());
    QCOMPARE(menu.entry(8), menu.groups[1].get());
    QCOMPARE(menu.product(8), nullptr);
    QCOMPARE(menu.entry(9), nullptr);
    QCOMPARE(menu.entry(emptyBin), nullptr);
}

void TestMenu::removeFromGroups_data()
{
    QTest::addColumn<QList<int>>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("removed");
    QTest::newRow("only member") << QList<int>{5} << QString() << true;
    QTest::newRow("first") << QList<int>{5, 6, 7} << u"6 7"_s << true;
    QTest::newRow("last") << QList<int>{6, 7, 5} << u"6 7"_s << true;
    QTest::newRow("every occurrence") << QList<int>{5, 6, 5, 7, 5} << u"6 7"_s << true;
    QTest::newRow("no member") << QList<int>{6, 7} << u"6 7"_s << false;
    QTest::newRow("empty group") << QList<int>{} << QString() << false;
}

void TestMenu::removeFromGroups()
{
    QFETCH(QList<int>, before);
    QFETCH(bool, removed);
    Menu menu;
    addGroup(menu, before, 1);
    QCOMPARE(menu.removeFromGroups(5), removed);
    QTEST(membersOf(*menu.groups[0]), "after");
    QCOMPARE(menu.groups[0]->get_defaultIndex(), removed ? 0 : 1);
}

void TestMenu::removeFromEveryGroup()
{
    Menu menu;
    addGroup(menu, {5, 6}, 1);
    addGroup(menu, {6, 7}, 1);
    addGroup(menu, {7, 5}, 1);
    QVERIFY(menu.removeFromGroups(5));
    QCOMPARE(menu.groups[0]->get_productList(), QList<int>{6});
    QCOMPARE(menu.groups[1]->get_productList(), (QList<int>{6, 7}));
    QCOMPARE(menu.groups[2]->get_productList(), QList<int>{7});
    QCOMPARE(menu.groups[0]->get_defaultIndex(), 0);
    QCOMPARE(menu.groups[1]->get_defaultIndex(), 1);
    QCOMPARE(menu.groups[2]->get_defaultIndex(), 0);
    QVERIFY(!menu.removeFromGroups(5));
}

void TestMenu::removeFromDayparts()
{
    Menu menu;
    menu.dayparts[0].bins[0] = {5, 6, 5, 0};
    menu.dayparts[1].bins[2] = {6, 6, 6, 5};
    menu.dayparts[2].bins[0] = {-5, 0, 0, 0}; // files may hold any id
    QVERIFY(!menu.removeFromDayparts(7));
    QVERIFY(menu.removeFromDayparts(5));
    QVERIFY(menu.dayparts[0].bins[0] == (Row{0, 6, 0, 0}));
    QVERIFY(menu.dayparts[1].bins[2] == (Row{6, 6, 6, 0}));
    QVERIFY(!menu.removeFromDayparts(5));
    QVERIFY(menu.removeFromDayparts(-5));
    QCOMPARE(menu.dayparts[2].bins[0][0], emptyBin);
}

// A cabinet may be chosen that shows these places again.
void TestMenu::removeFromVacantPlaces()
{
    Menu menu;
    menu.configuration = {.type = u"QHX"_s, .model = u"KTR22"_s};
    menu.dayparts[9].bins[7][3] = 5;
    QVERIFY(menu.removeFromDayparts(5));
    QCOMPARE(menu.dayparts[9].bins[7][3], emptyBin);
}

void TestMenu::nothingIsRemovedForNoEntry()
{
    Menu menu;
    menu.dayparts[0].bins[0] = {5, 0, 5, 0};
    QVERIFY(!menu.removeFromDayparts(emptyBin));
    QVERIFY(menu.dayparts[0].bins[0] == (Row{5, 0, 5, 0}));
}

void TestMenu::clearBins()
{
    Menu menu;
    for (Daypart &daypart : menu.dayparts) {
        for (auto &row : daypart.bins)
            row.values.fill(3);
    }
    menu.dayparts[9].names = inEveryLanguage(u"NIGHT"_s);
    menu.dayparts[9].inUse = true;
    menu.clearBins();
    for (const Daypart &daypart : menu.dayparts)
        QVERIFY(daypart.bins == Daypart().bins);
    QCOMPARE(menu.dayparts[0].names, inEveryLanguage(u"BREAKFAST"_s));
    QCOMPARE(menu.dayparts[9].names, inEveryLanguage(u"NIGHT"_s));
    QVERIFY(menu.dayparts[0].inUse && menu.dayparts[9].inUse && !menu.dayparts[2].inUse);
    QCOMPARE(menu.daypartCount, 2);
}

void TestMenu::shapeFollowsConfiguration()
{
    Menu menu;
    menu.configuration.type = u"QHX"_s;
    menu.configuration.model = u"KTR63"_s;
    QVERIFY(menu.shape() == (CabinetShape{6, 3, 1, false}));
    menu.configuration.type = u"ZPV"_s;
    QVERIFY(menu.shape() == CabinetShape());
}

QTEST_APPLESS_MAIN(TestMenu)
#include "tst_menu.moc"
