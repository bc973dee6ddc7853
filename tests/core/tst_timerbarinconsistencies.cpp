// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "tests/support/sampletimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/bins.h"
#include "timerbar/defaultproducts.h"
#include "timerbar/inconsistencies.h"
#include "timerbar/newentries.h"

using namespace Qt::StringLiterals;
using namespace timerbar;

Q_DECLARE_METATYPE(Finding)

/// What is found in a Timer Bar menu of a file, and how it is told.
class TestTimerBarInconsistencies : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void menusAsTheProgramMakesThem_data();
    void menusAsTheProgramMakesThem();
    void product_data();
    void product();
    void temperatures_data();
    void temperatures();
    void pair();
    void pairWithoutAName();
    void pairWithABinThatIsNotThere();
    void pairFilledInEitherOrder();
    void nameOfSeveralLines();
    void binsBeyondTheCabinetAreKept();
    void eachDaypartIsLookedAt();
};

namespace {

using Part = MenuPlace::Part;

// At 200 and 215 °F.
cbr::Menu twoProducts()
{
    return {.model = u"KTR24"_s,
            .products = {{.name = "Bacon", .shortName = "BACN"},
                         {.name = "Chili", .shortName = "CHIL", .upper = 116, .lower = 116}}};
}

QStringList textsOf(const Menu &menu)
{
    return findingTexts(inconsistencies(menu).kept(), menu);
}

} // namespace

void TestTimerBarInconsistencies::menusAsTheProgramMakesThem_data()
{
    cbr::addModelRows();
}

void TestTimerBarInconsistencies::menusAsTheProgramMakesThem()
{
    QFETCH(const QString, model);
    Menu menu;
    menu.model = model;
    menu.products = defaultProducts();
    auto product = newProduct(menu.nextFreeId());
    product->set_productName({u"New"_s});
    product->set_productShortName(u"NEW"_s);
    for (const int unit : {unitFahrenheit, unitCelsius}) {
        menu.temperatureUnit = unit;
        QCOMPARE(textsOf(menu), QStringList());
    }
    menu.dayparts[0][0][0] = product->get_productId();
    menu.dayparts[0][0][1] = product->get_productId();
    menu.products.push_back(std::move(product));
    QCOMPARE(textsOf(menu), QStringList());
}

void TestTimerBarInconsistencies::product_data()
{
    QTest::addColumn<cbr::Product>("product");
    QTest::addColumn<FindingKind>("kind");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, const cbr::Product &product, FindingKind kind,
                        const QString &text) { QTest::newRow(name) << product << kind << text; };
    const QByteArray name = "Egg";
    const QByteArray shortName = "EGG";
    add("no name", {.name = "", .shortName = shortName}, FindingKind::NoName,
        u"Product 3: There is no name"_s);
    add("no short name", {.name = name, .shortName = ""}, FindingKind::NoShortName,
        u"Product 3, Egg: There is no short name"_s);
    add("held too short", {.name = name, .shortName = shortName, .holdMinutes = 5}, FindingKind::HoldTime,
        u"Product 3, Egg: Invalid hold time. Minimum value is 6 minutes!"_s);
    add("held too long", {.name = name, .shortName = shortName, .holdMinutes = 481}, FindingKind::HoldTime,
        u"Product 3, Egg: Invalid hold time. Maximum value is 8 hours!"_s);
    add("not held at all", {.name = name, .shortName = shortName, .holdMinutes = 0, .alertMinutes = 0},
        FindingKind::HoldTime, u"Product 3, Egg: Invalid hold time. Minimum value is 6 minutes!"_s);
    add("late alert", {.name = name, .shortName = shortName, .alertMinutes = 30}, FindingKind::AlertTime,
        u"Product 3, Egg: Invalid cook more alert time. Value must be less than hold time!"_s);
    add("too hot", {.name = name, .shortName = shortName, .upper = 127}, FindingKind::UpperTemperature,
        u"Product 3, Egg: The upper temperature is 226°F, not 100 to 225°F"_s);
    add("too cold", {.name = name, .shortName = shortName, .lower = 0}, FindingKind::LowerTemperature,
        u"Product 3, Egg: The lower temperature is 99°F, not 100 to 225°F"_s);
}

void TestTimerBarInconsistencies::product()
{
    QFETCH(const cbr::Product, product);
    QFETCH(const FindingKind, kind);
    cbr::Menu file = twoProducts();
    QCOMPARE(textsOf(sample::timerBarMenu(file)), QStringList());
    file.products.append(product);
    const Menu menu = sample::timerBarMenu(file);
    const QStringList texts = textsOf(menu);
    QVERIFY2(texts.size() == 1, qPrintable(texts.join(u'\n')));
    QTEST(texts.constFirst(), "text");
    QVERIFY(inconsistencies(menu).kept() == QList{(Finding{kind, {Part::Products, 2}})});
}

