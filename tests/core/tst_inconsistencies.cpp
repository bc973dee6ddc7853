// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/inconsistencies.h"
#include "tests/core/menutolookat.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;
using menutolookat::Change;

/// What is found in a menu of a file, and how it is told.
class TestInconsistencies : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void product_data();
    void product() { checkFinding(); }
    void productOfZpv_data();
    void productOfZpv() { checkFinding(); }
    void group_data();
    void group() { checkFinding(); }
    void bin_data();
    void bin() { checkFinding(); }
    void thirdHalf_data();
    void thirdHalf() { checkFinding(); }
    void tooManyEntries();
    void severalComeInTheOrderOfTheMenu();
    void namesStayOnALine();
    void longTextsAreShortened();
    void manyAreCounted();

private:
    static void checkFinding();
};

namespace {

using Part = MenuPlace::Part;

constexpr MenuPlace bacon{.part = Part::Products, .index = 0};
constexpr MenuPlace chili{.part = Part::Products, .index = 2};
constexpr MenuPlace meats{.part = Part::Groups, .index = 0};

void addColumns()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<Finding>("finding");
    QTest::addColumn<QString>("text");
}

void add(const char *name, const Finding &finding, const QString &text, Change change)
{
    QTest::newRow(name) << change << finding << text;
}

} // namespace

void TestInconsistencies::checkFinding()
{
    QFETCH(const Change, change);
    QFETCH(const Finding, finding);
    Menu menu = menutolookat::menu();
    QCOMPARE(inconsistencies(menu).count(), 0);
    change(menu);
    const Findings found = inconsistencies(menu);
    const QStringList texts = findingTexts(found.kept(), menu);
    QVERIFY2(texts.size() == 1, qPrintable(texts.join(u'\n')));
    QTEST(texts.constFirst(), "text");
    QVERIFY(found.kept() == QList{finding});
    QCOMPARE(found.count(), 1);
}

void TestInconsistencies::product_data()
{
    using enum FindingKind;
    addColumns();
    add("repeated id", {RepeatedId, chili},
        u"Product 3, Chili: Another entry has the id 2, too. Bins and groups mean the first one"_s,
        [](Menu &menu) { menu.products[2]->set_productId(2); });
    add("id of a group", {RepeatedId, meats},
        u"Group 1, Meats: Another entry has the id 4, too. Bins and groups mean the first one"_s,
        [](Menu &menu) {
            menu.clearBins();
            menu.products[2]->set_productId(4);
        });
    add("no name", {NoName, chili}, u"Product 3: There is no name"_s,
        [](Menu &menu) { menu.products[2]->set_productName({QString()}); });
    add("held too short", {HoldTime, bacon},
        u"Product 1, Bacon: Invalid hold time. Minimum value is 6 minutes!"_s,
        [](Menu &menu) { menu.products[0]->set_holdTime(359); });
    add("held too long", {HoldTime, bacon},
        u"Product 1, Bacon: Invalid hold time. Maximum value is 8 hours!"_s,
        [](Menu &menu) { menu.products[0]->set_holdTime(28801); });
    add("late alert", {AlertTime, bacon},
        u"Product 1, Bacon: Invalid cook more alert time. Value must be less than hold time!"_s,
        [](Menu &menu) { menu.products[0]->set_warningTime(1800); });
    add("negative alert", {AlertTime, bacon},
        u"Product 1, Bacon: Invalid cook more alert time. Value must be less than hold time!"_s,
        [](Menu &menu) { menu.products[0]->set_warningTime(-1); });
    add("late reset", {ResetTime, bacon}, u"Product 1, Bacon: Invalid reset time!"_s,
        [](Menu &menu) { menu.products[0]->set_resetTime(3600); });
    add("negative reset", {ResetTime, bacon}, u"Product 1, Bacon: Invalid reset time!"_s,
        [](Menu &menu) { menu.products[0]->set_resetTime(-1); });
    add("too cold", {LowerTemperature, chili},
        u"Product 3, Chili: The lower temperature is 89°F, not 90 to 225°F"_s,
        [](Menu &menu) { menu.products[2]->set_lowerTemp(89); });
    add("too hot", {UpperTemperature, chili},
        u"Product 3, Chili: The upper temperature is 226°F, not 90 to 225°F"_s,
        [](Menu &menu) { menu.products[2]->set_upperTemp(226); });
    add("no temperature", {UpperTemperature, chili},
        u"Product 3, Chili: The upper temperature is 0°F, not 90 to 225°F"_s,
        [](Menu &menu) { menu.products[2]->set_upperTemp(0); });
    add("fan too fast", {FanSpeed, chili},
        u"Product 3, Chili: The fan speed is 10001 RPM, not 0 to 10000 RPM"_s,
        [](Menu &menu) { menu.products[2]->set_fanSpeed(10001); });
    add("fan backwards", {FanSpeed, chili},
        u"Product 3, Chili: The fan speed is -1 RPM, not 0 to 10000 RPM"_s,
        [](Menu &menu) { menu.products[2]->set_fanSpeed(-1); });
    add("split of other cabinets", {ZoneSplit, chili},
        u"Product 3, Chili: This cabinet has no zone split 1/3"_s,
        [](Menu &menu) { menu.products[2]->set_zoneSplits(u"1/3"_s); });
    add("no split", {ZoneSplit, chili}, u"Product 3, Chili: There is no zone split"_s,
        [](Menu &menu) { menu.products[2]->set_zoneSplits({}); });
    add("unknown lid", {LidType, chili}, u"Product 3, Chili: There is no lid vented"_s,
        [](Menu &menu) { menu.products[2]->set_lidType(u"vented"_s); });
    add("unknown bottom", {BottomType, chili}, u"Product 3, Chili: There is no bottom Glass"_s,
        [](Menu &menu) { menu.products[2]->set_bottomType(u"Glass"_s); });
    add("unknown color", {TimerColor, chili}, u"Product 3, Chili: There is no timer color #FF0000"_s,
        [](Menu &menu) { menu.products[2]->set_timerColor(u"#FF0000"_s); });
    add("no word for a color", {TimerColor, chili}, u"Product 3, Chili: No timer color is stored"_s,
        [](Menu &menu) { menu.products[2]->set_timerColor({}); });
}

