// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QElapsedTimer>
#include <QTest>

#include "holding/binplan.h"
#include "holding/groupdraft.h"
#include "holding/newentries.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// What the bin plan tells of a holding menu.
class TestHoldingPlan : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void daypartsInUseAreDrawn();
    void unknownCabinetHasNone();
    void cabinetIsNamed();
    void productTellsItsSettings_data();
    void productTellsItsSettings();
    void timerColorIsNamed_data();
    void timerColorIsNamed();
    void bins_data();
    void bins();
    void groupTellsItsMembers_data();
    void groupTellsItsMembers();
    void groupTakesAfterItsDefault();
    void hugeGroupsCostLittle();
    void binsStandAsInTheGrid_data();
    void binsStandAsInTheGrid();
};

namespace {

ProductInfo &addProduct(Menu &menu, const QString &name, const QString &zoneSplits = u"1/2"_s)
{
    auto product = newProduct(menu.nextFreeId(), 2);
    product->set_productName(sameNameInAllLanguages(name));
    product->set_upperTemp(225);
    product->set_lowerTemp(215);
    product->set_holdTime(5400);
    product->set_zoneSplits(zoneSplits);
    menu.products.push_back(std::move(product));
    return *menu.products.back();
}

ProductInfo &addGroup(Menu &menu, const QList<int> &members, int defaultIndex)
{
    auto group = newGroup(menu.nextFreeId());
    group->set_productName(sameNameInAllLanguages(u"Meats"_s));
    group->set_upperTemp(225);
    group->set_lowerTemp(215);
    group->set_zoneSplits(u"1/2"_s);
    group->set_productList(members);
    group->set_defaultIndex(defaultIndex);
    menu.groups.push_back(std::move(group));
    return *menu.groups.back();
}

// Products 1 "Bacon", 2 "Ham", 3 "Chili" in a menu with one day part in use.
Menu menuOf(const QString &type, const QString &model)
{
    Menu menu;
    menu.configuration.type = type;
    menu.configuration.model = model;
    menu.daypartCount = 1;
    for (const QString &name : {u"Bacon"_s, u"Ham"_s, u"Chili"_s})
        addProduct(menu, name);
    return menu;
}

binplan::Content firstContent(Menu &menu, int id)
{
    menu.dayparts[0].bins[0][0] = id;
    const binplan::Cabinet cabinet = plannedCabinet(menu);
    REQUIRE_EQUAL(cabinet.dayparts.size(), 1);
    return cabinet.dayparts[0].bins[0].content;
}

} // namespace

void TestHoldingPlan::daypartsInUseAreDrawn()
{
    Menu menu = menuOf(u"QHX"_s, u"KTR22"_s);
    menu.daypartCount = 4;
    for (int i = 0; i < 5; ++i) {
        menu.dayparts[i].names = {u"Part %1"_s.arg(i)};
        menu.dayparts[i].inUse = i != 1; // the fifth place is vacant
    }
    menu.dayparts[3].names.clear();
    QStringList names;
    for (const binplan::Daypart &daypart : plannedCabinet(menu).dayparts) {
        names.append(daypart.name);
        QCOMPARE(daypart.bins.size(), 4);
    }
    QCOMPARE(names, (QStringList{u"Part 0"_s, u"Part 2"_s, u"Day part 4"_s}));
}

void TestHoldingPlan::unknownCabinetHasNone()
{
    const Menu menu = menuOf(u"QHX"_s, u"KTR99"_s);
    QVERIFY(plannedCabinet(menu).dayparts.isEmpty());
}

void TestHoldingPlan::cabinetIsNamed()
{
    const Menu menu = menuOf(u"ZPV"_s, u"ZPV43"_s);
    const binplan::Cabinet cabinet = plannedCabinet(menu);
    QCOMPARE(cabinet.model, u"ZPV ZPV43"_s);
    QCOMPARE(cabinet.rows, 4);
    QCOMPARE(cabinet.columns, 3);
}

