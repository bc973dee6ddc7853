// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menujson.h"
#include "tests/support/menudocument.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

const QString corrupted = u"File format is corrupted!"_s;
const QString noHeader = u"File header read failed"_s;
const QString canceled = u"File read canceled. Unkown configuration!"_s;
const QString emptyMenu = u"Menu is empty!"_s;
const QString noProducts = u"Products list read failed!"_s;
const QString noGroups = u"Groups list read failed!"_s;
const QString noDayparts = u"Dayparts read failed!"_s;

const QByteArray unknownCabinet = R"({"cabinetType":"QHX","cabinetModel":"KTR99","temperatureUnit":1})";
const QByteArray goodMenu = R"({"products":[{"productId":1}],"productGroups":[{"groupId":2}],"layout":[{}]})";

QByteArray nested(int depth)
{
    return R"({"header":{"a":1},"menu":)" + QByteArray(depth, '[') + QByteArray(depth, ']') + '}';
}

QByteArray layoutOf(int dayparts)
{
    QByteArrayList elements;
    for (int i = 0; i < dayparts; ++i)
        elements.append("{}");
    return document::withLists(R"({"productId":1})", R"({"groupId":2})", elements.join(','));
}

} // namespace

class TestMenuJsonFaults : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void messages_data();
    void messages();
    void firstFaultCounts_data();
    void firstFaultCounts();
    void keepsWhatWasReadBefore_data();
    void keepsWhatWasReadBefore();
    void asksForUnknownCabinets_data();
    void asksForUnknownCabinets();
    void asksWithWhatTheHeaderSays();
    void takesTheAnswer();
    void goesOnWithoutCabinet();
    void goesOnAfterTheAnswer();
};

void TestMenuJsonFaults::messages_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    QTest::newRow("good file") << document::of(goodMenu) << QString();
    QTest::newRow("good file, keys in another order")
        << QByteArray(R"({"menu":)" + goodMenu + R"(,"header":{"cabinetModel":"ZPV23","cabinetType":"ZPV"}})")
        << QString();
    QTest::newRow("good file, unknown members")
        << QByteArray(R"({"x":[1],"header":{"cabinetModel":"ZPV23","cabinetType":"ZPV","x":1},"menu":)" +
                      goodMenu.chopped(1) + R"(,"x":{}}})")
        << QString();

    QTest::newRow("empty file") << QByteArray("") << corrupted;
    QTest::newRow("blanks") << QByteArray(" \n\t ") << corrupted;
    QTest::newRow("text") << QByteArray("Manual edits may render this file useless") << corrupted;
    QTest::newRow("array") << QByteArray(R"([{"header":{"a":1}}])") << corrupted;
    QTest::newRow("number") << QByteArray("1") << corrupted;
    QTest::newRow("null") << QByteArray("null") << corrupted;
    QTest::newRow("cut off") << document::of(goodMenu).chopped(1) << corrupted;
    QTest::newRow("something behind it") << QByteArray(document::of(goodMenu) + "}") << corrupted;
    QTest::newRow("two documents") << document::of(goodMenu).repeated(2) << corrupted;
    QTest::newRow("comma too many") << document::of(goodMenu.chopped(1) + ",}") << corrupted;
    QTest::newRow("comment") << QByteArray("// menu\n" + document::of(goodMenu)) << corrupted;
    QTest::newRow("single quotes") << document::of(goodMenu).replace('"', '\'') << corrupted;
    QTest::newRow("invalid UTF-8") << document::of(goodMenu, "{\"Note\":\"\xff\"}") << corrupted;
    QTest::newRow("Latin-1") << document::of(goodMenu, "{\"Note\":\"K\xe4se\"}") << corrupted;
    QTest::newRow("bytes of another format") << QByteArray("\x01\x00\x02\x00menu\xff\xfe", 10) << corrupted;
    QTest::newRow("nested too deep") << nested(5000) << corrupted;
    QTest::newRow("number without an end") << document::of(R"({"products":-})") << corrupted;

    QTest::newRow("empty object") << QByteArray("{}") << noHeader;
    QTest::newRow("no header") << QByteArray(R"({"menu":)" + goodMenu + '}') << noHeader;
    QTest::newRow("empty header") << document::of(goodMenu, "{}") << noHeader;
    QTest::newRow("header is an array") << document::of(goodMenu, "[1]") << noHeader;
    QTest::newRow("header is a text") << document::of(goodMenu, "\"QHX\"") << noHeader;
    QTest::newRow("header is null") << document::of(goodMenu, "null") << noHeader;
    QTest::newRow("header in capitals") << document::of(goodMenu).replace("header", "HEADER") << noHeader;

    QTest::newRow("unknown cabinet") << document::of(goodMenu, unknownCabinet) << canceled;
    QTest::newRow("no cabinet") << document::of(goodMenu, R"({"Note":"x"})") << canceled;
    QTest::newRow("cabinet in small letters")
        << document::of(goodMenu, R"({"cabinetType":"qhx","cabinetModel":"ktr22"})") << canceled;

    QTest::newRow("no menu") << QByteArray(R"({"header":{"cabinetModel":"ZPV23","cabinetType":"ZPV"}})")
                             << emptyMenu;
    QTest::newRow("empty menu") << document::of("{}") << emptyMenu;
    QTest::newRow("menu is an array") << document::of("[" + goodMenu + "]") << emptyMenu;
    QTest::newRow("menu is null") << document::of("null") << emptyMenu;

    QTest::newRow("no products") << document::of(R"({"productGroups":[],"layout":[]})") << noProducts;
    QTest::newRow("products are an object")
        << document::of(R"({"products":{},"productGroups":[],"layout":[]})") << noProducts;
    QTest::newRow("products are null")
        << document::of(R"({"products":null,"productGroups":[],"layout":[]})") << noProducts;
    QTest::newRow("no groups") << document::of(R"({"products":[],"layout":[]})") << noGroups;
    QTest::newRow("groups are a number")
        << document::of(R"({"products":[],"productGroups":0,"layout":[]})") << noGroups;
    QTest::newRow("no day parts") << document::of(R"({"products":[],"productGroups":[]})") << noDayparts;
    QTest::newRow("day parts are an object")
        << document::of(R"({"products":[],"productGroups":[],"layout":{}})") << noDayparts;
    QTest::newRow("day parts are a text")
        << document::of(R"({"products":[],"productGroups":[],"layout":"x"})") << noDayparts;
    QTest::newRow("10 day parts") << layoutOf(10) << QString();
    QTest::newRow("11 day parts") << layoutOf(11) << noDayparts;
    QTest::newRow("1000 day parts") << layoutOf(1000) << noDayparts;
}

