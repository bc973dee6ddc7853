// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menujson.h"
#include "holding/settings.h"
#include "tests/support/languages.h"
#include "tests/support/menudocument.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

QList<int> idsOf(const Entries &entries)
{
    QList<int> ids;
    for (const auto &entry : entries)
        ids.append(entry->get_productId());
    return ids;
}

QByteArray repeated(const QByteArray &element, int count)
{
    QByteArrayList elements;
    for (int i = 0; i < count; ++i)
        elements.append(element);
    return elements.join(',');
}

} // namespace

class TestMenuJsonRead : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void numbers_data();
    void numbers();
    void productDefaults_data();
    void productDefaults();
    void groupDefaults_data() { productDefaults_data(); }
    void groupDefaults();
    void texts_data();
    void texts();
    void groupMembers_data();
    void groupMembers();
    void placeholdersVanish();
    void repeatedAndNegativeIdsStay();
    void moreEntriesThanMayBeAdded();
    void header_data();
    void header();
    void dayparts_data();
    void dayparts();
    void daypartsReplaceTheOldOnes();
    void entriesReplaceTheOldOnes();
};

void TestMenuJsonRead::numbers_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<int>("read");
    QTest::newRow("whole") << QByteArray("215") << 215;
    QTest::newRow("negative") << QByteArray("-40") << -40;
    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("minus zero") << QByteArray("-0") << 0;
    QTest::newRow("whole, with a point") << QByteArray("215.0") << 215;
    QTest::newRow("whole, with an exponent") << QByteArray("2e2") << 200;
    QTest::newRow("largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("smallest") << QByteArray("-2147483648") << -2147483647 - 1;
    QTest::newRow("one too large") << QByteArray("2147483648") << 0;
    QTest::newRow("one too small") << QByteArray("-2147483649") << 0;
    QTest::newRow("would wrap to 5") << QByteArray("4294967301") << 0;
    QTest::newRow("64 bits") << QByteArray("9223372036854775807") << 0;
    QTest::newRow("more than 64 bits") << QByteArray("18446744073709551621") << 0;
    QTest::newRow("huge") << QByteArray("1e300") << 0;
    QTest::newRow("fraction") << QByteArray("215.5") << 0;
    QTest::newRow("small fraction") << QByteArray("1e-9") << 0;
    QTest::newRow("text") << QByteArray("\"215\"") << 0;
    QTest::newRow("true") << QByteArray("true") << 0;
    QTest::newRow("null") << QByteArray("null") << 0;
    QTest::newRow("array") << QByteArray("[215]") << 0;
    QTest::newRow("object") << QByteArray("{}") << 0;
}

void TestMenuJsonRead::numbers()
{
    QFETCH(QByteArray, number);
    QFETCH(int, read);
    QByteArray product = R"({"productId":1,"holdingTime":$,"warningTime":$,"lowerTemp":$,"upperTemp":$,)"
                         R"("fanSpeed":$,"resetTime":$})";
    QByteArray group =
        R"({"groupId":2,"lowerTemp":$,"upperTemp":$,"fanSpeed":$,"defaultProd":$,"products":[7,$,8]})";
    QByteArray daypart = R"({"productLocations":[{"bin":3,"productId":$}]})";
    Menu menu;
    QCOMPARE(document::read(document::withLists(product.replace("$", number), group.replace("$", number),
                                                daypart.replace("$", number)),
                            menu),
             QString());
    const ProductInfo &first = *menu.products.at(0);
    QCOMPARE(first.get_holdTime(), read);
    QCOMPARE(first.get_warningTime(), read);
    QCOMPARE(first.get_lowerTemp(), read);
    QCOMPARE(first.get_upperTemp(), read);
    QCOMPARE(first.get_fanSpeed(), read);
    QCOMPARE(first.get_resetTime(), read);
    const ProductInfo &second = *menu.groups.at(0);
    QCOMPARE(second.get_lowerTemp(), read);
    QCOMPARE(second.get_upperTemp(), read);
    QCOMPARE(second.get_fanSpeed(), read);
    QCOMPARE(second.get_defaultIndex(), read);
    QCOMPARE(second.get_productList(), (QList<int>{7, read, 8}));
    QCOMPARE(menu.dayparts[0].bins[0][2], read);
}