void TestHoldingPlan::productTellsItsSettings_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("upper");
    QTest::addColumn<QString>("settings");
    QTest::newRow("°F") << u"KTR22"_s << 0 << 225 << u"225/215°F  01:30:00"_s;
    QTest::newRow("°C") << u"KTR22"_s << 1 << 225 << u"107/102°C  01:30:00"_s;
    QTest::newRow("one temperature") << u"KTR22"_s << 0 << 215 << u"215°F  01:30:00"_s;
    QTest::newRow("cabinet with one temperature") << u"ZPV23"_s << 0 << 225 << u"225°F  01:30:00"_s;
}

void TestHoldingPlan::productTellsItsSettings()
{
    QFETCH(const QString, model);
    QFETCH(const int, unit);
    QFETCH(const int, upper);
    Menu menu = menuOf(model.startsWith(u'Z') ? u"ZPV"_s : u"QHX"_s, model);
    menu.configuration.temperatureUnit = unit;
    menu.product(1)->set_upperTemp(upper);
    const binplan::Content content = firstContent(menu, 1);
    QCOMPARE(content.name, u"Bacon"_s);
    QTEST(content.settings, "settings");
    QVERIFY(content.members.isEmpty());
}

void TestHoldingPlan::timerColorIsNamed_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("color");
    QTest::newRow("color") << true << u"#ff0000"_s << u"full red"_s << 0xff0000;
    QTest::newRow("gray") << true << u"#808080"_s << u"gray"_s << 0x808080;
    QTest::newRow("none") << true << u"#fffffd"_s << QString() << 0;
    QTest::newRow("none of the palette's") << true << u"#123456"_s << QString() << 0;
    QTest::newRow("colors not in use") << false << u"#ff0000"_s << QString() << 0;
}

void TestHoldingPlan::timerColorIsNamed()
{
    QFETCH(const bool, enabled);
    QFETCH(const QString, stored);
    Menu menu = menuOf(u"QHX"_s, u"KTR22"_s);
    menu.configuration.timerColorEnabled = enabled;
    menu.product(1)->set_timerColor(stored);
    const binplan::Content content = firstContent(menu, 1);
    QTEST(content.colorName, "name");
    QTEST(content.color, "color");
}

void TestHoldingPlan::bins_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hasSettings");
    QTest::newRow("empty") << 0 << QString() << false;
    QTest::newRow("product") << 2 << u"Ham"_s << true;
    QTest::newRow("product without a name") << 3 << u"Id 3"_s << true;
    QTest::newRow("missing") << 77 << u"Id 77"_s << false;
    QTest::newRow("missing, negative") << -5 << u"Id -5"_s << false;
}

void TestHoldingPlan::bins()
{
    QFETCH(const int, id);
    QFETCH(const bool, hasSettings);
    Menu menu = menuOf(u"QHX"_s, u"KTR22"_s);
    menu.product(3)->set_productName({});
    const binplan::Content content = firstContent(menu, id);
    QTEST(content.name, "name");
    QCOMPARE(!content.settings.isEmpty(), hasSettings);
}

void TestHoldingPlan::groupTellsItsMembers_data()
{
    QTest::addColumn<QList<int>>("members");
    QTest::addColumn<int>("defaultIndex");
    QTest::addColumn<QString>("told");
    QTest::newRow("first is the default") << QList<int>{1, 2, 3} << 0 << u"Bacon · Ham · Chili"_s;
    QTest::newRow("default comes first") << QList<int>{1, 2, 3} << 1 << u"Ham · Bacon · Chili"_s;
    QTest::newRow("last is the default") << QList<int>{1, 2, 3} << 2 << u"Chili · Bacon · Ham"_s;
    QTest::newRow("default beyond the end") << QList<int>{2, 1} << 2 << u"Bacon · Ham"_s;
    QTest::newRow("negative default") << QList<int>{2, 1} << -1 << u"Ham · Bacon"_s;
    QTest::newRow("one") << QList<int>{3} << 0 << u"Chili"_s;
    QTest::newRow("none") << QList<int>{} << 0 << QString();
    QTest::newRow("missing") << QList<int>{1, 99} << 0 << u"Bacon · Id 99"_s;
    QTest::newRow("default is missing: the next one")
        << QList<int>{1, 99, 2} << 1 << u"Ham · Bacon · Id 99"_s;
    QTest::newRow("default is missing, none behind it")
        << QList<int>{1, 2, 99} << 2 << u"Ham · Bacon · Id 99"_s;
    QTest::newRow("default beyond the end, the last is missing")
        << QList<int>{1, 2, 99} << 9 << u"Ham · Bacon · Id 99"_s;
    QTest::newRow("all are missing") << QList<int>{98, 99} << 1 << u"Id 99 · Id 98"_s;
    QTest::newRow("group in a group") << QList<int>{1, 4} << 0 << u"Bacon · Id 4"_s;
}