void TestInconsistencies::productOfZpv_data()
{
    using enum FindingKind;
    addColumns();
    add("too hot", {UpperTemperature, chili},
        u"Product 3, Chili: The temperature is 226°F, not 90 to 225°F"_s, [](Menu &menu) {
            menutolookat::makeZpv(menu);
            menutolookat::setTemperatures(*menu.products[2], 226, 226);
        });
    add("too hot in Celsius", {UpperTemperature, chili},
        u"Product 3, Chili: The temperature is 109°C, not 32 to 107°C"_s, [](Menu &menu) {
            menutolookat::makeZpv(menu, unitCelsius);
            menutolookat::setTemperatures(*menu.products[2], 228, 228);
        });
    add("too hot, and another one", {UpperTemperature, chili},
        u"Product 3, Chili: The temperature is 226°F, not 90 to 225°F"_s, [](Menu &menu) {
            menutolookat::makeZpv(menu);
            menutolookat::setTemperatures(*menu.products[2], 226, 200);
        });
    add("two temperatures", {LowerTemperature, chili},
        u"Product 3, Chili: This cabinet has one temperature, stored are 215°F and 200°F"_s, [](Menu &menu) {
            menutolookat::makeZpv(menu);
            menutolookat::setTemperatures(*menu.products[2], 215, 200);
        });
    add("two in Celsius", {LowerTemperature, chili},
        u"Product 3, Chili: This cabinet has one temperature, stored are 102°C and 93°C"_s, [](Menu &menu) {
            menutolookat::makeZpv(menu, unitCelsius);
            menutolookat::setTemperatures(*menu.products[2], 215, 200);
        });
    add("two that are shown alike", {LowerTemperature, chili},
        u"Product 3, Chili: This cabinet has one temperature, stored are 215°F and 216°F"_s, [](Menu &menu) {
            menutolookat::makeZpv(menu, unitCelsius);
            menutolookat::setTemperatures(*menu.products[2], 215, 216);
        });
}

