// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QLocale>
#include <QTest>

#include "lanes/laneconfiguration.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace lanes;

namespace {

QByteArray golden(const QString &name)
{
    QFile file(QFINDTESTDATA(u"../data/"_s + name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Both limits of either value, and numbers whose bytes all differ.
Configuration sample(int laneCount)
{
    return {laneCount, {{{{150, 1500}, {400, 3200}, {276, 2047}, {399, 2816}}}}};
}

void addLaneCountRows()
{
    QTest::addColumn<int>("laneCount");
    for (int count = 1; count <= maxLanes; ++count)
        QTest::addRow("%d", count) << count;
}

} // namespace

/// What is written, and under which name.
class TestLaneConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void newConfigurationHasTwoLanes();
    void temperatureRanges_data();
    void temperatureRanges();
    void newLanesKeepTheLimits();
    void goldenFiles_data() { addLaneCountRows(); }
    void goldenFiles();
    void identifiers_data();
    void identifiers();
    void productionRecords_data();
    void productionRecords();
    void numbersIgnoreTheLocale();
    void readsBackAsWritten_data() { addLaneCountRows(); }
    void readsBackAsWritten();
    void namesThatLoad_data();
    void namesThatLoad();
    void productionPaths_data();
    void productionPaths();
};

void TestLaneConfiguration::newConfigurationHasTwoLanes()
{
    const Configuration configuration;
    QCOMPARE(configuration.laneCount, 2);
    for (const Lane &lane : configuration.lanes) {
        QCOMPARE(lane.temperature, 375);
        QCOMPARE(lane.fanSpeed, 1800);
    }
}

void TestLaneConfiguration::temperatureRanges_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("Fahrenheit") << unitFahrenheit << 150 << 400;
    QTest::newRow("Celsius") << unitCelsius << 66 << 204;
    QTest::newRow("any other number counts as Fahrenheit") << 2 << 150 << 400;
}

void TestLaneConfiguration::temperatureRanges()
{
    QFETCH(const int, unit);
    const TemperatureRange range = temperatureRange(unit);
    QTEST(range.lowest, "lowest");
    QTEST(range.highest, "highest");
}

void TestLaneConfiguration::newLanesKeepTheLimits()
{
    QCOMPARE(minFanSpeed, 1500);
    QCOMPARE(maxFanSpeed, 3200);
    const Lane lane;
    QCOMPARE(qBound(minFanSpeed, lane.fanSpeed, maxFanSpeed), lane.fanSpeed);
    for (const int unit : {unitFahrenheit, unitCelsius}) {
        const TemperatureRange range = temperatureRange(unit);
        const int shown = shownTemperature(lane.temperature, unit);
        QCOMPARE(qBound(range.lowest, shown, range.highest), shown);
    }
}

void TestLaneConfiguration::goldenFiles()
{
    QFETCH(const int, laneCount);
    const QString suffix = QString::number(laneCount) + u".txt"_s;
    QCOMPARE(writeConfiguration(sample(laneCount)), golden(u"svrxconfig_"_s + suffix));
    QCOMPARE(writeProductionRecord(sample(laneCount)), golden(u"svrxprod_"_s + suffix));
}

void TestLaneConfiguration::identifiers_data()
{
    QTest::addColumn<Configuration>("configuration");
    QTest::addColumn<QByteArray>("text");
    const QByteArray note = "Manual edits will render this file useless\n";
    QTest::newRow("one lane at 350 and 1")
        << Configuration{1, {{{{350, 1}}}}}
        << note + "Identifier=9adb\nT1=350,T2=0,T3=0,T4=0,F1=1,F2=0,F3=0,F4=0";
    QTest::newRow("new, padded with a zero")
        << Configuration() << note + "Identifier=06b3\nT1=375,T2=375,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0";
    QTest::newRow("padded with two zeros")
        << Configuration{1, {{{{359, 1800}}}}}
        << note + "Identifier=005b\nT1=359,T2=0,T3=0,T4=0,F1=1800,F2=0,F3=0,F4=0";
}

void TestLaneConfiguration::identifiers()
{
    QFETCH(const Configuration, configuration);
    QFETCH(const QByteArray, text);
    QCOMPARE(writeConfiguration(configuration), text);
}

void TestLaneConfiguration::productionRecords_data()
{
    QTest::addColumn<Configuration>("configuration");
    QTest::addColumn<QByteArray>("digits");
    const auto defaults = [](int laneCount) { return Configuration{laneCount, {}}; };
    QTest::newRow("single lane") << defaults(1)
                                 << QByteArray("a5a508110107080177ffffffffffffffffffffffffc3ef");
    QTest::newRow("double lane") << defaults(2)
                                 << QByteArray("a5a50811010708017707080177ffffffffffffffff5a36");
    QTest::newRow("triple lane") << defaults(3)
                                 << QByteArray("a5a5081101070801770708017707080177ffffffffb64b");
    QTest::newRow("quad lane") << defaults(4) << QByteArray("a5a508110107080177070801770708017707080177228b");
    QTest::newRow("bytes below 16") << Configuration{1, {{{{350, 1}}}}}
                                    << QByteArray("a5a50811010001015effffffffffffffffffffffff5e06");
    QTest::newRow("checksum that starts with 00")
        << Configuration{1, {{{{375, 1740}}}}}
        << QByteArray("a5a508110106cc0177ffffffffffffffffffffffff00ea");
}

void TestLaneConfiguration::productionRecords()
{
    QFETCH(const Configuration, configuration);
    QFETCH(const QByteArray, digits);
    QCOMPARE(digits.size(), 46);
    QCOMPARE(writeProductionRecord(configuration), digits);
}

void TestLaneConfiguration::numbersIgnoreTheLocale()
{
    QLocale::setDefault(QLocale(QLocale::German)); // with a dot between the thousands
    QCOMPARE(writeConfiguration(sample(4)), golden(u"svrxconfig_4.txt"_s));
}

void TestLaneConfiguration::readsBackAsWritten()
{
    QFETCH(const int, laneCount);
    Configuration expected;
    expected.laneCount = laneCount;
    std::copy_n(sample(laneCount).lanes.begin(), laneCount, expected.lanes.begin());
    Configuration again;
    QCOMPARE(readConfiguration(writeConfiguration(sample(laneCount)), again), QString());
    QVERIFY(again == expected);
}

void TestLaneConfiguration::namesThatLoad_data()
{
    QTest::addColumn<bool>("loads");
    for (const char *path : {"svrxconfig_a.txt", "svrxconfig_", "/menus/x/svrxconfig_a.txt", "svrxconfig_a",
                             "svrxconfig_svrxconfig_.json", "/other/svrxconfig_ a.TXT"})
        QTest::newRow(path) << true;
    for (const char *path :
         {"", "/", "config_test.txt", "svrxconfig.txt", "svrxconfig-a.txt", "Svrxconfig_a.txt",
          "SVRXCONFIG_A.TXT", "svrxConfig_a.txt", "asvrxconfig_a.txt", " svrxconfig_a.txt", "svrxprod_a.txt",
          "/svrxconfig_folder/a.txt", "/menus/svrxconfig_a/"})
        QTest::newRow(path) << false;
}

void TestLaneConfiguration::namesThatLoad()
{
    QFETCH(const bool, loads);
    QCOMPARE(isConfigurationName(QString::fromLatin1(QTest::currentDataTag())), loads);
}

void TestLaneConfiguration::productionPaths_data()
{
    QTest::addColumn<QString>("production");
    QTest::newRow("svrxconfig_a.txt") << u"svrxprod_a.txt"_s;
    QTest::newRow("svrxconfig_") << u"svrxprod_"_s;
    QTest::newRow("/menus/x/svrxconfig_1.txt") << u"/menus/x/svrxprod_1.txt"_s;
    QTest::newRow("/svrxconfig_1/svrxconfig_2/svrxconfig_3.txt")
        << u"/svrxconfig_1/svrxconfig_2/svrxprod_3.txt"_s;
    QTest::newRow("svrxconfig_of_svrxconfig_1.txt") << u"svrxprod_of_svrxconfig_1.txt"_s;
    QTest::newRow("svrxconfig_svrxconfig_svrxconfig_") << u"svrxprod_svrxconfig_svrxconfig_"_s;
}

// Only where the file name begins: not in a folder's name, not a second time.
void TestLaneConfiguration::productionPaths()
{
    QFETCH(const QString, production);
    QCOMPARE(productionPath(QString::fromLatin1(QTest::currentDataTag())), production);
}

QTEST_GUILESS_MAIN(TestLaneConfiguration)
#include "tst_laneconfiguration.moc"
