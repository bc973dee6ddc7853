// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/misfits.h"
#include "tests/core/holdas.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

constexpr std::array temperatures{0, 199, 200, 215};
constexpr std::array fanSpeeds{0, 60, 80};
const QStringList splitTexts{QString(), u"1/2"_s, u"1/1"_s, u"half"_s};
const QStringList lidWords{QString(), u"None"_s, u"Solid"_s, u"none"_s};

CabinetConfiguration cabinet(const QString &type, int unit, bool fanSpeedEnabled)
{
    CabinetConfiguration configuration;
    configuration.type = type;
    configuration.temperatureUnit = unit;
    configuration.fanSpeedEnabled = fanSpeedEnabled;
    return configuration;
}

template <typename Look>
void forEachTemperatures(const Look &look)
{
    for (const int upper : temperatures) {
        for (const int lower : temperatures) {
            for (const int fan : fanSpeeds)
                look(upper, lower, fan);
        }
    }
}

// A text that says twice the same tells nobody why.
void checkReason(const QString &reason, bool fits, const QString &what)
{
    REQUIRE(reason.isEmpty() == fits, what + u" said: "_s + reason);
    const QString separator =
        reason.contains(u"this zone holds "_s) ? u"this zone holds "_s : u"this group holds "_s;
    const qsizetype at = reason.indexOf(u", "_s + separator);
    if (at < 0)
        return;
    const QString own = reason.left(at).remove(u"Does not fit: "_s);
    REQUIRE(own != reason.mid(at + 2 + separator.size()), reason);
}

} // namespace

/// Why an entry does not fit, in words.
class TestMisfits : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void cabinets_data();
    void binReasonExactlyWhenUnfit_data() { cabinets_data(); }
    void binReasonExactlyWhenUnfit();
    void groupReasonExactlyWhenUnfit_data() { cabinets_data(); }
    void groupReasonExactlyWhenUnfit();
    void binReasons_data();
    void binReasons();
    void groupReasons_data();
    void groupReasons();
    void demands();
    void longWordsAreShortened();
};

void TestMisfits::cabinets_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("unit");
    QTest::addColumn<bool>("withFanSpeed");
    for (const QString &type : {u"QHX"_s, u"ZPV"_s}) {
        for (const int unit : {unitFahrenheit, unitCelsius}) {
            for (const bool withFanSpeed : {false, true})
                QTest::addRow("%s, unit %d, %s", qPrintable(type), unit, withFanSpeed ? "fan" : "no fan")
                    << type << unit << withFanSpeed;
        }
    }
}

void TestMisfits::binReasonExactlyWhenUnfit()
{
    QFETCH(const QString, type);
    QFETCH(const int, unit);
    QFETCH(const bool, withFanSpeed);
    const CabinetConfiguration configuration = cabinet(type, unit, withFanSpeed);
    ProductInfo entry;
    for (const QString &splits : splitTexts) {
        forEachTemperatures([&](int upper, int lower, int fan) {
            holdAs(entry, {{}, splits, upper, lower, fan});
            forEachTemperatures([&](int zoneUpper, int zoneLower, int zoneFan) {
                const BinLimits limits{zoneUpper, zoneLower, zoneFan};
                for (const QStringList &allowed : {QStringList{u"1/2"_s}, QStringList{u"1/1"_s, u"1/2"_s}}) {
                    const QString reason = binMisfitText(entry, limits, allowed, configuration);
                    checkReason(reason, fitsBin(entry, limits, allowed, withFanSpeed), splits);
                }
            });
        });
    }
}

void TestMisfits::groupReasonExactlyWhenUnfit()
{
    QFETCH(const QString, type);
    QFETCH(const int, unit);
    QFETCH(const bool, withFanSpeed);
    const CabinetConfiguration configuration = cabinet(type, unit, withFanSpeed);
    const HoldingSettings held{u"Solid"_s, u"1/2"_s, 200, 199, 60};
    ProductInfo product;
    for (const QString &lid : lidWords) {
        for (const QString &splits : splitTexts) {
            forEachTemperatures([&](int upper, int lower, int fan) {
                const HoldingSettings settings{lid, splits, upper, lower, fan};
                holdAs(product, settings);
                const QString reason = groupMisfitText(product, held, configuration);
                checkReason(reason, fitsGroup(product, held, withFanSpeed), lid);
                holdAs(product, held);
                const QString other = groupMisfitText(product, settings, configuration);
                checkReason(other, fitsGroup(product, settings, withFanSpeed), lid);
            });
        }
    }
}