void TestInconsistencies::group_data()
{
    using enum FindingKind;
    addColumns();
    add("no name", {NoName, meats}, u"Group 1: There is no name"_s,
        [](Menu &menu) { menu.groups[0]->set_productName({}); });
    add("no members", {NoMembers, meats}, u"Group 1, Meats: There are no products in it"_s,
        [](Menu &menu) { menu.groups[0]->set_productList({}); });
    add("missing member", {MissingMembers, meats, 1, 1},
        u"Group 1, Meats: Its product with the id 77 is not in this menu"_s, [](Menu &menu) {
            menu.groups[0]->set_productList({1, 77});
        });
    add("a group as member", {MissingMembers, meats, 1, 1},
        u"Group 1, Meats: Its product with the id 4 is not in this menu"_s, [](Menu &menu) {
            menu.groups[0]->set_productList({1, 4});
        });
    add("missing members", {MissingMembers, meats, 0, 3},
        u"Group 1, Meats: 3 of its 4 products are not in this menu"_s, [](Menu &menu) {
            menu.groups[0]->set_productList({77, 1, 78, 77});
        });
    add("repeated member", {RepeatedMembers, meats, 2, 1}, u"Group 1, Meats: Bacon is in it twice"_s,
        [](Menu &menu) {
            menu.groups[0]->set_productList({2, 1, 1});
        });
    add("repeated members", {RepeatedMembers, meats, 1, 3},
        u"Group 1, Meats: 3 of its 5 products are repeated"_s, [](Menu &menu) {
            menu.groups[0]->set_productList({1, 1, 2, 1, 2});
        });
    add("many repeated members", {RepeatedMembers, meats, 1, 100},
        u"Group 1, Meats: 100 of its 101 products are repeated"_s,
        [](Menu &menu) { menu.groups[0]->set_productList(QList<int>(101, 1)); });
    const QString hotter = u"Does not fit: 215 °F / 200 °F, this group holds 200 °F / 200 °F"_s;
    add("unfit member", {UnfitMembers, meats, 1, 1}, u"Group 1, Meats: Chili does not suit it. "_s + hotter,
        [](Menu &menu) {
            menu.groups[0]->set_productList({1, 3});
        });
    add("unfit members", {UnfitMembers, meats, 1, 2},
        u"Group 1, Meats: Chili and 1 more do not suit it. "_s + hotter, [](Menu &menu) {
            menu.groups[0]->set_productList({1, 3, 2});
            menu.products[1]->set_lidType(u"Vented"_s);
        });
    add("unfit lid", {UnfitMembers, meats, 2, 1},
        u"Group 1, Meats: Chili does not suit it. Lid Solid, this group has None"_s, [](Menu &menu) {
            menu.groups[0]->set_productList({1, 2, 3});
            menu.products[2]->set_upperTemp(200);
            menu.products[2]->set_lidType(u"Solid"_s);
        });
    add("default behind the last", {NoDefault, meats},
        u"Group 1, Meats: None of its products is the default one"_s,
        [](Menu &menu) { menu.groups[0]->set_defaultIndex(2); });
    add("negative default", {NoDefault, meats}, u"Group 1, Meats: None of its products is the default one"_s,
        [](Menu &menu) { menu.groups[0]->set_defaultIndex(-1); });
}

void TestInconsistencies::bin_data()
{
    using enum FindingKind;
    addColumns();
    const MenuPlace place{.part = Part::Bins, .index = 1, .bin = {2, 1}};
    add("missing entry", {MissingEntry, place},
        u"LUNCH/DINNER, Row 3, Bin 2: The id 77 is not in this menu"_s,
        [](Menu &menu) { menu.dayparts[1].bins[2][1] = 77; });
    add("negative id", {MissingEntry, place}, u"LUNCH/DINNER, Row 3, Bin 2: The id -1 is not in this menu"_s,
        [](Menu &menu) { menu.dayparts[1].bins[2][1] = -1; });
    add("day part without a name", {MissingEntry, place},
        u"Day part 2, Row 3, Bin 2: The id 77 is not in this menu"_s, [](Menu &menu) {
            menu.dayparts[1].names = {QString()};
            menu.dayparts[1].bins[2][1] = 77;
        });
    add("no room", {UnfitEntry, place},
        u"LUNCH/DINNER, Row 3, Bin 2: Chili. Zone split 1/1 has no room here"_s, [](Menu &menu) {
            menu.products[2]->set_zoneSplits(u"1/1"_s);
            menu.dayparts[1].bins[2][1] = 3;
        });
    add("a half behind the whole zone", {UnfitEntry, {.part = Part::Bins, .index = 1, .bin = {2, 0}}},
        u"LUNCH/DINNER, Row 3, Bin 1: Chili. Zone split 1/1 has no room here"_s, [](Menu &menu) {
            menutolookat::makeKtr33(menu, {3, 1, 2});
            menu.products[2]->set_zoneSplits(u"1/1"_s);
            menutolookat::setTemperatures(*menu.products[2], 200, 200);
        });
    add("a filled bin beside it", {UnfitEntry, {.part = Part::Bins, .index = 1, .bin = {2, 0}}},
        u"LUNCH/DINNER, Row 3, Bin 1: Chili. Zone split 1/1 has no room here"_s, [](Menu &menu) {
            menu.products[2]->set_zoneSplits(u"1/1"_s);
            menu.dayparts[1].bins[2] = {3, 1, 0, 0};
            menu.products[2]->set_upperTemp(200);
        });
}

