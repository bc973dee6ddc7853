// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/groupdraft.h"
#include "holding/inconsistencies.h"
#include "holding/menujson.h"
#include "holding/zonesplits.h"
#include "tests/core/menutolookat.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;
using menutolookat::Change;

/// Where nothing has to be looked at.
class TestInconsistenciesNone : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void menusAsTheProgramMakesThem_data();
    void menusAsTheProgramMakesThem();
    void valuesThatTheDialogsTake_data();
    void valuesThatTheDialogsTake();
    void switchesDecideWhatCounts_data();
    void switchesDecideWhatCounts();
    void binsBeyondTheCabinetAreKept();
    void vacantDaypartsDoNotCount();
    void unknownCabinetHasNoSplitsToMiss();
    void nothingIsChanged();
};

namespace {

QString textsOf(const Menu &menu)
{
    return findingTexts(inconsistencies(menu).kept(), menu).join(u'\n');
}

// A group of the two first products that hold alike.
void addGroup(Menu &menu)
{
    auto group = newGroup(menu.nextFreeId());
    group->set_productName({u"Both"_s});
    GroupDraft draft(*group, menu.configuration);
    for (const auto &product : menu.products) {
        if (draft.fits(*product) && draft.members().size() < 2)
            draft.add(*product);
    }
    draft.writeTo(*group);
    menu.groups.push_back(std::move(group));
}

} // namespace

// Built-in, and with a product and a group of one's own in a bin.
void TestInconsistenciesNone::menusAsTheProgramMakesThem_data()
{
    QTest::addColumn<CabinetConfiguration>("cabinet");
    for (const CabinetModel &model : allModels) {
        for (const int unit : {unitFahrenheit, unitCelsius}) {
            for (const bool on : {false, true})
                QTest::addRow("%s, unit %d, switches %s", model.name.data(), unit, on ? "on" : "off")
                    << CabinetConfiguration{QString(model.type), QString(model.name), unit, on, on, on, on};
        }
    }
}

void TestInconsistenciesNone::menusAsTheProgramMakesThem()
{
    QFETCH(const CabinetConfiguration, cabinet);
    Menu menu;
    menu.configuration = cabinet;
    const int binsPerZone = menu.shape().binsPerZone;
    QCOMPARE(readDefaultMenu(binsPerZone, menu), QString());
    QVERIFY(!menu.products.empty());
    QCOMPARE(textsOf(menu), QString());
    auto product = newProduct(menu.nextFreeId(), binsPerZone);
    product->set_productName({u"New"_s});
    menu.dayparts[0].bins[1][0] = product->get_productId();
    menu.products.push_back(std::move(product));
    addGroup(menu);
    QCOMPARE(menu.groups[0]->get_productList().size(), 2);
    menu.dayparts[0].bins[0][0] = menu.groups[0]->get_productId();
    QCOMPARE(textsOf(menu), QString());
}

void TestInconsistenciesNone::valuesThatTheDialogsTake_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, Change change) { QTest::newRow(name) << change; };
    add("shortest hold time", [](Menu &menu) { menu.products[0]->set_holdTime(360); });
    add("longest hold time", [](Menu &menu) { menu.products[0]->set_holdTime(28800); });
    add("latest alert", [](Menu &menu) { menu.products[0]->set_warningTime(1799); });
    add("latest reset", [](Menu &menu) { menu.products[0]->set_resetTime(3599); });
    add("coldest", [](Menu &menu) { menu.products[2]->set_lowerTemp(90); });
    add("hottest", [](Menu &menu) { menu.products[2]->set_upperTemp(225); });
    add("none in Celsius", [](Menu &menu) {
        menu.configuration.temperatureUnit = unitCelsius;
        menu.products[2]->set_upperTemp(0);
    });
    add("rounded to Celsius", [](Menu &menu) {
        menu.configuration.temperatureUnit = unitCelsius;
        menu.products[2]->set_lowerTemp(89); // 32 °C
    });
    add("slowest fan", [](Menu &menu) { menu.products[2]->set_fanSpeed(0); });
    add("fastest fan", [](Menu &menu) { menu.products[2]->set_fanSpeed(10000); });
    add("whole zone", [](Menu &menu) { menu.products[2]->set_zoneSplits(u"1/1"_s); });
    add("no words", [](Menu &menu) {
        menu.products[2]->set_lidType({});
        menu.products[2]->set_bottomType({});
    });
    add("lid of a product of a ZPV group", [](Menu &menu) {
        menutolookat::makeZpv(menu);
        menu.products[1]->set_lidType(u"Vented"_s);
    });
    add("color", [](Menu &menu) { menu.products[2]->set_timerColor(u"#ff0000"_s); });
    add("id beyond the box", [](Menu &menu) { menu.products[2]->set_productId(100); });
    add("first default", [](Menu &menu) { menu.groups[0]->set_defaultIndex(0); });
    add("group that fixes nothing", [](Menu &menu) {
        menu.groups[0]->set_upperTemp(0);
        menu.groups[0]->set_lowerTemp(0);
        menu.clearBins();
    });
    add("whole zone in its first bin", [](Menu &menu) {
        menu.products[2]->set_zoneSplits(u"1/1"_s);
        menu.dayparts[0].bins[0] = {1, 4, 3, 0};
    });
    add("fan speed chosen after one without", [](Menu &menu) {
        menu.configuration.fanSpeedEnabled = true;
        menu.products[0]->set_fanSpeed(0);
        menu.products[1]->set_fanSpeed(60);
        menu.groups.clear();
        menu.dayparts[0].bins[0] = {1, 2, 0, 0};
    });
    add("two halves of three bins", [](Menu &menu) { menutolookat::makeKtr33(menu, {1, 2}); });
    add("a half in the last of three bins", [](Menu &menu) { menutolookat::makeKtr33(menu, {0, 0, 1}); });
}