void TestMenuJsonFaults::messages()
{
    QFETCH(QByteArray, json);
    Menu menu;
    QTEST(document::read(json, menu), "message");
}

void TestMenuJsonFaults::firstFaultCounts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    QTest::newRow("corrupted before the header") << QByteArray(R"({"header":{},"menu":)") << corrupted;
    QTest::newRow("header before the cabinet and the menu") << document::of("{}", "{}") << noHeader;
    QTest::newRow("header before the products") << document::of(R"({"products":0})", "0") << noHeader;
    QTest::newRow("cabinet before the empty menu") << document::of("{}", unknownCabinet) << canceled;
    QTest::newRow("cabinet before the products")
        << document::of(R"({"products":0})", unknownCabinet) << canceled;
    QTest::newRow("cabinet before the day parts")
        << document::of(R"({"products":[],"productGroups":[],"layout":0})", unknownCabinet) << canceled;
    QTest::newRow("products before the groups")
        << document::of(R"({"products":0,"productGroups":0,"layout":[]})") << noProducts;
    QTest::newRow("products before the day parts")
        << document::of(R"({"layout":0,"products":0,"productGroups":[]})") << noProducts;
    QTest::newRow("groups before the day parts")
        << document::of(R"({"layout":0,"productGroups":0,"products":[]})") << noGroups;
    QTest::newRow("everything missing below a menu") << document::of(R"({"x":1})") << noProducts;
}

void TestMenuJsonFaults::firstFaultCounts()
{
    QFETCH(QByteArray, json);
    Menu menu;
    QTEST(document::read(json, menu), "message");
}

void TestMenuJsonFaults::keepsWhatWasReadBefore_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("products");
    QTest::addColumn<int>("groups");
    QTest::newRow("corrupted") << QByteArray("{") << QString() << 0 << 0;
    QTest::newRow("no header") << document::of(goodMenu, "{}") << QString() << 0 << 0;
    QTest::newRow("unknown cabinet") << document::of(goodMenu, unknownCabinet) << u"KTR99"_s << 0 << 0;
    QTest::newRow("empty menu") << document::of("{}") << u"KTR24"_s << 0 << 0;
    QTest::newRow("no products") << document::of(R"({"productGroups":[{"groupId":2}],"layout":[]})")
                                 << u"KTR24"_s << 0 << 0;
    QTest::newRow("no groups") << document::of(R"({"products":[{"productId":1}],"layout":[]})") << u"KTR24"_s
                               << 1 << 0;
    QTest::newRow("no day parts") << document::of(
                                         R"({"products":[{"productId":1}],"productGroups":[{"groupId":2}]})")
                                  << u"KTR24"_s << 1 << 1;
    QTest::newRow("11 day parts") << layoutOf(11) << u"KTR24"_s << 1 << 1;
}