void TestMenuJsonRead::productDefaults_data()
{
    QTest::addColumn<QByteArray>("others");
    QTest::newRow("missing keys") << QByteArray();
    QTest::newRow("unknown keys") << QByteArray(R"(,"color":"red","HoldingTime":3,"isGroup":true)");
    QTest::newRow("null") << QByteArray(
        R"(,"productName":null,"groupName":null,"holdingTime":null,"zoneSplits":null,"timerColor":null,)"
        R"("productLocked":null,"lidType":null,"bottomType":null,"products":null,"defaultProd":null)");
    QTest::newRow("numbers and flags for texts")
        << QByteArray(R"(,"productName":1,"groupName":1,"zoneSplits":0.5,"timerColor":255,"productLocked":1,)"
                      R"("lidType":true,"bottomType":[],"products":1)");
    QTest::newRow("texts for numbers and flags") << QByteArray(
        R"(,"productName":"Bacon","groupName":"Bacon","holdingTime":"3600","warningTime":"1",)"
        R"("lowerTemp":"1","upperTemp":"1","fanSpeed":"1","resetTime":"1","productLocked":"true",)"
        R"("products":"1","defaultProd":"1")");
    QTest::newRow("object for the members") << QByteArray(R"(,"products":{"0":1},"productName":["Bacon"])");
}

void TestMenuJsonRead::productDefaults()
{
    QFETCH(QByteArray, others);
    Menu menu;
    QCOMPARE(document::read(document::withLists(R"({"productId":4)" + others + '}', "", ""), menu),
             QString());
    QCOMPARE(idsOf(menu.products), QList<int>{4});
    const ProductInfo &product = *menu.products[0];
    QCOMPARE(product.get_isGroup(), false);
    QCOMPARE(product.get_productLocked(), false);
    QCOMPARE(product.get_productName(), inEveryLanguage({}));
    QCOMPARE(product.get_productShortName(), QString());
    QCOMPARE(product.get_holdTime(), 0);
    QCOMPARE(product.get_warningTime(), 0);
    QCOMPARE(product.get_resetTime(), 0);
    QVERIFY(holdingSettings(product, true) == HoldingSettings());
    QCOMPARE(product.get_bottomType(), QString());
    QCOMPARE(product.get_timerColor(), u"#fffffd"_s);
    QCOMPARE(product.get_productList(), QList<int>());
    QCOMPARE(product.get_defaultIndex(), 0);
}

void TestMenuJsonRead::groupDefaults()
{
    QFETCH(QByteArray, others);
    Menu menu;
    QCOMPARE(document::read(document::withLists("", R"({"groupId":4)" + others + '}', ""), menu), QString());
    QCOMPARE(idsOf(menu.groups), QList<int>{4});
    const ProductInfo &group = *menu.groups[0];
    QCOMPARE(group.get_isGroup(), true);
    QCOMPARE(group.get_productLocked(), false);
    QCOMPARE(group.get_productName(), inEveryLanguage({}));
    QVERIFY(holdingSettings(group, true) == HoldingSettings());
    QCOMPARE(group.get_productList(), QList<int>());
    QCOMPARE(group.get_defaultIndex(), 0);
    QCOMPARE(group.get_timerColor(), u"#fffffd"_s);
}

void TestMenuJsonRead::texts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray(R"("")") << QString();
    QTest::newRow("unknown word") << QByteArray(R"("Glass")") << u"Glass"_s;
    QTest::newRow("blanks stay") << QByteArray(R"(" a ")") << u" a "_s;
    QTest::newRow("escapes") << QByteArray(R"("\u00e4\n\"\\\/")") << u"ä\n\"\\/"_s;
    QTest::newRow("UTF-8") << QByteArray("\"ä\"") << u"ä"_s;
    QTest::newRow("zero character") << QByteArray(R"("a\u0000b")") << u"a\0b"_s;
}

void TestMenuJsonRead::texts()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, text);
    QByteArray product = R"({"productId":1,"productName":{"eng_USA":$},"zoneSplits":$,"timerColor":$,)"
                         R"("lidType":$,"bottomType":$,"productLocked":true})";
    QByteArray group = R"({"groupId":2,"groupName":{"eng_USA":$},"zoneSplits":$,"lidType":$})";
    QByteArray daypart = R"({"daypartName":{"eng_USA":$}})";
    Menu menu;
    QCOMPARE(document::read(document::withLists(product.replace("$", json), group.replace("$", json),
                                                daypart.replace("$", json)),
                            menu),
             QString());
    QCOMPARE(menu.products.at(0)->get_productName().at(0), text);
    QCOMPARE(menu.products.at(0)->get_zoneSplits(), text);
    QCOMPARE(menu.products.at(0)->get_timerColor(), text);
    QCOMPARE(menu.products.at(0)->get_lidType(), text);
    QCOMPARE(menu.products.at(0)->get_bottomType(), text);
    QCOMPARE(menu.products.at(0)->get_productLocked(), true);
    QCOMPARE(menu.groups.at(0)->get_productName().at(0), text);
    QCOMPARE(menu.groups.at(0)->get_zoneSplits(), text);
    QCOMPARE(menu.groups.at(0)->get_lidType(), text);
    QCOMPARE(menu.dayparts[0].names.at(0), text);
}