// The third bin of a zone of halves has no button, and the bin plan no place for it.
void TestInconsistencies::thirdHalf_data()
{
    addColumns();
    const Finding finding{FindingKind::UnfitEntry, {.part = Part::Bins, .index = 1, .bin = {2, 2}}};
    const QString text = u"LUNCH/DINNER, Row 3, Bin 3: Ham. This zone has two halves and no third bin"_s;
    add("three halves", finding, text, [](Menu &menu) { menutolookat::makeKtr33(menu, {1, 4, 2}); });
    add("beside the first", finding, text, [](Menu &menu) { menutolookat::makeKtr33(menu, {1, 0, 2}); });
    add("beside the second", finding, text, [](Menu &menu) { menutolookat::makeKtr33(menu, {0, 1, 2}); });
    add("a third", finding, u"LUNCH/DINNER, Row 3, Bin 3: Chili. This zone has two halves and no third bin"_s,
        [](Menu &menu) {
            menutolookat::makeKtr33(menu, {1, 0, 3});
            menu.products[2]->set_zoneSplits(u"1/3"_s);
            menutolookat::setTemperatures(*menu.products[2], 200, 200);
        });
}

// Leads to the first one that is too many.
void TestInconsistencies::tooManyEntries()
{
    Menu menu = menutolookat::menu();
    menutolookat::addProducts(menu, maxEntries - 1);
    QCOMPARE(inconsistencies(menu).count(), 0);
    menutolookat::addProducts(menu, maxEntries);
    const auto finding = [&menu] { return inconsistencies(menu).kept().value(0); };
    QVERIFY(finding() == (Finding{FindingKind::TooManyEntries, {Part::Groups, 0}}));
    QCOMPARE(findingTexts({finding()}, menu),
             QStringList{u"This menu has 101 products and groups, a cabinet takes at most 100"_s});
    menutolookat::addProducts(menu, maxEntries + 10);
    QVERIFY(finding() == (Finding{FindingKind::TooManyEntries, {Part::Products, 100}}));
    QCOMPARE(inconsistencies(menu).count(), 1);
}

void TestInconsistencies::severalComeInTheOrderOfTheMenu()
{
    Menu menu = menutolookat::menu();
    menu.dayparts[0].bins[0] = {3, 1, 0, 0}; // each keeps the other out
    menu.groups[0]->set_defaultIndex(9);
    menu.products[1]->set_holdTime(0);
    menu.products[1]->set_warningTime(0); // nothing is said of it as long as the hold time is wrong
    const QString hotter = u"Does not fit: 215 °F / 200 °F, this zone holds 200 °F / 200 °F"_s;
    const QString cooler = u"Does not fit: 200 °F / 200 °F, this zone holds 215 °F / 200 °F"_s;
    QCOMPARE(findingTexts(inconsistencies(menu).kept(), menu),
             (QStringList{u"Product 2, Ham: Invalid hold time. Minimum value is 6 minutes!"_s,
                          u"Group 1, Meats: None of its products is the default one"_s,
                          u"BREAKFAST, Row 1, Bin 1: Chili. "_s + hotter,
                          u"BREAKFAST, Row 1, Bin 2: Bacon. "_s + cooler}));
}

void TestInconsistencies::namesStayOnALine()
{
    Menu menu = menutolookat::menu();
    menu.products[0]->set_productName({u"Ba\ncon"_s});
    menu.products[0]->set_holdTime(60);
    menu.dayparts[0].bins[0] = {1, 3, 0, 0};
    menu.dayparts[0].names = {u"Early\nMorning"_s};
    const QStringList texts = findingTexts(inconsistencies(menu).kept(), menu);
    QCOMPARE(texts.size(), 3);
    QVERIFY(texts[0].startsWith(u"Product 1, Ba con: "_s));
    QVERIFY(texts[1].startsWith(u"Early Morning, Row 1, Bin 1: Ba con. "_s));
}

void TestInconsistencies::longTextsAreShortened()
{
    Menu menu = menutolookat::menu();
    const QString endless(100'000, u'x');
    menu.products[0]->set_productName({endless});
    menu.products[0]->set_zoneSplits(endless);
    menu.groups[0]->set_productName({endless});
    menu.dayparts[0].names = {endless};
    menu.dayparts[0].bins[0][0] = 1;
    const QStringList texts = findingTexts(inconsistencies(menu).kept(), menu);
    QCOMPARE(texts.size(), 3);
    for (const QString &text : texts)
        QVERIFY2(text.size() < 200, qPrintable(text.left(300)));
}

// The list stays short, however many there are.
void TestInconsistencies::manyAreCounted()
{
    Menu menu = menutolookat::menu();
    menutolookat::addProducts(menu, 5000);
    for (const auto &product : menu.products)
        product->set_holdTime(0);
    menu.groups[0]->set_productList(QList<int>(2'000'000, 9999999));
    const Findings found = inconsistencies(menu);
    QCOMPARE(found.count(), 5000 + 2);
    QCOMPARE(found.kept().size(), Findings::maxKept);
    QCOMPARE(findingTexts(found.kept(), menu).size(), Findings::maxKept);
}

QTEST_APPLESS_MAIN(TestInconsistencies)
#include "tst_inconsistencies.moc"
