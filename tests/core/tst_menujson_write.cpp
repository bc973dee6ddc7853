// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include "holding/menujson.h"
#include "holding/menunames.h"
#include "tests/support/cabinets.h"
#include "tests/support/languages.h"
#include "tests/support/require.h"
#include "tests/support/samplemenu.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

Q_DECLARE_METATYPE(cabinets::Model)

namespace {

QByteArray golden(const QString &name)
{
    QFile file(QFINDTESTDATA(u"../data/"_s + name + u".json"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Menu menuNamed(const QString &name)
{
    if (name == "rich"_L1)
        return sample::rich();
    return name == "plain"_L1 ? sample::plain() : sample::empty();
}

bool keepUnknown(CabinetConfiguration &)
{
    return true;
}

QJsonObject firstOf(const QByteArray &json, const char *list)
{
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    return root["menu"_L1][QLatin1StringView(list)][0].toObject();
}

// Different bytes are shown from where they part.
void compareBytes(const QByteArray &actual, const QByteArray &expected)
{
    qsizetype same = 0;
    while (same < actual.size() && same < expected.size() && actual[same] == expected[same])
        ++same;
    REQUIRE_EQUAL(actual.mid(same, 60), expected.mid(same, 60));
}

} // namespace

class TestMenuJsonWrite : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void goldenFiles_data();
    void goldenFiles();
    void goldenFilesReadBack_data() { goldenFiles_data(); }
    void goldenFilesReadBack();
    void goldenFilesAreKept_data() { goldenFiles_data(); }
    void goldenFilesAreKept();
    void everyCabinet_data();
    void everyCabinet();
    void switchedOff_data();
    void switchedOff();
    void daypartsInUseOnly();
    void fixedHeader();
    void languagesAreInOrder();
    void names_data();
    void names();
    void shortListsAreFilledUp();
};

void TestMenuJsonWrite::goldenFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("everything at its fullest") << u"rich"_s;
    QTest::newRow("all switches off, one zone") << u"plain"_s;
    QTest::newRow("no cabinet, no entries") << u"empty"_s;
}

void TestMenuJsonWrite::goldenFiles()
{
    QFETCH(QString, name);
    compareBytes(writeMenu(menuNamed(name)), golden(name));
}

void TestMenuJsonWrite::goldenFilesReadBack()
{
    QFETCH(QString, name);
    Menu expected = menuNamed(name);
    if (name == "plain"_L1) {
        expected.products[0]->set_fanSpeed(0);
        expected.products[0]->set_resetTime(0);
    }
    Menu read;
    QCOMPARE(readMenu(golden(name), read, keepUnknown), QString());
    QCOMPARE(sample::describe(read), sample::describe(expected));
}

void TestMenuJsonWrite::goldenFilesAreKept()
{
    QFETCH(QString, name);
    Menu read;
    QCOMPARE(readMenu(golden(name), read, keepUnknown), QString());
    compareBytes(writeMenu(read), golden(name));
}

void TestMenuJsonWrite::everyCabinet_data()
{
    QTest::addColumn<cabinets::Model>("cabinet");
    for (const cabinets::Model &model : cabinets::models())
        QTest::newRow(qPrintable(model.name)) << model;
    QTest::newRow("unknown") << cabinets::Model{u"QHX"_s, u"KTR99"_s, 0, {}};
}

void TestMenuJsonWrite::everyCabinet()
{
    QFETCH(const cabinets::Model, cabinet);
    Menu menu;
    menu.configuration.type = cabinet.type;
    menu.configuration.model = cabinet.name;
    Menu expected; // bins beyond the shape are not written
    for (int row = 0; row < maxRows; ++row) {
        for (int slot = 0; slot < maxSlots; ++slot) {
            const int id = 100 + 10 * row + slot;
            const bool missing = cabinet.secondZone() == 1 && slot == cabinet.row.size();
            menu.dayparts[1].bins[row][slot] = missing ? emptyBin : id;
            expected.dayparts[1].bins[row][slot] = cabinet.hasBin(row, slot) ? id : emptyBin;
        }
    }
    const int bins = cabinet.rows * cabinet.places();
    const QByteArray json = writeMenu(menu);
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    const QJsonArray locations = root["menu"_L1]["layout"_L1][1]["productLocations"_L1].toArray();
    QCOMPARE(locations.size(), bins);
    for (int i = 0; i < bins; ++i)
        QCOMPARE(locations[i]["bin"_L1].toInt(), i + 1);

    Menu read;
    QCOMPARE(readMenu(json, read, keepUnknown), QString());
    QVERIFY(read.dayparts[1].bins == expected.dayparts[1].bins);
    compareBytes(writeMenu(read), json);
}

void TestMenuJsonWrite::switchedOff_data()
{
    QTest::addColumn<bool>("fanSpeed");
    QTest::addColumn<bool>("resetTime");
    QTest::newRow("both off") << false << false;
    QTest::newRow("fan speed on") << true << false;
    QTest::newRow("reset time on") << false << true;
    QTest::newRow("both on") << true << true;
}

void TestMenuJsonWrite::switchedOff()
{
    QFETCH(bool, fanSpeed);
    QFETCH(bool, resetTime);
    Menu menu = sample::plain();
    menu.products[0]->set_timerColor(u"#402100"_s);
    menu.configuration.fanSpeedEnabled = fanSpeed;
    menu.configuration.resetTimeEnabled = resetTime;
    const QByteArray json = writeMenu(menu);
    const QJsonObject product = firstOf(json, "products");
    QCOMPARE(product["fanSpeed"_L1].toInt(-1), fanSpeed ? 60 : 0);
    QCOMPARE(product["resetTime"_L1].toInt(-1), resetTime ? 300 : 0);
    QCOMPARE(product["timerColor"_L1].toString(), u"#402100"_s);
    QCOMPARE(product["productId"_L1].toInt(), 1);
    QCOMPARE(firstOf(json, "productGroups")["fanSpeed"_L1].toInt(-1), 60);
    QCOMPARE(menu.products[0]->get_fanSpeed(), 60);
    QCOMPARE(menu.products[0]->get_resetTime(), 300);
}

void TestMenuJsonWrite::daypartsInUseOnly()
{
    Menu menu = sample::rich();
    menu.daypartCount = 1;
    const QJsonObject root = QJsonDocument::fromJson(writeMenu(menu)).object();
    const QJsonArray layout = root["menu"_L1]["layout"_L1].toArray();
    QCOMPARE(layout.size(), 1);
    QCOMPARE(layout[0]["daypartName"_L1]["eng_USA"_L1].toString(), u"BREAKFAST"_s);
}

void TestMenuJsonWrite::fixedHeader()
{
    QByteArray json = writeMenu(sample::plain());
    json.replace("Manual edits may render this file useless", "mine");
    json.replace("\"menuVersion\": 1", "\"menuVersion\": 7");
    json.replace("Varno Holding Menu File", "yours");
    Menu read;
    QCOMPARE(readMenu(json, read, keepUnknown), QString());
    compareBytes(writeMenu(read), golden(u"plain"_s));
}

namespace {

QStringList keysAsNames()
{
    QStringList names;
    for (const char *key : languageKeys)
        names.append(u"Bacon in "_s + QLatin1StringView(key));
    return names;
}

QByteArray allNamesBackwards()
{
    QByteArray json;
    for (const char *key : languageKeys)
        json.prepend(QByteArray(json.isEmpty() ? "" : ",")
                         .prepend('"' + QByteArray(key) + R"(":"Bacon in )" + key + '"'));
    return '{' + json + '}';
}

} // namespace

void TestMenuJsonWrite::languagesAreInOrder()
{
    QStringList keys;
    for (const QLatin1StringView key : nameLanguages)
        keys.append(key);
    QStringList expected;
    for (const char *key : languageKeys)
        expected.append(QLatin1StringView(key));
    QCOMPARE(differenceOf(keys, expected), QString());
}

void TestMenuJsonWrite::names_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("names");
    const QStringList none = inEveryLanguage({});
    QStringList english = none;
    english[0] = u"Bacon"_s;
    QStringList last = none;
    last.last() = u"ベーコン"_s;
    QTest::newRow("nothing") << QByteArray("{}") << none;
    QTest::newRow("English only") << QByteArray(R"({"eng_USA": "Bacon"})") << english;
    QTest::newRow("last language only")
        << QByteArray("{\"") + languageKeys.back() + R"(": "ベーコン"})" << last;
    QTest::newRow("wrong types are missing")
        << QByteArray(R"({"eng_USA": "Bacon", "spa": 1, "fra": null, "deu": ["x"], "ita": {}})") << english;
    QTest::newRow("unknown language") << QByteArray(R"({"eng_USA": "Bacon", "swe": "x"})") << english;
    QTest::newRow("keys are exact") << QByteArray(R"({"eng_USA": "Bacon", "DEU": "x"})") << english;
    QTest::newRow("all, in any order") << allNamesBackwards() << keysAsNames();
}

void TestMenuJsonWrite::names()
{
    QFETCH(QByteArray, json);
    QFETCH(QStringList, names);
    QCOMPARE(namesFromJson(QJsonDocument::fromJson(json).object()), names);
    const QJsonObject written = namesToJson(names);
    QCOMPARE(written.size(), languageCount);
    QCOMPARE(namesFromJson(written), names);
}

void TestMenuJsonWrite::shortListsAreFilledUp()
{
    QStringList bacon = inEveryLanguage({});
    bacon[0] = u"Bacon"_s;
    QCOMPARE(namesToJson({u"Bacon"_s}), namesToJson(bacon));
    QCOMPARE(namesToJson({}), namesToJson(inEveryLanguage({})));
    QCOMPARE(namesToJson({}).value(QLatin1StringView(languageKeys.back())), QJsonValue(QString()));
    QCOMPARE(namesToJson(bacon + QStringList{u"more"_s}), namesToJson(bacon));
}

QTEST_APPLESS_MAIN(TestMenuJsonWrite)
#include "tst_menujson_write.moc"
