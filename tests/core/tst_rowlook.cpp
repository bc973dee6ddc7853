// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QRegularExpression>
#include <QTest>

#include "holding/rowlook.h"
#include "tests/support/binrows.h"
#include "tests/support/cabinets.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// Which buttons of a row show, and how wide they are at least.
class TestRowLook : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void buttonWidths_data() { cabinets::addModelRows(); }
    void buttonWidths();
    void otherShapesHaveOneWidth();
    void everyRow_data() { binrows::addModels(); }
    void everyRow();
    void byTable_data();
    void byTable();
    void everyRowFitsItsZones_data() { binrows::addModels(); }
    void everyRowFitsItsZones();
    void whatFitsStaysAsItIs();
    void hiddenZonesHaveAWidth();
    void spansFillTheirZones_data() { binrows::addModels(); }
    void spansFillTheirZones();
    void spans_data();
    void spans();
};

void TestRowLook::buttonWidths()
{
    QFETCH(QString, model);
    const cabinets::Model &expected = cabinets::model(model);
    const CabinetShape shape = cabinetShape(expected.type, model);
    QVERIFY(shape.isKnown());
    const cabinets::Zone zone = cabinets::zone(expected.firstZone());
    const auto &widths = expected.secondZone() > 0 ? zone.widthsBesideZone : zone.widths;
    for (const QString &splits : cabinets::allSplits())
        QVERIFY2(binButtonWidth(shape, splits) == widths.value(splits, 112), qPrintable(splits));
    for (const QString &other : {QString(), u"2/2"_s, u" 1/1"_s, u"1/1 "_s})
        QCOMPARE(binButtonWidth(shape, other), 112);
}

void TestRowLook::otherShapesHaveOneWidth()
{
    for (int zones = 0; zones <= 3; ++zones) {
        for (int bins = 0; bins <= 6; ++bins) {
            const cabinets::Zone zone = cabinets::zone(bins);
            if ((zones == 1 && !zone.widths.isEmpty()) || (zones == 2 && !zone.widthsBesideZone.isEmpty()))
                continue;
            const CabinetShape shape{2, quint8(bins), quint8(zones), false};
            for (const QString &splits : cabinets::allSplits())
                QCOMPARE(binButtonWidth(shape, splits), 112);
        }
    }
}

namespace {

// How a zone of three bins shows, a letter a bin: "-" is hidden, "h" half a zone wide, "o" as wide as what
// stands in it. The first pattern that a zone matches decides.
struct Pattern
{
    QString zone;
    QString looks;
};

const QList<Pattern> &patterns()
{
    static const QList<Pattern> all{
        {u"1.."_s, u"o--"_s},   {u"(2.|.2)."_s, u"hh-"_s}, {u".1."_s, u"oo-"_s},
        {u"T\\.."_s, u"o-o"_s}, {u".T\\."_s, u"oo-"_s},    {u"..."_s, u"ooo"_s},
    };
    return all;
}

// In zones of other sizes, a whole hides what follows it.
QString looksOf(const QString &zone)
{
    if (zone.size() != 3) {
        const qsizetype whole = zone.indexOf(u'1');
        return QString(whole < 0 ? zone.size() : whole + 1, u'o').leftJustified(zone.size(), u'-');
    }
    for (const Pattern &pattern : patterns()) {
        if (QRegularExpression(QRegularExpression::anchoredPattern(pattern.zone)).match(zone).hasMatch())
            return pattern.looks;
    }
    return {};
}

int widthOf(const CabinetShape &shape, QChar look, QChar fill)
{
    if (look == u'h')
        return 194;
    return fill == u'.' || fill == u'?' ? 112 : binButtonWidth(shape, binrows::splitsOf(fill));
}

} // namespace

void TestRowLook::everyRow()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, layout);
    const binrows::Entries entries;
    binrows::forEachRow([&](const QString &fill) {
        const auto looks = rowLook(shape, entries.row(fill));
        QString expected;
        for (const QChar zone : {u'a', u'b'}) {
            if (layout.contains(zone))
                expected += looksOf(binrows::zoneOf(fill, layout, int(layout.indexOf(zone))));
        }
        expected = expected.leftJustified(maxSlots, u'-');
        for (int slot = 0; slot < maxSlots; ++slot) {
            const BinLook &look = looks[slot];
            REQUIRE(look.visible == (expected[slot] != u'-'), fill);
            if (look.visible)
                REQUIRE(look.minimumWidth == widthOf(shape, expected[slot], fill[slot]), fill);
        }
    });
}