void TestMenuJsonRead::groupMembers_data()
{
    QTest::addColumn<QByteArray>("products");
    QTest::addColumn<QList<int>>("members");
    QTest::newRow("none") << QByteArray("[]") << QList<int>{};
    QTest::newRow("in order") << QByteArray("[3,1,2]") << QList<int>{3, 1, 2};
    QTest::newRow("repeated, of no product, negative")
        << QByteArray("[3,3,99,-1]") << QList<int>{3, 3, 99, -1};
    QTest::newRow("keep their places") << QByteArray(R"([3,"1",null,2])") << QList<int>{3, 0, 0, 2};
}

void TestMenuJsonRead::groupMembers()
{
    QFETCH(QByteArray, products);
    Menu menu;
    QCOMPARE(document::read(
                 document::withLists("", R"({"groupId":1,"defaultProd":9,"products":)" + products + '}', ""),
                 menu),
             QString());
    QTEST(menu.groups.at(0)->get_productList(), "members");
    QCOMPARE(menu.groups.at(0)->get_defaultIndex(), 9);
}

void TestMenuJsonRead::placeholdersVanish()
{
    const QByteArray products =
        R"({"productId":0},{"productId":1},{},{"productId":"2"},7,null,"x",[],{"productId":3})";
    const QByteArray groups = R"({"groupId":0},{"groupId":5},{"productId":6},true,{"groupId":0.5})";
    Menu menu;
    QCOMPARE(document::read(document::withLists(products, groups, ""), menu), QString());
    QCOMPARE(idsOf(menu.products), (QList<int>{1, 3}));
    QCOMPARE(idsOf(menu.groups), QList<int>{5});
}

void TestMenuJsonRead::repeatedAndNegativeIdsStay()
{
    const QByteArray products = R"({"productId":2},{"productId":-7},{"productId":2},{"productId":1})";
    const QByteArray groups = R"({"groupId":2},{"groupId":2},{"groupId":-7})";
    Menu menu;
    QCOMPARE(document::read(document::withLists(products, groups, ""), menu), QString());
    QCOMPARE(idsOf(menu.products), (QList<int>{2, -7, 2, 1}));
    QCOMPARE(idsOf(menu.groups), (QList<int>{2, 2, -7}));

    Menu again;
    QCOMPARE(document::read(writeMenu(menu), again), QString());
    QCOMPARE(idsOf(again.products), idsOf(menu.products));
    QCOMPARE(idsOf(again.groups), idsOf(menu.groups));
}

void TestMenuJsonRead::moreEntriesThanMayBeAdded()
{
    Menu menu;
    QCOMPARE(document::read(document::withLists(repeated(R"({"productId":1})", 150),
                                                repeated(R"({"groupId":2})", 120), ""),
                            menu),
             QString());
    QCOMPARE(int(menu.products.size()), 150);
    QCOMPARE(int(menu.groups.size()), 120);

    Menu again;
    QCOMPARE(document::read(writeMenu(menu), again), QString());
    QCOMPARE(int(again.products.size()), 150);
    QCOMPARE(int(again.groups.size()), 120);
}

void TestMenuJsonRead::header_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QString>("expected"); // model, unit, fan speed, reset time, timer colour, id
    QTest::newRow("all") << QByteArray(R"({"cabinetType":"ZPV","cabinetModel":"ZPV23","temperatureUnit":0,)"
                                       R"("fanSpeedEnabled":false,"resetTimeEnabled":false,)"
                                       R"("timerColorEnabled":false,"prodcutIdEnabled":false})")
                         << u"ZPV ZPV23 0 0000"_s;
    QTest::newRow("none keeps the old values") << QByteArray(R"({"menuVersion":1})") << u"QHX KTR34 1 1111"_s;
    QTest::newRow("model only") << QByteArray(R"({"cabinetModel":"KTR22"})") << u"QHX KTR22 1 1111"_s;
    QTest::newRow("unit only") << QByteArray(R"({"temperatureUnit":0})") << u"QHX KTR34 0 1111"_s;
    QTest::newRow("unknown unit") << QByteArray(R"({"temperatureUnit":7})") << u"QHX KTR34 7 1111"_s;
    QTest::newRow("fraction as the unit")
        << QByteArray(R"({"temperatureUnit":1.5})") << u"QHX KTR34 0 1111"_s;
    QTest::newRow("fan speed only") << QByteArray(R"({"fanSpeedEnabled":false})") << u"QHX KTR34 1 0111"_s;
    QTest::newRow("reset time only") << QByteArray(R"({"resetTimeEnabled":false})") << u"QHX KTR34 1 1011"_s;
    QTest::newRow("timer colour only")
        << QByteArray(R"({"timerColorEnabled":false})") << u"QHX KTR34 1 1101"_s;
    QTest::newRow("id only") << QByteArray(R"({"prodcutIdEnabled":false})") << u"QHX KTR34 1 1110"_s;
    QTest::newRow("id, spelt right") << QByteArray(R"({"productIdEnabled":false})") << u"QHX KTR34 1 1111"_s;
    QTest::newRow("wrong types keep the old values")
        << QByteArray(R"({"cabinetType":1,"cabinetModel":null,"temperatureUnit":"0","fanSpeedEnabled":0,)"
                      R"("resetTimeEnabled":"false","timerColorEnabled":null,"prodcutIdEnabled":[]})")
        << u"QHX KTR34 1 1111"_s;
}