void TestMenuJsonFaults::keepsWhatWasReadBefore()
{
    QFETCH(QByteArray, json);
    QFETCH(int, products);
    QFETCH(int, groups);
    Menu menu;
    QVERIFY(!document::read(json, menu).isEmpty());
    QTEST(menu.configuration.model, "model");
    QCOMPARE(int(menu.products.size()), products);
    QCOMPARE(int(menu.groups.size()), groups);
    QCOMPARE(menu.daypartCount, 2);
    QCOMPARE(menu.dayparts[1].names.at(0), u"LUNCH/DINNER"_s);
}

void TestMenuJsonFaults::asksForUnknownCabinets_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("questions");
    QTest::newRow("known cabinet") << document::of(goodMenu) << 0;
    QTest::newRow("corrupted") << QByteArray("{") << 0;
    QTest::newRow("no header") << document::of(goodMenu, "{}") << 0;
    QTest::newRow("unknown model") << document::of(goodMenu, unknownCabinet) << 1;
    QTest::newRow("model of the other type")
        << document::of(goodMenu, R"({"cabinetType":"ZPV","cabinetModel":"KTR22"})") << 1;
    QTest::newRow("no type") << document::of(goodMenu, R"({"cabinetModel":"KTR22"})") << 1;
    QTest::newRow("no model") << document::of(goodMenu, R"({"cabinetType":"QHX"})") << 1;
    QTest::newRow("neither") << document::of(goodMenu, R"({"Note":"x"})") << 1;
}

void TestMenuJsonFaults::asksForUnknownCabinets()
{
    QFETCH(QByteArray, json);
    for (const bool answer : {true, false}) {
        int questions = 0;
        Menu menu;
        const QString message = readMenu(json, menu, [&](CabinetConfiguration &) {
            ++questions;
            return answer;
        });
        QTEST(questions, "questions");
        if (questions > 0)
            QCOMPARE(message, answer ? QString() : canceled);
    }
}

void TestMenuJsonFaults::asksWithWhatTheHeaderSays()
{
    Menu menu;
    menu.configuration.fanSpeedEnabled = true;
    CabinetConfiguration asked;
    const QString message =
        readMenu(document::of(goodMenu, unknownCabinet), menu, [&](CabinetConfiguration &configuration) {
            asked = configuration;
            return false;
        });
    QCOMPARE(asked.type, u"QHX"_s);
    QCOMPARE(asked.model, u"KTR99"_s);
    QCOMPARE(asked.temperatureUnit, unitCelsius);
    QCOMPARE(asked.fanSpeedEnabled, true);
    QCOMPARE(message, canceled);
    QCOMPARE(menu.configuration.type, u"QHX"_s);
    QCOMPARE(menu.configuration.temperatureUnit, unitCelsius);
    QCOMPARE(menu.configuration.fanSpeedEnabled, true);
}

void TestMenuJsonFaults::takesTheAnswer()
{
    const QByteArray content = R"({"products":[],"productGroups":[],)"
                               R"("layout":[{"productLocations":[{"bin":4,"productId":7}]}]})";
    Menu menu;
    const QString message =
        readMenu(document::of(content, unknownCabinet), menu, [](CabinetConfiguration &configuration) {
            configuration = {u"ZPV"_s, u"ZPV43"_s, unitFahrenheit, false, true, false, true};
            return true;
        });
    QCOMPARE(message, QString());
    QCOMPARE(menu.configuration.type, u"ZPV"_s);
    QCOMPARE(menu.configuration.model, u"ZPV43"_s);
    QCOMPARE(menu.configuration.temperatureUnit, unitFahrenheit);
    QCOMPARE(menu.configuration.resetTimeEnabled, true);
    QCOMPARE(menu.configuration.timerColorEnabled, true);
    QCOMPARE(menu.dayparts[0].bins[1][0], 7); // in rows of three
}

void TestMenuJsonFaults::goesOnWithoutCabinet()
{
    Menu menu;
    QCOMPARE(
        readMenu(document::of(goodMenu, unknownCabinet), menu, [](CabinetConfiguration &) { return true; }),
        QString());
    QCOMPARE(int(menu.products.size()), 1);
    QCOMPARE(int(menu.groups.size()), 1);
    QCOMPARE(menu.daypartCount, 1);
}

void TestMenuJsonFaults::goesOnAfterTheAnswer()
{
    Menu menu;
    QCOMPARE(readMenu(document::of("{}", unknownCabinet), menu, [](CabinetConfiguration &) { return true; }),
             emptyMenu);
}

QTEST_APPLESS_MAIN(TestMenuJsonFaults)
#include "tst_menujson_faults.moc"