void TestHoldingPlan::groupTellsItsMembers()
{
    QFETCH(const QList<int>, members);
    QFETCH(const int, defaultIndex);
    Menu menu = menuOf(u"QHX"_s, u"KTR22"_s);
    const ProductInfo &group = addGroup(menu, members, defaultIndex);
    const binplan::Content content = firstContent(menu, group.get_productId());
    QCOMPARE(content.name, u"Meats"_s);
    QTEST(content.members, "told");
    // As the group editor chooses it.
    GroupDraft draft(group, menu.configuration);
    QList<int> listed;
    for (int position = 0; position < members.size(); ++position) {
        if (menu.product(members[position]))
            listed.append(position);
    }
    draft.settleDefault(listed);
    if (!listed.isEmpty()) {
        const QString name = shownName(menu.product(members[draft.defaultPosition()])->get_productName());
        QCOMPARE(content.members.section(u" · "_s, 0, 0), name);
    }
}

// It has neither time nor colour of its own.
void TestHoldingPlan::groupTakesAfterItsDefault()
{
    Menu menu = menuOf(u"QHX"_s, u"KTR22"_s);
    menu.configuration.timerColorEnabled = true;
    menu.product(2)->set_holdTime(1800);
    menu.product(2)->set_timerColor(u"#0000ff"_s);
    ProductInfo &group = addGroup(menu, {1, 2}, 1);
    group.set_timerColor(u"#ff0000"_s);
    binplan::Content content = firstContent(menu, group.get_productId());
    QCOMPARE(content.settings, u"225/215°F  00:30:00"_s);
    QCOMPARE(content.colorName, u"full blue"_s);
    group.set_productList({2, 77});
    content = firstContent(menu, group.get_productId());
    QCOMPARE(content.settings, u"225/215°F  00:30:00"_s);
    QCOMPARE(content.colorName, u"full blue"_s);
    group.set_productList({77, 78});
    content = firstContent(menu, group.get_productId());
    QCOMPARE(content.settings, u"225/215°F"_s);
    QCOMPARE(content.colorName, QString());
}

void TestHoldingPlan::hugeGroupsCostLittle()
{
    Menu menu = menuOf(u"QHX"_s, u"KTR82"_s);
    menu.product(1)->set_productName({QString(2'000'000, u'n')});
    ProductInfo &group = addGroup(menu, QList<int>(2'000'000, 1), 1'999'999);
    menu.daypartCount = maxDayparts;
    for (Daypart &daypart : menu.dayparts) {
        daypart.inUse = true;
        for (auto &row : daypart.bins)
            row.values.fill(group.get_productId());
    }
    QElapsedTimer timer;
    timer.start();
    const binplan::Cabinet cabinet = plannedCabinet(menu);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(cabinet.dayparts.size(), maxDayparts);
    const QString members = cabinet.dayparts[9].bins.constLast().content.members;
    QCOMPARE(members.count(u'n'), 100 * 60);
    QVERIFY(members.endsWith(u" · …"_s));
    group.set_productList(QList<int>(2'000'000, 77)); // none of which can be the default
    timer.start();
    const QString missing = plannedCabinet(menu).dayparts[9].bins.constLast().content.members;
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(missing.count(u"Id 77"_s), 100);
    menu.dayparts[0].bins[0][0] = 1;
    QCOMPARE(plannedCabinet(menu).dayparts[0].bins[0].content.name.size(), 2'000'000);
}

