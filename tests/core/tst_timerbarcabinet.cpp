// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "tests/support/cbrbuilder.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"
#include "timerbar/cabinet.h"

using namespace Qt::StringLiterals;

// The program's table of models beside the tests' own one.
class TestTimerBarCabinet : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void modelsAreInOrder();
    void shapes_data() { cbr::addModelRows(); }
    void shapes();
    void bins_data() { cbr::addModelRows(); }
    void bins();
    void unknownModels_data();
    void unknownModels();
    void modelsOfShapes();
};

void TestTimerBarCabinet::modelsAreInOrder()
{
    QStringList expected;
    for (const cbr::Model &model : cbr::models())
        expected.append(model.name);
    QCOMPARE(differenceOf(timerbar::cabinetModels(), expected), QString());
}

// One pair of bins a row or two, the second of which may lack a bin.
void TestTimerBarCabinet::shapes()
{
    QFETCH(QString, model);
    const cbr::Model &expected = cbr::model(model);
    const timerbar::CabinetShape shape = timerbar::cabinetShape(model);
    QVERIFY(shape.isKnown());
    QCOMPARE(shape.rows, expected.rows);
    QCOMPARE(shape.columnLayout, expected.columns > 2 ? 2 : 1);
    QCOMPARE(shape.threeColumns, expected.columns == 3);
    QCOMPARE(shape.columns(), expected.columns);
    QCOMPARE(shape.bins(), expected.bins.size());
    QCOMPARE(model, u"KTR%1%2"_s.arg(expected.rows).arg(expected.columns));
}

void TestTimerBarCabinet::bins()
{
    QFETCH(QString, model);
    const timerbar::CabinetShape shape = timerbar::cabinetShape(model);
    QList<QByteArray> found;
    for (int row = 0; row < 10; ++row) {
        for (int column = 0; column < 10; ++column) {
            if (shape.hasBin({row, column}))
                found.append(QByteArray::number(row) + QByteArray::number(column));
        }
    }
    QList<QByteArray> expected = cbr::model(model).bins;
    std::sort(expected.begin(), expected.end());
    QCOMPARE(found, expected);
}

void TestTimerBarCabinet::unknownModels_data()
{
    QTest::addColumn<QString>("model");
    QTest::newRow("none") << QString();
    QTest::newRow("lower case") << u"ktr22"_s;
    QTest::newRow("blank behind") << u"KTR22 "_s;
    QTest::newRow("of the holding line") << u"KTR33"_s;
    QTest::newRow("bare digits") << u"22"_s;
}

void TestTimerBarCabinet::unknownModels()
{
    QFETCH(QString, model);
    const timerbar::CabinetShape shape = timerbar::cabinetShape(model);
    QCOMPARE(shape, timerbar::CabinetShape());
    QCOMPARE(shape.rows, 0);
    QCOMPARE(shape.columnLayout, 0);
    QCOMPARE(shape.bins(), 0);
    QVERIFY(!shape.isKnown());
    QVERIFY(!shape.hasBin({0, 0}));
}

void TestTimerBarCabinet::modelsOfShapes()
{
    QHash<std::pair<int, int>, QString> known;
    for (const cbr::Model &model : cbr::models())
        known.insert({model.rows, model.columns}, model.name);
    for (int rows = 0; rows < 256; ++rows) {
        for (int columns = 0; columns < 256; ++columns)
            QCOMPARE(timerbar::modelOfShape(rows, columns), known.value({rows, columns}));
    }
}

QTEST_APPLESS_MAIN(TestTimerBarCabinet)
#include "tst_timerbarcabinet.moc"
