// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QJsonDocument>
#include <QTest>

#include "holding/menujson.h"
#include "tests/support/corruption.h"
#include "tests/support/languages.h"
#include "tests/support/menudocument.h"
#include "tests/support/require.h"
#include "tests/support/samplemenu.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

const QStringList messages{
    u"File format is corrupted!"_s,
    u"File header read failed"_s,
    u"File read canceled. Unkown configuration!"_s,
    u"Menu is empty!"_s,
    u"Products list read failed!"_s,
    u"Groups list read failed!"_s,
    u"Dayparts read failed!"_s,
};

// One of everything, in few bytes.
QByteArray smallDocument()
{
    return document::of(
        R"({"products":[{"productId":1,"productName":{"eng_USA":"A","jpn":"\u00e4"},"holdingTime":3600,)"
        R"("warningTime":600,"lowerTemp":200,"upperTemp":215,"fanSpeed":60,"resetTime":300,"zoneSplits":"1/2",)"
        R"("timerColor":"#402100","productLocked":true,"lidType":"Solid","bottomType":"False"}],)"
        R"("productGroups":[{"groupId":2,"groupName":{"spa":"B"},"zoneSplits":"1/2","lowerTemp":200,)"
        R"("upperTemp":215,"fanSpeed":60,"lidType":"Solid","defaultProd":0,"products":[1,9]}],)"
        R"("layout":[{"daypartName":{"deu":"C"},"inUse":false,"productLocations":[{"bin":3,"productId":2},)"
        R"({"bin":8,"productId":1}]},{}]})",
        R"({"cabinetType":"QHX","cabinetModel":"KTR23","temperatureUnit":1,"fanSpeedEnabled":true,)"
        R"("resetTimeEnabled":true,"timerColorEnabled":true,"prodcutIdEnabled":true})");
}

void checkEntries(const Entries &entries, bool groups)
{
    for (const auto &entry : entries) {
        REQUIRE(entry->get_productId() != 0);
        REQUIRE_EQUAL(entry->get_isGroup(), groups);
        REQUIRE_EQUAL(entry->get_productName().size(), languageCount);
    }
}

void checkDayparts(const Menu &menu)
{
    REQUIRE(menu.daypartCount >= 0 && menu.daypartCount <= maxDayparts);
    const CabinetShape shape = menu.shape();
    for (const Daypart &daypart : menu.dayparts) {
        REQUIRE_EQUAL(daypart.names.size(), languageCount);
        for (int row = 0; row < maxRows; ++row) {
            for (int slot = 0; slot < maxSlots; ++slot) {
                const Bin bin{row, slot};
                REQUIRE(shape.hasBin(bin) || daypart.bins[bin] == emptyBin);
            }
        }
    }
}

// What was read can be saved, and reads back as the same menu.
void checkCanBeSaved(const Menu &menu)
{
    const QByteArray written = writeMenu(menu);
    Menu again;
    REQUIRE_EQUAL(readMenu(written, again, [](CabinetConfiguration &) { return true; }), QString());
    REQUIRE_EQUAL(writeMenu(again), written);
}

// Returns whether the document was taken.
bool checkMessageOrSaneMenu(const QByteArray &json, bool acceptUnknown)
{
    Menu menu;
    const QString message =
        readMenu(json, menu, [acceptUnknown](CabinetConfiguration &) { return acceptUnknown; });
    checkEntries(menu.products, false);
    checkEntries(menu.groups, true);
    checkDayparts(menu);
    if (message.isEmpty())
        checkCanBeSaved(menu);
    else if (!messages.contains(message))
        require::fail(u"Unknown message: "_s + message, {__FILE__, __LINE__});
    return message.isEmpty();
}

} // namespace

class TestMenuJsonDamage : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void truncations_data();
    void truncations();
    void bitFlips_data();
    void bitFlips();
    void millionsOfPlaceholdersLeaveNothing_data();
    void millionsOfPlaceholdersLeaveNothing();
};

void TestMenuJsonDamage::truncations_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("small document") << smallDocument();
    QTest::newRow("written menu") << writeMenu(sample::plain()).trimmed();
}

// Half a document is never a menu, wherever it ends.
void TestMenuJsonDamage::truncations()
{
    QFETCH(QByteArray, json);
    forEachTruncation(json, [](const QByteArray &damaged) {
        if (QTest::currentTestFailed())
            return;
        Menu menu;
        REQUIRE_EQUAL(document::read(damaged, menu), messages.first());
        REQUIRE(menu.products.empty() && menu.groups.empty());
    });
    QVERIFY(checkMessageOrSaneMenu(json, false));
}

void TestMenuJsonDamage::bitFlips_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("acceptUnknown");
    QTest::newRow("unknown cabinets are refused") << smallDocument() << false;
    QTest::newRow("unknown cabinets are accepted") << smallDocument() << true;
}

void TestMenuJsonDamage::bitFlips()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, acceptUnknown);
    int taken = 0;
    int refused = 0;
    forEachBitFlip(json, [&](const QByteArray &damaged) {
        if (!QTest::currentTestFailed())
            ++(checkMessageOrSaneMenu(damaged, acceptUnknown) ? taken : refused);
    });
    QVERIFY(taken > 0 && refused > 0);
}

void TestMenuJsonDamage::millionsOfPlaceholdersLeaveNothing_data()
{
    QTest::addColumn<bool>("products");
    QTest::newRow("products") << true;
    QTest::newRow("groups") << false;
}

void TestMenuJsonDamage::millionsOfPlaceholdersLeaveNothing()
{
    QFETCH(bool, products);
    const QByteArray zeros = QByteArray("0,").repeated(1'000'000) + '0';
    const QByteArray json =
        document::withLists(products ? zeros : QByteArray(), products ? QByteArray() : zeros, "");
    Menu menu;
    QCOMPARE(document::read(json, menu), QString());
    QVERIFY(menu.products.empty() && menu.groups.empty());
}

QTEST_APPLESS_MAIN(TestMenuJsonDamage)
#include "tst_menujson_damage.moc"