void TestHoldingPlan::binsStandAsInTheGrid_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QList<int>>("row"); // 4 "1/1", 5 "2/3", 6 "1/3", 7 "1/2"
    QTest::addColumn<QString>("places"); // in thousandths of the grid's width
    QTest::newRow("two bins, empty") << u"KTR22"_s << QList<int>{0, 0} << u"0-500 500-1000"_s;
    QTest::newRow("two bins, whole") << u"KTR22"_s << QList<int>{4, 0} << u"0-1000"_s;
    QTest::newRow("two bins, halves") << u"KTR22"_s << QList<int>{7, 7} << u"0-500 500-1000"_s;
    QTest::newRow("three bins, empty") << u"KTR33"_s << QList<int>{0, 0, 0} << u"0-333 333-667 667-1000"_s;
    QTest::newRow("three bins, whole") << u"KTR33"_s << QList<int>{4, 0, 0} << u"0-1000"_s;
    QTest::newRow("three bins, two thirds") << u"KTR33"_s << QList<int>{5, 0, 6} << u"0-667 667-1000"_s;
    QTest::newRow("three bins, last two thirds") << u"KTR33"_s << QList<int>{6, 5, 0} << u"0-333 333-1000"_s;
    QTest::newRow("three bins, first half") << u"KTR33"_s << QList<int>{7, 0, 0} << u"0-500 500-1000"_s;
    QTest::newRow("three bins, second half") << u"KTR33"_s << QList<int>{0, 7, 0} << u"0-500 500-1000"_s;
    QTest::newRow("three bins, half in the third")
        << u"KTR33"_s << QList<int>{0, 0, 7} << u"0-333 333-667 667-1000"_s;
    QTest::newRow("three bins, whole in the second")
        << u"KTR33"_s << QList<int>{0, 4, 0} << u"0-333 333-1000"_s;
    QTest::newRow("nothing that is assigned is hidden")
        << u"KTR33"_s << QList<int>{5, 99, 0} << u"0-333 333-667 667-1000"_s;
    // Two zones of 340 with 16 between them, or one of 340 and one of 177.
    QTest::newRow("two zones") << u"KTR24"_s << QList<int>{0, 0, 0, 0} << u"0-244 244-489 511-756 756-1000"_s;
    QTest::newRow("two zones, wholes") << u"KTR24"_s << QList<int>{4, 0, 4, 0} << u"0-489 511-1000"_s;
    QTest::newRow("one-bin zone") << u"KTR23"_s << QList<int>{0, 0, 7} << u"0-319 319-638 668-1000"_s;
    QTest::newRow("whole beside a one-bin zone") << u"KTR23"_s << QList<int>{4, 0, 0} << u"0-638 668-1000"_s;
}

void TestHoldingPlan::binsStandAsInTheGrid()
{
    QFETCH(const QString, model);
    QFETCH(const QList<int>, row);
    Menu menu = menuOf(u"QHX"_s, model);
    for (const QString &splits : {u"1/1"_s, u"2/3"_s, u"1/3"_s, u"1/2"_s})
        addProduct(menu, splits, splits);
    for (int slot = 0; slot < row.size(); ++slot)
        menu.dayparts[0].bins[1][slot] = row[slot];
    QStringList places;
    const binplan::Cabinet cabinet = plannedCabinet(menu);
    for (const binplan::GridBin &bin : cabinet.dayparts[0].bins) {
        if (bin.row == 1)
            places.append(u"%1-%2"_s.arg(qRound(1000 * bin.left)).arg(qRound(1000 * bin.right)));
    }
    QTEST(places.join(u' '), "places");
}

QTEST_APPLESS_MAIN(TestHoldingPlan)
#include "tst_holdingplan.moc"
