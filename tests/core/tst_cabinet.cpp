// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QSet>
#include <QTest>

#include "holding/cabinet.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

class TestCabinet : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void shapes_data();
    void shapes();
    void unknownCabinets_data();
    void unknownCabinets();
    void offeredInOrder();
    void showableRowCounts();
    void types_data();
    void types();
    void newConfiguration();
};

void TestCabinet::shapes_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<int>("zones");
    QTest::addColumn<bool>("singleBinSecondZone");
    QTest::addColumn<int>("binsInRow");
    QTest::newRow("KTR22") << u"QHX"_s << 2 << 2 << 1 << false << 2;
    QTest::newRow("KTR23") << u"QHX"_s << 2 << 2 << 2 << true << 3;
    QTest::newRow("KTR24") << u"QHX"_s << 2 << 2 << 2 << false << 4;
    QTest::newRow("KTR32") << u"QHX"_s << 3 << 2 << 1 << false << 2;
    QTest::newRow("KTR33") << u"QHX"_s << 3 << 3 << 1 << false << 3;
    QTest::newRow("KTR34") << u"QHX"_s << 3 << 2 << 2 << false << 4;
    QTest::newRow("KTR42") << u"QHX"_s << 4 << 2 << 1 << false << 2;
    QTest::newRow("KTR52") << u"QHX"_s << 5 << 2 << 1 << false << 2;
    QTest::newRow("KTR54") << u"QHX"_s << 5 << 2 << 2 << false << 4;
    QTest::newRow("KTR63") << u"QHX"_s << 6 << 3 << 1 << false << 3;
    QTest::newRow("KTR82") << u"QHX"_s << 8 << 2 << 1 << false << 2;
    QTest::newRow("ZPV43") << u"ZPV"_s << 4 << 3 << 1 << false << 3;
    QTest::newRow("ZPV23") << u"ZPV"_s << 2 << 3 << 1 << false << 3;
}

void TestCabinet::shapes()
{
    QFETCH(QString, type);
    QFETCH(int, rows);
    QFETCH(int, binsPerZone);
    QFETCH(int, zones);
    QFETCH(bool, singleBinSecondZone);
    QFETCH(int, binsInRow);
    const CabinetShape shape = cabinetShape(type, QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(shape.isKnown());
    QCOMPARE(int(shape.rows), rows);
    QCOMPARE(int(shape.binsPerZone), binsPerZone);
    QCOMPARE(int(shape.zones), zones);
    QCOMPARE(shape.singleBinSecondZone, singleBinSecondZone);
    // Ids are stored as if the missing bin were there.
    QCOMPARE(shape.binsPerRow(), singleBinSecondZone ? binsInRow + 1 : binsInRow);
    QVERIFY(shape.rows <= maxRows && shape.binsPerRow() <= maxSlots);
}

void TestCabinet::unknownCabinets_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("model");
    QTest::newRow("nothing yet") << QString() << QString();
    QTest::newRow("no model") << u"QHX"_s << QString();
    QTest::newRow("no type") << QString() << u"KTR22"_s;
    QTest::newRow("unknown model") << u"QHX"_s << u"KTR44"_s;
    QTest::newRow("unknown model, ZPV") << u"ZPV"_s << u"ZPV33"_s;
    QTest::newRow("unknown type") << u"QHY"_s << u"KTR22"_s;
    QTest::newRow("model of the other type") << u"ZPV"_s << u"KTR22"_s;
    QTest::newRow("other way round") << u"QHX"_s << u"ZPV23"_s;
    QTest::newRow("lower-case model") << u"QHX"_s << u"ktr22"_s;
    QTest::newRow("lower-case type") << u"qhx"_s << u"KTR22"_s;
    QTest::newRow("blank behind the model") << u"QHX"_s << u"KTR22 "_s;
    QTest::newRow("beginning of a model") << u"QHX"_s << u"KTR2"_s;
}

void TestCabinet::unknownCabinets()
{
    QFETCH(QString, type);
    QFETCH(QString, model);
    const CabinetShape shape = cabinetShape(type, model);
    QVERIFY(!shape.isKnown());
    QCOMPARE(int(shape.rows), 0);
    QCOMPARE(int(shape.binsPerZone), 0);
    QCOMPARE(int(shape.zones), 0);
    QCOMPARE(shape.singleBinSecondZone, false);
    QCOMPARE(shape.binsPerRow(), 0);
}

void TestCabinet::offeredInOrder()
{
    QCOMPARE(cabinetTypes(), (QStringList{u"QHX"_s, u"ZPV"_s}));
    QCOMPARE(cabinetModels(u"QHX"_s),
             (QStringList{u"KTR22"_s, u"KTR23"_s, u"KTR24"_s, u"KTR32"_s, u"KTR33"_s, u"KTR34"_s, u"KTR42"_s,
                          u"KTR52"_s, u"KTR54"_s, u"KTR63"_s, u"KTR82"_s}));
    QCOMPARE(cabinetModels(u"ZPV"_s), (QStringList{u"ZPV43"_s, u"ZPV23"_s}));
    QCOMPARE(cabinetModels(u"zpv"_s), QStringList());
    QCOMPARE(cabinetModels(QString()), QStringList());
}

void TestCabinet::showableRowCounts()
{
    const QSet<int> showable{2, 3, 4, 5, 6, 8};
    for (int rows = 0; rows <= 255; ++rows)
        QCOMPARE(isShowableRowCount(rows), showable.contains(rows));
}

void TestCabinet::types_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("qhx");
    QTest::addColumn<bool>("zpv");
    QTest::newRow("QHX") << u"QHX"_s << true << false;
    QTest::newRow("ZPV") << u"ZPV"_s << false << true;
    QTest::newRow("lower case QHX") << u"qhx"_s << false << false;
    QTest::newRow("lower case ZPV") << u"zpv"_s << false << false;
    QTest::newRow("empty") << QString() << false << false;
}

void TestCabinet::types()
{
    QFETCH(QString, type);
    QTEST(isQhx(type), "qhx");
    QTEST(isZpv(type), "zpv");
}

void TestCabinet::newConfiguration()
{
    const CabinetConfiguration configuration;
    QCOMPARE(configuration.type, QString());
    QCOMPARE(configuration.model, QString());
    QCOMPARE(configuration.temperatureUnit, 0);
    QCOMPARE(configuration.fanSpeedEnabled, false);
    QCOMPARE(configuration.resetTimeEnabled, false);
    QCOMPARE(configuration.productIdEnabled, false);
    QCOMPARE(configuration.timerColorEnabled, false);
}

QTEST_APPLESS_MAIN(TestCabinet)
#include "tst_cabinet.moc"
