// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QRegularExpression>
#include <QTest>

#include "holding/bins.h"
#include "holding/newentries.h"
#include "tests/support/binrows.h"
#include "tests/support/cabinets.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// The rules of a bin: its zone, what its neighbours demand, which splits fit. Every row that can be filled
/// is looked at on every cabinet.
class TestBins : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void rowContent();
    void zones_data() { binrows::addShapes(); }
    void zones();
    void zoneLimits_data() { binrows::addShapes(); }
    void zoneLimits();
    void freeRun_data() { binrows::addShapes(); }
    void freeRun();
    void allowedZoneSplits_data() { binrows::addShapes(); }
    void allowedZoneSplits();
    void allowedZoneSplitsByTable_data();
    void allowedZoneSplitsByTable();
    void fitsBin();
    void fitsBinComparesSplitsExactly();
};

void TestBins::rowContent()
{
    Menu menu;
    menu.products.push_back(newProduct(5, 2));
    menu.groups.push_back(newGroup(6));
    menu.groups.push_back(newGroup(-7));
    Daypart daypart;
    daypart.bins[0] = {1, 1, 1, 1};
    daypart.bins[3] = {6, 0, 99, 5};
    daypart.bins[7] = {-7, 0, 0, -8};
    const RowContent row = holding::rowContent(menu, daypart, 3);
    QVERIFY(row[0].filled && row[0].entry == menu.groups[0].get());
    QVERIFY(!row[1].filled && !row[1].entry);
    QVERIFY(row[2].filled && !row[2].entry);
    QVERIFY(row[3].filled && row[3].entry == menu.products[0].get());
    const RowContent last = holding::rowContent(menu, daypart, 7);
    QVERIFY(last[0].filled && last[0].entry == menu.groups[1].get());
    QVERIFY(last[3].filled && !last[3].entry);
}

void TestBins::zones()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, layout);
    for (int slot = 0; slot < layout.size(); ++slot) {
        const QChar zone = layout[slot];
        const Zone expected{int(layout.indexOf(zone)), int(layout.count(zone))};
        QVERIFY2(shape.zoneOfSlot(slot) == expected, qPrintable(QString::number(slot)));
    }
}

// The first other slot of the zone with an entry decides; one that is filled by an unknown id says nothing.
void TestBins::zoneLimits()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, layout);
    const binrows::Entries entries;
    binrows::forEachRow([&](const QString &fill) {
        const RowContent row = entries.row(fill);
        for (int slot = 0; slot < layout.size(); ++slot) {
            QString others = fill.first(layout.size());
            others[slot] = u'.';
            for (int i = 0; i < layout.size(); ++i) {
                if (layout[i] != layout[slot])
                    others[i] = u'.';
            }
            const qsizetype first = others.indexOf(QRegularExpression(u"[^.?]"_s));
            const int factor = int(first) + 1;
            const BinLimits limits =
                first < 0 ? BinLimits{} : BinLimits{200 + factor, 100 + factor, 10 * factor};
            const Zone zone = shape.zoneOfSlot(slot);
            REQUIRE(holding::zoneLimits(row, zone, slot, true) == limits, fill);
            const BinLimits withoutFan{limits.upperTemp, limits.lowerTemp, 0};
            REQUIRE(holding::zoneLimits(row, zone, slot, false) == withoutFan, fill);
        }
    });
}

void TestBins::freeRun()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, layout);
    const binrows::Entries entries;
    binrows::forEachRow([&](const QString &fill) {
        for (int slot = 0; slot < layout.size(); ++slot)
            REQUIRE_EQUAL(holding::freeRun(entries.row(fill), shape.zoneOfSlot(slot), slot),
                          binrows::freeRun(fill, layout, slot));
    });
}

void TestBins::allowedZoneSplits()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, layout);
    const binrows::Entries entries;
    binrows::forEachRow([&](const QString &fill) {
        for (int slot = 0; slot < layout.size(); ++slot) {
            const QString zone = binrows::zoneOf(fill, layout, slot);
            const bool half = zone.size() == 1 || (zone.size() == 3 && zone.contains(u'2'));
            const QString expected = half ? u"1/2"_s
                                          : cabinets::zone(int(zone.size()))
                                                .fitting.value(binrows::freeRun(fill, layout, slot) - 1);
            REQUIRE_EQUAL(holding::allowedZoneSplits(shape, entries.row(fill), slot).join(u' '), expected);
        }
    });
}