void TestRowLook::byTable_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("fill");
    QTest::addColumn<QList<int>>("widths"); // 0 is hidden
    QTest::newRow("two bins, empty") << u"KTR22"_s << u"...."_s << QList<int>{112, 112, 0, 0};
    QTest::newRow("two bins, whole") << u"KTR22"_s << u"1..."_s << QList<int>{394, 0, 0, 0};
    QTest::newRow("two bins, whole on top of another") << u"KTR82"_s << u"12.."_s << QList<int>{394, 0, 0, 0};
    QTest::newRow("two bins, whole in the last") << u"KTR22"_s << u".1.."_s << QList<int>{112, 394, 0, 0};
    QTest::newRow("two bins, one half") << u"KTR52"_s << u"2..."_s << QList<int>{194, 112, 0, 0};
    QTest::newRow("two bins, unknown id") << u"KTR52"_s << u"?2.."_s << QList<int>{112, 194, 0, 0};
    QTest::newRow("three bins, empty") << u"KTR33"_s << u"...."_s << QList<int>{112, 112, 112, 0};
    QTest::newRow("three bins, whole") << u"KTR33"_s << u"1..."_s << QList<int>{394, 0, 0, 0};
    QTest::newRow("three bins, thirds") << u"ZPV43"_s << u"333."_s << QList<int>{127, 127, 127, 0};
    QTest::newRow("three bins, first half") << u"ZPV23"_s << u"2..."_s << QList<int>{194, 194, 0, 0};
    QTest::newRow("three bins, second half") << u"KTR63"_s << u".2.."_s << QList<int>{194, 194, 0, 0};
    QTest::newRow("three bins, half in the third") << u"KTR63"_s << u"..2."_s << QList<int>{112, 112, 194, 0};
    QTest::newRow("three bins, two thirds") << u"KTR33"_s << u"T.3."_s << QList<int>{265, 0, 127, 0};
    QTest::newRow("three bins, last two thirds") << u"KTR33"_s << u"3T.."_s << QList<int>{127, 265, 0, 0};
    QTest::newRow("two thirds hide no filled bin") << u"KTR33"_s << u"T33."_s << QList<int>{265, 127, 127, 0};
    QTest::newRow("two thirds hide no unknown id") << u"KTR33"_s << u"T?.."_s << QList<int>{265, 112, 112, 0};
    QTest::newRow("one-bin zone, wholes") << u"KTR23"_s << u"1.1."_s << QList<int>{230, 0, 230, 0};
    QTest::newRow("two zones, empty") << u"KTR24"_s << u"...."_s << QList<int>{112, 112, 112, 112};
    QTest::newRow("two zones, first whole") << u"KTR54"_s << u"1.22"_s << QList<int>{230, 0, 112, 112};
    QTest::newRow("two zones, second whole") << u"KTR54"_s << u"221."_s << QList<int>{112, 112, 230, 0};
}

void TestRowLook::byTable()
{
    QFETCH(QString, model);
    QFETCH(QString, fill);
    QFETCH(QList<int>, widths);
    const CabinetShape shape = cabinetShape(model.startsWith(u'Z') ? u"ZPV"_s : u"QHX"_s, model);
    const binrows::Entries entries;
    QList<int> shown;
    for (const BinLook &look : rowLook(shape, entries.row(fill)))
        shown.append(look.visible ? look.minimumWidth : 0);
    widths.resize(maxSlots);
    QCOMPARE(shown, widths);
}

namespace {

int totalWidth(const RowLook &looks, const Zone &zone, int gap)
{
    int width = -gap;
    for (int slot = zone.first; slot < zone.first + zone.count; ++slot) {
        const BinLook &look = looks[slot];
        width += look.visible ? look.minimumWidth + gap : 0;
    }
    return width;
}

} // namespace

void TestRowLook::everyRowFitsItsZones()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, layout);
    const binrows::Entries entries;
    constexpr int gap = 2;
    binrows::forEachRow([&](const QString &fill) {
        auto looks = rowLook(shape, entries.row(fill));
        const auto before = looks;
        for (const QChar name : {u'a', u'b'}) {
            if (!layout.contains(name))
                continue;
            const Zone zone = shape.zoneOfSlot(int(layout.indexOf(name)));
            const int width = zone.count == 1 ? 177 : shape.zones == 2 ? 340 : 394;
            REQUIRE_EQUAL(zoneWidth(shape, name == u'a' ? 0 : 1), width);
            fitIntoZone(looks, zone, width);
            REQUIRE(totalWidth(looks, zone, gap) == std::min(width, totalWidth(before, zone, gap)), fill);
        }
        for (int slot = 0; slot < looks.size(); ++slot) {
            REQUIRE_EQUAL(looks[slot].visible, before[slot].visible);
            REQUIRE(looks[slot].minimumWidth >= 112, fill);
        }
    });
}

