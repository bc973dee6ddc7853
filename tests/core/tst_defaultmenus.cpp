// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <iterator>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include "holding/menujson.h"
#include "holding/menunames.h"
#include "holding/zonesplits.h"
#include "tests/support/languages.h"
#include "tests/support/samplemenu.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

struct Expected
{
    int id;
    const char *name;
    int temperature;
    int holdTime;
    int warningTime;
};

constexpr Expected expectedProducts[] = {
    // clang-format off
    {12, "Bacon", 215, 3600, 600},
    {6, "Biscuits", 200, 3600, 1500},
    {21, "Breaded Chicken Patties", 225, 3600, 600},
    {24, "Breaded Fish Fillets", 225, 3600, 300},
    {22, "Chicken Nuggets", 225, 3600, 600},
    {23, "Chicken Strips", 225, 3600, 300},
    {1, "Chili", 190, 5400, 1500},
    {7, "Eggs / Egg Patties", 210, 5400, 300},
    {9, "French Toast", 215, 4500, 900},
    {28, "Fried Mushrooms", 225, 3600, 300},
    {2, "Fruit Compote", 190, 5400, 1500},
    {3, "Gravy", 190, 5400, 300},
    {14, "Grilled Chicken", 215, 5400, 600},
    {15, "Grilled Fish", 215, 5400, 300},
    {16, "Grilled Steak", 215, 5400, 600},
    {17, "Ham Steak", 215, 5400, 600},
    {13, "Hamburger Patties", 200, 5400, 300},
    {25, "Hash Browns", 225, 3600, 300},
    {26, "Hot Dogs", 225, 5400, 300},
    {10, "Meat Balls", 215, 5400, 1500},
    {11, "Meat Loaf", 215, 5400, 300},
    {27, "Mozzarella Sticks", 225, 3600, 300},
    {29, "Pancakes", 225, 3600, 300},
    {4, "Pasta", 200, 5400, 1200},
    {20, "Poppers", 225, 900, 600},
    {19, "Sausage Crumbles", 215, 5400, 1500},
    {18, "Sausage Patties", 215, 5400, 600},
    {8, "Scrambled Eggs", 210, 5400, 600},
    {30, "Tater Tots", 225, 3600, 600},
    {5, "Vegetables", 200, 5400, 1800},
    // clang-format on
};

QJsonObject documentOf(int binsPerZone)
{
    QFile file(u":/KTRx%1_DefaultMenu.json"_s.arg(binsPerZone));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

} // namespace

class TestDefaultMenus : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void products_data();
    void products();
    void everyModelOffersTheirSplits_data();
    void everyModelOffersTheirSplits();
    void namedInEveryLanguage_data();
    void namedInEveryLanguage();
    void chosenByBinsPerZone_data();
    void chosenByBinsPerZone();
    void restOfMenuStays();
    void appends();
    void documents_data() { products_data(); }
    void documents();
};

void TestDefaultMenus::products_data()
{
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<QString>("zoneSplits");
    QTest::newRow("two bins per zone") << 2 << u"1/2"_s;
    QTest::newRow("three bins per zone") << 3 << u"1/3"_s;
}

void TestDefaultMenus::products()
{
    QFETCH(int, binsPerZone);
    QFETCH(QString, zoneSplits);
    Menu menu;
    QCOMPARE(readDefaultMenu(binsPerZone, menu), QString());
    QCOMPARE(std::size(expectedProducts), std::size_t(30));
    QCOMPARE(menu.products.size(), std::size(expectedProducts)); // without the placeholder
    QVERIFY(menu.groups.empty());
    for (std::size_t i = 0; i < menu.products.size(); ++i) {
        const ProductInfo &product = *menu.products[i];
        const Expected &expected = expectedProducts[i];
        QCOMPARE(product.get_productName(), inEveryLanguage(QString::fromLatin1(expected.name)));
        QCOMPARE(product.get_productId(), expected.id);
        QCOMPARE(product.get_upperTemp(), expected.temperature);
        QCOMPARE(product.get_lowerTemp(), expected.temperature);
        QCOMPARE(product.get_holdTime(), expected.holdTime);
        QCOMPARE(product.get_warningTime(), expected.warningTime);
        QCOMPARE(product.get_resetTime(), expected.warningTime);
        QCOMPARE(product.get_fanSpeed(), 60);
        QCOMPARE(product.get_zoneSplits(), zoneSplits);
        QCOMPARE(product.get_timerColor(), u"#fffffd"_s);
        QCOMPARE(product.get_lidType(), u"None"_s);
        QCOMPARE(product.get_bottomType(), u"Normal"_s);
        QCOMPARE(product.get_productLocked(), false);
        QCOMPARE(product.get_isGroup(), false);
    }
}