// The same by hand, for who wants to read what the rule comes to.
void TestBins::allowedZoneSplitsByTable_data()
{
    QTest::addColumn<CabinetShape>("shape");
    QTest::addColumn<QString>("fill");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("splits");
    const CabinetShape two = cabinetShape(u"QHX"_s, u"KTR22"_s);
    const CabinetShape three = cabinetShape(u"QHX"_s, u"KTR33"_s);
    const CabinetShape oneBin = cabinetShape(u"QHX"_s, u"KTR23"_s);
    const CabinetShape twoZones = cabinetShape(u"QHX"_s, u"KTR24"_s);
    QTest::newRow("two bins, both empty") << two << u"...."_s << 0 << u"1/1 1/2"_s;
    QTest::newRow("two bins, the last one") << two << u"...."_s << 1 << u"1/2"_s;
    QTest::newRow("two bins, the neighbour filled") << two << u".2.."_s << 0 << u"1/2"_s;
    QTest::newRow("two bins, an unknown neighbour") << two << u".?.."_s << 0 << u"1/2"_s;
    QTest::newRow("two bins, half is replaced") << two << u"2..."_s << 0 << u"1/1 1/2"_s;
    QTest::newRow("three bins, all empty") << three << u"...."_s << 0 << u"1/1 1/2 2/3 1/3"_s;
    QTest::newRow("three bins, the second") << three << u"...."_s << 1 << u"2/3 1/3"_s;
    QTest::newRow("three bins, the last") << three << u"...."_s << 2 << u"1/3"_s;
    QTest::newRow("three bins, two free") << three << u"..3."_s << 0 << u"2/3 1/3"_s;
    QTest::newRow("three bins, one free") << three << u".3.."_s << 0 << u"1/3"_s;
    QTest::newRow("three bins, halves") << three << u"2..."_s << 1 << u"1/2"_s;
    QTest::newRow("three bins, a lone half is replaced") << three << u"2..."_s << 0 << u"1/2"_s;
    QTest::newRow("three bins, a half out of sight") << three << u"..2."_s << 0 << u"1/2"_s;
    QTest::newRow("one-bin second zone") << oneBin << u"11.."_s << 2 << u"1/2"_s;
    QTest::newRow("beside a one-bin second zone") << oneBin << u"..2."_s << 0 << u"1/1 1/2"_s;
    QTest::newRow("second zone, both empty") << twoZones << u"11.."_s << 2 << u"1/1 1/2"_s;
    QTest::newRow("second zone, the last one") << twoZones << u"...."_s << 3 << u"1/2"_s;
    QTest::newRow("first zone beside a full second one") << twoZones << u"..22"_s << 0 << u"1/1 1/2"_s;
    QTest::newRow("unknown cabinet") << CabinetShape{} << u"...."_s << 0 << QString();
}

void TestBins::allowedZoneSplitsByTable()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, fill);
    QFETCH(int, slot);
    QFETCH(QString, splits);
    const binrows::Entries entries;
    QCOMPARE(holding::allowedZoneSplits(shape, entries.row(fill), slot).join(u' '), splits);
}

void TestBins::fitsBin()
{
    ProductInfo entry;
    entry.set_upperTemp(210);
    entry.set_lowerTemp(190);
    entry.set_fanSpeed(60);
    entry.set_zoneSplits(u"1/2"_s);
    const QStringList with{u"1/1"_s, u"1/2"_s};
    const QStringList without{u"1/1"_s, u"1/3"_s};
    for (const int upper : {0, 210, 190}) {
        for (const int lower : {0, 190, 210}) {
            for (const int fan : {0, 60, 61}) {
                const bool temperatures = upper != 190 && lower != 210;
                const BinLimits limits{upper, lower, fan};
                QCOMPARE(holding::fitsBin(entry, limits, with, true), temperatures && fan != 61);
                QCOMPARE(holding::fitsBin(entry, limits, with, false), temperatures);
                QVERIFY(!holding::fitsBin(entry, limits, without, true));
                QVERIFY(!holding::fitsBin(entry, limits, without, false));
            }
        }
    }
}

void TestBins::fitsBinComparesSplitsExactly()
{
    ProductInfo entry;
    entry.set_zoneSplits({});
    QVERIFY(!holding::fitsBin(entry, {}, {}, false));
    QVERIFY(!holding::fitsBin(entry, {}, {u"1/2"_s}, false));
    QVERIFY(holding::fitsBin(entry, {}, {u"1/2"_s, QString()}, false));
    entry.set_zoneSplits(u"half"_s);
    QVERIFY(holding::fitsBin(entry, {}, {u"half"_s}, false));
    QVERIFY(!holding::fitsBin(entry, {}, {u"Half"_s, u"half "_s, u"hal"_s}, false));
}

QTEST_APPLESS_MAIN(TestBins)
#include "tst_bins.moc"
