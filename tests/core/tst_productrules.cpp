// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/productrules.h"
#include "tests/support/warnings.h"

using namespace holding;

/// What the dialog of a holding-cabinet product takes.
class TestProductRules : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void temperatures_data();
    void temperatures();
    void enteredIds_data();
    void enteredIds();
    void idTaken_data();
    void idTaken();
};

void TestProductRules::temperatures_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("Fahrenheit") << 0 << 200 << 90 << 225;
    QTest::newRow("Fahrenheit, none set") << 0 << 0 << 90 << 225;
    QTest::newRow("Celsius") << 1 << 200 << 32 << 107;
    QTest::newRow("Celsius, none set") << 1 << 0 << 32 << 107;
    QTest::newRow("odd unit") << 2 << 200 << 90 << 225;
    QTest::newRow("negative unit") << -1 << 0 << 90 << 225;
}

void TestProductRules::temperatures()
{
    QFETCH(int, unit);
    QFETCH(int, stored);
    const TemperatureRange range = productTemperatureRange(unit);
    QTEST(range.lowest, "lowest");
    QTEST(range.highest, "highest");
    QCOMPARE(mayHaveNoTemperature(unit, stored), unit == 1 && stored == 0);
}

void TestProductRules::enteredIds_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<int>("own");
    QTest::addColumn<int>("entered");
    QTest::newRow("its own") << 7 << 7 << 7;
    QTest::newRow("another one") << 8 << 7 << 8;
    QTest::newRow("own beyond the box") << 99 << 150 << 150;
    QTest::newRow("own below the box") << 1 << -3 << -3;
    QTest::newRow("another one, own beyond the box") << 98 << 150 << 98;
    QTest::newRow("the highest") << 99 << 5 << 99;
}

void TestProductRules::enteredIds()
{
    QFETCH(int, box);
    QFETCH(int, own);
    QTEST(enteredId(box, 1, 99, own), "entered");
}

void TestProductRules::idTaken_data()
{
    QTest::addColumn<int>("ownIndex");
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("taken");
    QTest::newRow("its own") << 0 << 5 << false;
    QTest::newRow("of a later one") << 0 << 7 << true;
    QTest::newRow("of an earlier one") << 2 << 5 << true;
    QTest::newRow("of nobody") << 0 << 6 << false;
    QTest::newRow("its own, which another one has too") << 1 << 7 << true;
    QTest::newRow("new product, taken") << 3 << 5 << true;
    QTest::newRow("new product, free") << 3 << 6 << false;
    QTest::newRow("no place at all") << -1 << 5 << true;
}

void TestProductRules::idTaken()
{
    QFETCH(int, ownIndex);
    QFETCH(int, id);
    ProductInfo first;
    first.set_productId(5);
    ProductInfo second;
    second.set_productId(7);
    ProductInfo third;
    third.set_productId(7);
    QTEST(isIdTaken({&first, &second, &third}, ownIndex, id), "taken");
}

QTEST_APPLESS_MAIN(TestProductRules)
#include "tst_productrules.moc"