void TestMisfits::binReasons_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QList<int>>("own"); // upper, lower, fan speed
    QTest::addColumn<QString>("splits");
    QTest::addColumn<QList<int>>("zone");
    QTest::addColumn<QString>("reason");
    const QString qhx = u"QHX"_s;
    const QString zpv = u"ZPV"_s;
    using List = QList<int>;
    QTest::newRow("temperatures") << qhx << 0 << List{225, 215, 60} << u"1/2"_s << List{215, 200, 60}
                                  << u"Does not fit: 225 °F / 215 °F, this zone holds 215 °F / 200 °F"_s;
    QTest::newRow("Celsius") << qhx << 1 << List{225, 215, 60} << u"1/2"_s << List{215, 200, 60}
                             << u"Does not fit: 107 °C / 102 °C, this zone holds 102 °C / 93 °C"_s;
    QTest::newRow("alike in Celsius") << qhx << 1 << List{215, 200, 60} << u"1/2"_s << List{216, 200, 60}
                                      << u"Does not fit: 215 °F / 200 °F, this zone holds 216 °F / 200 °F"_s;
    QTest::newRow("one temperature") << zpv << 0 << List{225, 225, 60} << u"1/2"_s << List{215, 215, 60}
                                     << u"Does not fit: 225 °F, this zone holds 215 °F"_s;
    QTest::newRow("two in a cabinet of one")
        << zpv << 0 << List{215, 210, 60} << u"1/2"_s << List{215, 215, 60}
        << u"Does not fit: 215 °F / 210 °F, this zone holds 215 °F / 215 °F"_s;
    QTest::newRow("only the lower counts") << qhx << 0 << List{225, 215, 60} << u"1/2"_s << List{0, 200, 60}
                                           << u"Does not fit: 215 °F, this zone holds 200 °F"_s;
    QTest::newRow("split") << qhx << 0 << List{215, 200, 60} << u"1/1"_s << List{215, 200, 60}
                           << u"Zone split 1/1 has no room here"_s;
    QTest::newRow("no split") << qhx << 0 << List{215, 200, 60} << QString() << List{0, 0, 0}
                              << u"Without a zone split it has no room here"_s;
    QTest::newRow("fan speed") << qhx << 0 << List{215, 200, 80} << u"1/2"_s << List{215, 200, 60}
                               << u"Fan speed 80, this zone has 60"_s;
    QTest::newRow("fits") << qhx << 0 << List{215, 200, 60} << u"1/2"_s << List{215, 200, 60} << QString();
}

void TestMisfits::binReasons()
{
    QFETCH(const QString, type);
    QFETCH(const int, unit);
    QFETCH(const QList<int>, own);
    QFETCH(const QString, splits);
    QFETCH(const QList<int>, zone);
    ProductInfo entry;
    holdAs(entry, {{}, splits, own[0], own[1], own[2]});
    QTEST(binMisfitText(entry, {zone[0], zone[1], zone[2]}, {u"1/2"_s}, cabinet(type, unit, true)), "reason");
}

void TestMisfits::groupReasons_data()
{
    QTest::addColumn<QString>("lid");
    QTest::addColumn<QString>("splits");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("fanSpeed");
    QTest::addColumn<QString>("reason");
    const QString solid = u"Solid"_s;
    const QString half = u"1/2"_s;
    QTest::newRow("lid") << u"Vented"_s << half << 215 << 60 << u"Lid Vented, this group has Solid"_s;
    QTest::newRow("unknown lid") << u"solid"_s << half << 215 << 60 << u"Lid solid, this group has Solid"_s;
    QTest::newRow("no lid") << QString() << half << 215 << 60 << u"No lid, this group has Solid"_s;
    QTest::newRow("split") << solid << u"1/1"_s << 215 << 60 << u"Zone split 1/1, this group has 1/2"_s;
    QTest::newRow("no split") << solid << QString() << 215 << 60 << u"No zone split, this group has 1/2"_s;
    QTest::newRow("temperature") << solid << half << 225 << 60
                                 << u"Does not fit: 225 °F / 200 °F, this group holds 215 °F / 200 °F"_s;
    QTest::newRow("fan speed") << solid << half << 215 << 80 << u"Fan speed 80, this group has 60"_s;
    QTest::newRow("fits") << solid << half << 215 << 60 << QString();
}

void TestMisfits::groupReasons()
{
    QFETCH(const QString, lid);
    QFETCH(const QString, splits);
    QFETCH(const int, upper);
    QFETCH(const int, fanSpeed);
    ProductInfo product;
    holdAs(product, {lid, splits, upper, 200, fanSpeed});
    QTEST(groupMisfitText(product, {u"Solid"_s, u"1/2"_s, 215, 200, 60}, cabinet(u"QHX"_s, 0, true)),
          "reason");
}

void TestMisfits::demands()
{
    const CabinetConfiguration qhx = cabinet(u"QHX"_s, unitFahrenheit, true);
    const CabinetConfiguration zpv = cabinet(u"ZPV"_s, unitCelsius, false);
    const QStringList splits{u"1/1"_s, u"1/2"_s};
    QCOMPARE(binDemandText({215, 200, 60}, splits, qhx),
             u"Needs 215 °F / 200 °F, zone split 1/1 or 1/2, fan speed 60"_s);
    QCOMPARE(binDemandText({}, {u"1/2"_s}, qhx), u"Needs zone split 1/2"_s);
    QCOMPARE(binDemandText({212, 212, 60}, {u"1/2"_s}, zpv), u"Needs 100 °C, zone split 1/2"_s);
    QCOMPARE(binDemandText({}, {}, qhx), u"Nothing has room here"_s);
    QCOMPARE(groupDemandText({u"Solid"_s, u"1/2"_s, 215, 200, 60}, qhx),
             u"Needs 215 °F / 200 °F, zone split 1/2, fan speed 60, lid Solid"_s);
    QCOMPARE(groupDemandText({}, qhx), u"Any product may join"_s);
}

void TestMisfits::longWordsAreShortened()
{
    ProductInfo entry;
    holdAs(entry, {QString(1000, u'l'), QString(1000, u's'), 200, 200, 0});
    const CabinetConfiguration qhx = cabinet(u"QHX"_s, unitFahrenheit, true);
    QVERIFY(binMisfitText(entry, {}, {u"1/2"_s}, qhx).size() < 60);
    QVERIFY(groupMisfitText(entry, {u"Solid"_s, {}, 0, 0, 0}, qhx).size() < 60);
    const HoldingSettings own = holdingSettings(entry, true);
    QVERIFY(groupDemandText(own, qhx).size() < 100);
    // Two words that begin alike are told apart by nothing else.
    QVERIFY(!groupMisfitText(entry, {own.lidType + u'l', {}, 0, 0, 0}, qhx).isEmpty());
}

QTEST_APPLESS_MAIN(TestMisfits)
#include "tst_misfits.moc"