void TestDefaultMenus::everyModelOffersTheirSplits_data()
{
    QTest::addColumn<int>("binsPerZone");
    for (const CabinetModel &model : allModels)
        QTest::newRow(model.name.data()) << int(model.shape.binsPerZone);
}

void TestDefaultMenus::everyModelOffersTheirSplits()
{
    QFETCH(int, binsPerZone);
    Menu menu;
    QCOMPARE(readDefaultMenu(binsPerZone, menu), QString());
    const QStringList offered = offeredZoneSplits(binsPerZone);
    for (const auto &product : menu.products) {
        const QString splits = product->get_zoneSplits();
        QVERIFY2(offered.contains(splits), qPrintable(u"The default menu has "_s + splits));
    }
}

void TestDefaultMenus::namedInEveryLanguage_data()
{
    QTest::addColumn<QLatin1StringView>("language");
    for (const char *language : languageKeys)
        QTest::newRow(language) << QLatin1StringView(language);
}

void TestDefaultMenus::namedInEveryLanguage()
{
    QFETCH(QLatin1StringView, language);
    for (const int binsPerZone : {2, 3}) {
        const QJsonValue products = documentOf(binsPerZone)["menu"_L1]["products"_L1];
        for (const QJsonValue product : products.toArray()) {
            const QJsonObject names = product["productName"_L1].toObject();
            QCOMPARE(names.value(language), names.value("eng_USA"_L1));
        }
    }
}

void TestDefaultMenus::chosenByBinsPerZone_data()
{
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<QString>("zoneSplits");
    QTest::newRow("unknown cabinet") << 0 << u"1/2"_s;
    QTest::newRow("2") << 2 << u"1/2"_s;
    QTest::newRow("3") << 3 << u"1/3"_s;
    QTest::newRow("4") << 4 << u"1/2"_s;
}

void TestDefaultMenus::chosenByBinsPerZone()
{
    QFETCH(int, binsPerZone);
    Menu menu;
    QCOMPARE(readDefaultMenu(binsPerZone, menu), QString());
    QTEST(menu.products.at(0)->get_zoneSplits(), "zoneSplits");
}

void TestDefaultMenus::restOfMenuStays()
{
    Menu menu;
    menu.configuration = sample::rich().configuration;
    menu.dayparts[0].bins[0][0] = 5;
    const QStringList before = sample::describe(menu);
    QCOMPARE(readDefaultMenu(2, menu), QString());
    menu.products.clear();
    QCOMPARE(sample::describe(menu), before);
}

void TestDefaultMenus::appends()
{
    Menu menu = sample::plain();
    QCOMPARE(readDefaultMenu(3, menu), QString());
    QCOMPARE(int(menu.products.size()), 31);
    QCOMPARE(menu.products[0]->get_productName().at(0), u"Chili"_s);
    QCOMPARE(menu.products[1]->get_productName().at(0), u"Bacon"_s);
    QCOMPARE(int(menu.groups.size()), 1);
}

// What the documents carry although reading leaves it out.
void TestDefaultMenus::documents()
{
    QFETCH(int, binsPerZone);
    QFETCH(QString, zoneSplits);
    const QJsonObject root = documentOf(binsPerZone);
    QCOMPARE(root["header"_L1].toObject(),
             (QJsonObject{{"menuDescription"_L1, "Varno Holding Menu File"_L1}, {"menuVersion"_L1, 1}}));

    const QJsonObject content = root["menu"_L1].toObject();
    const QJsonObject placeholder = content["products"_L1][0].toObject();
    QCOMPARE(content["products"_L1].toArray().size(), 31);
    QCOMPARE(placeholder["productId"_L1].toInt(-1), 0);
    QCOMPARE(placeholder["productName"_L1].toObject(), namesToJson({}));
    QCOMPARE(placeholder["fanSpeed"_L1].toInt(), 100);
    QCOMPARE(placeholder["zoneSplits"_L1].toString(), zoneSplits);
    QCOMPARE(content["productGroups"_L1], QJsonValue(QJsonArray()));

    const QJsonArray layout = content["layout"_L1].toArray();
    QCOMPARE(layout.size(), 2);
    QCOMPARE(layout[0]["daypartName"_L1].toObject(), namesToJson(inEveryLanguage(u"Breakfast"_s)));
    QCOMPARE(layout[1]["daypartName"_L1].toObject(), namesToJson(inEveryLanguage(u"Lunch/Dinner"_s)));
    for (const QJsonValue daypart : layout) {
        QCOMPARE(daypart["inUse"_L1], QJsonValue(true));
        const QJsonArray locations = daypart["productLocations"_L1].toArray();
        QCOMPARE(locations.size(), 12);
        for (int i = 0; i < 12; ++i)
            QCOMPARE(locations[i].toObject(), (QJsonObject{{"bin"_L1, i + 1}, {"productId"_L1, 0}}));
    }
}

QTEST_APPLESS_MAIN(TestDefaultMenus)
#include "tst_defaultmenus.moc"
