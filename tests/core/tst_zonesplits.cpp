// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/newentries.h"
#include "holding/zonesplits.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// Which zone splits there are, and which have room.
class TestZoneSplits : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void zoneSplits_data();
    void zoneSplits();
    void room_data();
    void room();
    void everyModelHasSplits();
};

void TestZoneSplits::zoneSplits_data()
{
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<QString>("initially");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("2 bins") << 2 << u"1/2"_s << QStringList{u"1/2"_s, u"1/1"_s};
    QTest::newRow("3 bins") << 3 << u"1/3"_s << QStringList{u"1/3"_s, u"1/2"_s, u"2/3"_s, u"1/1"_s};
    QTest::newRow("4 bins") << 4 << u"1/4"_s << QStringList{u"1/4"_s, u"1/2"_s, u"3/4"_s, u"1/1"_s};
    QTest::newRow("unknown cabinet") << 0 << u"1/2"_s << QStringList{};
    QTest::newRow("1 bin") << 1 << u"1/2"_s << QStringList{};
    QTest::newRow("5 bins") << 5 << u"1/2"_s << QStringList{};
}

void TestZoneSplits::zoneSplits()
{
    QFETCH(int, binsPerZone);
    QFETCH(QString, initially);
    QCOMPARE(defaultZoneSplits(binsPerZone), initially);
    QTEST(offeredZoneSplits(binsPerZone), "offered");
    QCOMPARE(newProduct(1, binsPerZone)->get_zoneSplits(), initially);
}

void TestZoneSplits::room_data()
{
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<int>("freeSlots");
    QTest::addColumn<QString>("splits");
    QTest::newRow("2 bins, 1 free") << 2 << 1 << u"1/2"_s;
    QTest::newRow("2 bins, 2 free") << 2 << 2 << u"1/1 1/2"_s;
    QTest::newRow("3 bins, 1 free") << 3 << 1 << u"1/3"_s;
    QTest::newRow("3 bins, 2 free") << 3 << 2 << u"2/3 1/3"_s;
    QTest::newRow("3 bins, 3 free") << 3 << 3 << u"1/1 1/2 2/3 1/3"_s;
    QTest::newRow("4 bins, 1 free") << 4 << 1 << u"1/4"_s;
    QTest::newRow("4 bins, 2 free") << 4 << 2 << u"1/2 1/4"_s;
    QTest::newRow("4 bins, 3 free") << 4 << 3 << u"3/4 1/2 1/4"_s;
    QTest::newRow("4 bins, 4 free") << 4 << 4 << u"1/1 3/4 1/2 1/4"_s;
    QTest::newRow("no slot free") << 2 << 0 << QString();
    QTest::newRow("unknown cabinet") << 0 << 1 << QString();
}

void TestZoneSplits::room()
{
    QFETCH(int, binsPerZone);
    QFETCH(int, freeSlots);
    QTEST(zoneSplitsForRun(binsPerZone, freeSlots).join(u' '), "splits");
}

// A whole zone can be taken, a single slot too, and no split asks for more than a zone has.
void TestZoneSplits::everyModelHasSplits()
{
    for (const CabinetModel &model : allModels) {
        const int bins = model.shape.binsPerZone;
        QVERIFY2(zoneSplitsForRun(bins, bins).contains(u"1/1"_s), model.name.data());
        QCOMPARE(zoneSplitsForRun(bins, 1).size(), 1);
        QCOMPARE(zoneSplitsForRun(bins, bins).size(), offeredZoneSplits(bins).size());
    }
}

QTEST_APPLESS_MAIN(TestZoneSplits)
#include "tst_zonesplits.moc"
