// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "model/bin.h"
#include "tests/support/warnings.h"

using Table = BinTable<int, 2, 3>;

/// Values that are kept by bin.
class TestBinTable : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void bins();
    void outside_data();
    void outside();
    void replace();
};

void TestBinTable::bins()
{
    Table table;
    int number = 0;
    for (int row = 0; row < 2; ++row) {
        for (int slot = 0; slot < 3; ++slot)
            table[Bin{row, slot}] = ++number;
    }
    const Table &seen = table;
    QVERIFY(seen[0] == (FixedList<int, 3>{1, 2, 3}));
    QVERIFY(seen[1] == (FixedList<int, 3>{4, 5, 6}));
    QCOMPARE((seen[Bin{1, 0}]), 4);
    QCOMPARE(Table::size(), 2);
    QVERIFY(table != Table());
}

void TestBinTable::outside_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("slot");
    QTest::newRow("row behind the last") << 2 << 0;
    QTest::newRow("slot behind the last") << 0 << 3;
    QTest::newRow("negative row") << -1 << 0;
    QTest::newRow("negative slot") << 0 << -1;
}

void TestBinTable::outside()
{
    QFETCH(int, row);
    QFETCH(int, slot);
    Table table;
    const Bin bin{row, slot};
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, table[bin] = 1);
    QVERIFY(table == Table());
}

void TestBinTable::replace()
{
    Table table;
    table[0] = {5, 6, 5};
    table[1] = {6, 6, 5};
    QVERIFY(!replaceInBins(table, 7, 0));
    QVERIFY(replaceInBins(table, 5, 0));
    QVERIFY(table[0] == (FixedList<int, 3>{0, 6, 0}));
    QVERIFY(table[1] == (FixedList<int, 3>{6, 6, 0}));
    QVERIFY(!replaceInBins(table, 5, 0));
}

QTEST_APPLESS_MAIN(TestBinTable)
#include "tst_bintable.moc"
