// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QSet>
#include <QTest>

#include "holding/cabinet.h"
#include "tests/support/cabinets.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

class TestCabinet : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyModelIsKnownToTheTests_data();
    void everyModelIsKnownToTheTests();
    void shapes_data() { cabinets::addModelRows(); }
    void shapes();
    void unknownCabinets_data();
    void unknownCabinets();
    void offeredInOrder();
    void showableRowCounts();
    void types_data();
    void types();
    void newConfiguration();
};

void TestCabinet::everyModelIsKnownToTheTests_data()
{
    QTest::addColumn<QString>("type");
    for (const CabinetModel &model : allModels)
        QTest::newRow(model.name.data()) << QString(model.type);
}

void TestCabinet::everyModelIsKnownToTheTests()
{
    QFETCH(QString, type);
    const QString model = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY2(cabinets::modelNames(type).contains(model),
             qPrintable(u"tests/support/cabinets.cpp lacks "_s + model));
}

void TestCabinet::shapes()
{
    QFETCH(QString, model);
    const cabinets::Model &expected = cabinets::model(model);
    const CabinetShape shape = cabinetShape(expected.type, model);
    QVERIFY(shape.isKnown());
    QCOMPARE(int(shape.rows), expected.rows);
    QCOMPARE(int(shape.binsPerZone), expected.firstZone());
    QCOMPARE(int(shape.zones), expected.secondZone() > 0 ? 2 : 1);
    QCOMPARE(shape.singleBinSecondZone, expected.secondZone() == 1);
    // Ids are stored as if the missing bin were there.
    QCOMPARE(shape.binsPerRow(), expected.row.size() + (shape.singleBinSecondZone ? 1 : 0));
    QVERIFY(shape.rows <= maxRows && shape.binsPerRow() <= maxSlots);
    for (int row = 0; row <= maxRows; ++row) {
        for (int slot = 0; slot <= maxSlots; ++slot)
            QCOMPARE(shape.hasBin({row, slot}), expected.hasBin(row, slot));
    }
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
    for (const QString &type : cabinetTypes())
        QCOMPARE(differenceOf(cabinetModels(type), cabinets::modelNames(type)), QString());
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