// What a user can assign asks for no more than the zone has.
void TestRowLook::whatFitsStaysAsItIs()
{
    const binrows::Entries entries;
    const auto check = [&entries](const char16_t *model, const QStringList &fills) {
        const CabinetShape shape = cabinetShape(u"QHX"_s, QString::fromUtf16(model));
        for (const QString &fill : fills) {
            auto looks = rowLook(shape, entries.row(fill));
            const auto before = looks;
            fitIntoZone(looks, shape.zoneOfSlot(0), 394);
            REQUIRE(looks == before, fill);
        }
    };
    check(u"KTR33", {u"T.3."_s, u"3T.."_s, u"333."_s, u"22.."_s, u"2..."_s, u"1..."_s});
    check(u"KTR22", {u"1..."_s, u"22.."_s, u".2.."_s});
}

void TestRowLook::hiddenZonesHaveAWidth()
{
    for (const CabinetShape &shape :
         {CabinetShape{}, cabinetShape(u"QHX"_s, u"KTR22"_s), cabinetShape(u"QHX"_s, u"KTR33"_s)}) {
        QCOMPARE(zoneWidth(shape, 0), 394);
        QCOMPARE(zoneWidth(shape, 1), 340);
    }
    QCOMPARE(zoneWidth({2, 5, 1, false}, 0), 5 * 112 + 4 * 2);
}

// Each bin begins where the one before it ends, and those that show take all of the zone.
void TestRowLook::spansFillTheirZones()
{
    QFETCH(CabinetShape, shape);
    QFETCH(QString, layout);
    const binrows::Entries entries;
    binrows::forEachRow([&](const QString &fill) {
        const RowLook looks = rowLook(shape, entries.row(fill));
        const RowSpans spans = rowSpans(shape, looks);
        int next = 0;
        for (int slot = 0; slot < maxSlots; ++slot) {
            const bool shown = slot < layout.size() && looks[slot].visible;
            REQUIRE(shown == (spans[slot].count > 0), fill);
            if (!shown)
                continue;
            REQUIRE(spans[slot].first == next, fill);
            next += spans[slot].count;
            REQUIRE(next <= spans[slot].parts, fill);
            next = next == spans[slot].parts ? 0 : next;
        }
        REQUIRE(next == 0, fill);
    });
}

void TestRowLook::spans_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("fill");
    QTest::addColumn<QString>("spans"); // first+count/parts
    QTest::newRow("two bins") << u"KTR22"_s << u"2..."_s << u"0+1/2 1+1/2"_s;
    QTest::newRow("whole of two") << u"KTR22"_s << u"1..."_s << u"0+2/2"_s;
    QTest::newRow("thirds") << u"KTR33"_s << u"3.3."_s << u"0+1/3 1+1/3 2+1/3"_s;
    QTest::newRow("two thirds") << u"KTR33"_s << u"T.3."_s << u"0+2/3 2+1/3"_s;
    QTest::newRow("last two thirds") << u"KTR33"_s << u"3T.."_s << u"0+1/3 1+2/3"_s;
    QTest::newRow("whole of three") << u"KTR33"_s << u"1..."_s << u"0+3/3"_s;
    QTest::newRow("halves of three") << u"KTR33"_s << u"2..."_s << u"0+1/2 1+1/2"_s;
    QTest::newRow("second half of three") << u"KTR33"_s << u".2.."_s << u"0+1/2 1+1/2"_s;
    QTest::newRow("one-bin zone") << u"KTR23"_s << u"1.2."_s << u"0+2/2 0+1/1"_s;
}

void TestRowLook::spans()
{
    QFETCH(QString, model);
    QFETCH(QString, fill);
    const CabinetShape shape = cabinetShape(u"QHX"_s, model);
    const binrows::Entries entries;
    QStringList told;
    for (const BinSpan &span : rowSpans(shape, rowLook(shape, entries.row(fill)))) {
        if (span.count > 0)
            told.append(u"%1+%2/%3"_s.arg(span.first).arg(span.count).arg(span.parts));
    }
    QTEST(told.join(u' '), "spans");
}

QTEST_APPLESS_MAIN(TestRowLook)
#include "tst_rowlook.moc"