// As the boxes of the dialog show them.
void TestTimerBarInconsistencies::temperatures_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("stored"); ///< °F - 99
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("coldest") << unitFahrenheit << 1 << QStringList();
    QTest::newRow("hottest") << unitFahrenheit << 126 << QStringList();
    QTest::newRow("coldest in Celsius") << unitCelsius << 1 << QStringList();
    QTest::newRow("hottest in Celsius") << unitCelsius << 126 << QStringList();
    QTest::newRow("too hot in Celsius")
        << unitCelsius << 127
        << QStringList{u"Product 1, Egg: The upper temperature is 108°C, not 38 to 107°C"_s,
                       u"Product 1, Egg: The lower temperature is 108°C, not 38 to 107°C"_s};
}

void TestTimerBarInconsistencies::temperatures()
{
    QFETCH(const int, unit);
    QFETCH(const int, stored);
    const cbr::Product egg{.name = "Egg", .shortName = "EGG", .upper = stored, .lower = stored};
    QTEST(textsOf(sample::timerBarMenu({.unit = unit, .products = {egg}})), "texts");
}

// Bins are numbered from the bottom row on.
void TestTimerBarInconsistencies::pair()
{
    cbr::Menu file = twoProducts();
    file.dayparts[2] = {0, 100, 0, 1};
    const Menu menu = sample::timerBarMenu(file);
    const MenuPlace bacon{.part = Part::Bins, .index = 2, .bin = {1, 2}};
    const MenuPlace chili{.part = Part::Bins, .index = 2, .bin = {1, 3}};
    QVERIFY(inconsistencies(menu).kept() ==
            (QList<Finding>{{FindingKind::UnfitEntry, bacon}, {FindingKind::UnfitEntry, chili}}));
    QCOMPARE(textsOf(menu),
             (QStringList{
                 u"Lunch, Row 2, Bin 3: Bacon. Does not fit: 200 °F / 200 °F, this pair holds 215 °F"_s,
                 u"Lunch, Row 2, Bin 4: Chili. Does not fit: 215 °F / 215 °F, this pair holds 200 °F"_s}));
    file.dayparts[2] = {0, 0, 1, 1};
    QCOMPARE(textsOf(sample::timerBarMenu(file)), QStringList());
}

void TestTimerBarInconsistencies::pairWithoutAName()
{
    cbr::Menu file = twoProducts();
    file.products[1].name.clear();
    file.dayparts[2] = {0, 1};
    QCOMPARE(
        textsOf(sample::timerBarMenu(file)),
        (QStringList{u"Product 2: There is no name"_s,
                     u"Lunch, Row 2, Bin 1: Bacon. Does not fit: 200 °F / 200 °F, this pair holds 215 °F"_s,
                     u"Lunch, Row 2, Bin 2: Id 1. Does not fit: 215 °F / 215 °F, this pair holds 200 °F"_s}));
}

// Where it holds something, nobody can see it or take it out.
void TestTimerBarInconsistencies::pairWithABinThatIsNotThere()
{
    cbr::Menu file = twoProducts();
    file.dayparts[2] = {0, 100, 0, 1};
    Menu menu = sample::timerBarMenu(file);
    menu.model = u"KTR23"_s;
    QCOMPARE(textsOf(menu), QStringList());
}

// The list to pick from asks of the second one what the first one has, and not the other way round.
void TestTimerBarInconsistencies::pairFilledInEitherOrder()
{
    cbr::Menu file = twoProducts();
    file.products.append({.name = "Egg", .shortName = "EGG", .upper = 121, .lower = 101});
    file.dayparts[2] = {0, 2};
    QCOMPARE(textsOf(sample::timerBarMenu(file)), QStringList());
    file.dayparts[2] = {2, 0};
    QCOMPARE(textsOf(sample::timerBarMenu(file)), QStringList());
}

void TestTimerBarInconsistencies::nameOfSeveralLines()
{
    cbr::Menu file = twoProducts();
    file.products[0].name = "Ba\ncon";
    file.products[0].holdMinutes = 5;
    file.dayparts[2] = {0, 1};
    const QStringList texts = textsOf(sample::timerBarMenu(file));
    QCOMPARE(texts.size(), 3);
    QVERIFY(texts[0].startsWith(u"Product 1, Ba con: "_s));
    QVERIFY(texts[1].startsWith(u"Lunch, Row 2, Bin 1: Ba con. "_s));
}

// Whoever goes on to a larger cabinet has them again.
void TestTimerBarInconsistencies::binsBeyondTheCabinetAreKept()
{
    cbr::Menu file = twoProducts();
    file.dayparts[0] = {100, 100, 0, 1};
    Menu menu = sample::timerBarMenu(file);
    QCOMPARE(inconsistencies(menu).count(), 2);
    menu.model = u"KTR22"_s;
    QCOMPARE(textsOf(menu), QStringList());
}

void TestTimerBarInconsistencies::eachDaypartIsLookedAt()
{
    for (int daypart = 0; daypart < daypartCount; ++daypart) {
        cbr::Menu file = twoProducts();
        file.dayparts.at(static_cast<std::size_t>(daypart)) = {0, 1};
        const QStringList texts = textsOf(sample::timerBarMenu(file));
        QCOMPARE(texts.size(), 2);
        for (const QString &text : texts)
            QVERIFY(text.startsWith(daypartNames()[daypart] + u", Row 2, "_s));
    }
}

QTEST_APPLESS_MAIN(TestTimerBarInconsistencies)
#include "tst_timerbarinconsistencies.moc"