void TestInconsistenciesNone::valuesThatTheDialogsTake()
{
    QFETCH(const Change, change);
    Menu menu = menutolookat::menu();
    change(menu);
    QCOMPARE(textsOf(menu), QString());
}

void TestInconsistenciesNone::switchesDecideWhatCounts_data()
{
    using Switch = bool CabinetConfiguration::*;
    QTest::addColumn<Switch>("isOn");
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, Switch isOn, Change change) {
        QTest::newRow(name) << isOn << change;
    };
    add("reset time", &CabinetConfiguration::resetTimeEnabled,
        [](Menu &menu) { menu.products[0]->set_resetTime(3600); });
    add("fan speed", &CabinetConfiguration::fanSpeedEnabled,
        [](Menu &menu) { menu.products[2]->set_fanSpeed(20000); });
    add("fan speed of a member", &CabinetConfiguration::fanSpeedEnabled, [](Menu &menu) {
        menu.groups[0]->set_fanSpeed(60);
        menu.clearBins();
    });
    add("fan speed of a neighbour", &CabinetConfiguration::fanSpeedEnabled, [](Menu &menu) {
        menu.products[2]->set_upperTemp(200);
        menu.products[2]->set_fanSpeed(60);
        menu.products[1]->set_fanSpeed(80);
        menu.groups.clear();
        menu.dayparts[0].bins[0] = {2, 3, 0, 0};
    });
    add("timer color", &CabinetConfiguration::timerColorEnabled,
        [](Menu &menu) { menu.products[0]->set_timerColor(u"red"_s); });
}

void TestInconsistenciesNone::switchesDecideWhatCounts()
{
    QFETCH(bool CabinetConfiguration::*const, isOn);
    QFETCH(const Change, change);
    Menu menu = menutolookat::menu();
    change(menu);
    QVERIFY(inconsistencies(menu).count() > 0);
    menu.configuration.*isOn = false;
    QCOMPARE(textsOf(menu), QString());
}

// Whoever goes on to a larger cabinet has them again.
void TestInconsistenciesNone::binsBeyondTheCabinetAreKept()
{
    Menu menu = menutolookat::menu();
    menu.dayparts[0].bins[3][0] = 77; // a KTR34 has three rows
    QCOMPARE(textsOf(menu), QString());
    menu.configuration.model = u"KTR54"_s;
    QCOMPARE(inconsistencies(menu).count(), 1);
    menu.configuration.model = u"KTR23"_s; // without the fourth bin of a row
    menu.dayparts[0].bins[0] = {1, 4, 1, 77};
    QCOMPARE(textsOf(menu), QString());
}

void TestInconsistenciesNone::vacantDaypartsDoNotCount()
{
    Menu menu = menutolookat::menu();
    menu.dayparts[2].bins[0][0] = 77;
    QCOMPARE(textsOf(menu), QString());
    menu.addDaypart(menu.dayparts[2]);
    QCOMPARE(inconsistencies(menu).count(), 1);
}

void TestInconsistenciesNone::unknownCabinetHasNoSplitsToMiss()
{
    Menu menu = menutolookat::menu();
    menu.configuration.model = u"KTR99"_s;
    menu.products[0]->set_zoneSplits(u"1/7"_s);
    menu.groups.clear();
    QCOMPARE(textsOf(menu), QString());
}

void TestInconsistenciesNone::nothingIsChanged()
{
    Menu menu = menutolookat::menu();
    menu.groups[0]->set_productList({1, 3, 77});
    menu.dayparts[0].bins[0] = {3, 77, 1, 1};
    const QByteArray before = writeMenu(menu);
    QVERIFY(!textsOf(menu).isEmpty());
    QCOMPARE(writeMenu(menu), before);
}

QTEST_APPLESS_MAIN(TestInconsistenciesNone)
#include "tst_inconsistencies_none.moc"