void TestMenuJsonRead::header()
{
    QFETCH(QByteArray, header);
    Menu menu;
    CabinetConfiguration &configuration = menu.configuration;
    configuration = {u"QHX"_s, u"KTR34"_s, unitCelsius, true, true, true, true};
    QCOMPARE(document::read(document::of(R"({"products":[],"productGroups":[],"layout":[]})", header), menu),
             QString());
    const QString read = u"%1 %2 %3 %4%5%6%7"_s.arg(configuration.type, configuration.model)
                             .arg(configuration.temperatureUnit)
                             .arg(configuration.fanSpeedEnabled)
                             .arg(configuration.resetTimeEnabled)
                             .arg(configuration.timerColorEnabled)
                             .arg(configuration.productIdEnabled);
    QTEST(read, "expected");
}

void TestMenuJsonRead::dayparts_data()
{
    QTest::addColumn<QByteArray>("daypart");
    QTest::addColumn<bool>("inUse");
    QTest::newRow("in use") << QByteArray(R"({"inUse":true})") << true;
    QTest::newRow("not in use") << QByteArray(R"({"inUse":false})") << false;
    QTest::newRow("nothing said") << QByteArray("{}") << true;
    QTest::newRow("number") << QByteArray(R"({"inUse":0})") << true;
    QTest::newRow("text") << QByteArray(R"({"inUse":"false"})") << true;
    QTest::newRow("no object") << QByteArray("3") << true;
    QTest::newRow("locations are no array")
        << QByteArray(R"({"productLocations":{"bin":1,"productId":2}})") << true;
    QTest::newRow("name is no object") << QByteArray(R"({"daypartName":"BREAKFAST"})") << true;
}

void TestMenuJsonRead::dayparts()
{
    QFETCH(QByteArray, daypart);
    Menu menu;
    QCOMPARE(document::read(document::withLists("", "", daypart), menu), QString());
    QCOMPARE(menu.daypartCount, 1);
    QTEST(menu.dayparts[0].inUse, "inUse");
    QCOMPARE(menu.dayparts[0].names, inEveryLanguage({}));
    QVERIFY(menu.dayparts[0].bins == Daypart().bins);
}

void TestMenuJsonRead::daypartsReplaceTheOldOnes()
{
    for (int count = 0; count <= maxDayparts; ++count) {
        Menu menu;
        menu.dayparts[9].bins[7][3] = 5;
        QCOMPARE(document::read(document::withLists("", "", repeated("{}", count)), menu), QString());
        QCOMPARE(menu.daypartCount, count);
        for (std::size_t i = 0; i < maxDayparts; ++i) {
            QCOMPARE(menu.dayparts[i].inUse, static_cast<int>(i) < count);
            QCOMPARE(menu.dayparts[i].names, inEveryLanguage({}));
            QVERIFY(menu.dayparts[i].bins == Daypart().bins);
        }
    }
}

void TestMenuJsonRead::entriesReplaceTheOldOnes()
{
    Menu menu;
    QCOMPARE(document::read(document::withLists(R"({"productId":1})", R"({"groupId":2})", ""), menu),
             QString());
    QCOMPARE(document::read(document::withLists(R"({"productId":3})", R"({"groupId":4})", ""), menu),
             QString());
    QCOMPARE(idsOf(menu.products), QList<int>{3});
    QCOMPARE(idsOf(menu.groups), QList<int>{4});
}

QTEST_APPLESS_MAIN(TestMenuJsonRead)
#include "tst_menujson_read.moc"
