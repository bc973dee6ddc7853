// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/newentries.h"
#include "holding/zonesplits.h"
#include "tests/support/cabinets.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// Which zone splits there are, and which have room.
class TestZoneSplits : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everySplitIsKnownToTheTests();
    void zoneSplits_data();
    void zoneSplits();
    void room_data();
    void room();
    void everyModelHasSplits();
};

void TestZoneSplits::everySplitIsKnownToTheTests()
{
    for (const ZoneSplit &split : allZoneSplits) {
        const QString text = split.text;
        QVERIFY2(
            cabinets::zone(split.binsPerZone).offered.split(u' ').contains(text),
            qPrintable(u"tests/support/cabinets.cpp lacks %1 of %2 bins"_s.arg(text).arg(split.binsPerZone)));
    }
}

void TestZoneSplits::zoneSplits_data()
{
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<QString>("initially");
    QTest::addColumn<QStringList>("offered");
    for (const cabinets::Zone &zone : cabinets::zones()) {
        const QStringList offered = zone.offered.split(u' ');
        QTest::addRow("%d bins", zone.bins) << zone.bins << offered.constFirst() << offered;
    }
    QTest::newRow("unknown cabinet") << 0 << u"1/2"_s << QStringList{};
    QTest::newRow("1 bin") << 1 << u"1/2"_s << QStringList{};
    QTest::newRow("too many bins") << cabinets::zones().constLast().bins + 1 << u"1/2"_s << QStringList{};
}

void TestZoneSplits::zoneSplits()
{
    QFETCH(int, binsPerZone);
    QFETCH(QString, initially);
    QCOMPARE(defaultZoneSplits(binsPerZone), initially);
    QFETCH(QStringList, offered);
    QCOMPARE(differenceOf(offeredZoneSplits(binsPerZone), offered), QString());
    QCOMPARE(newProduct(1, binsPerZone)->get_zoneSplits(), initially);
}

void TestZoneSplits::room_data()
{
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<int>("freeSlots");
    QTest::addColumn<QString>("splits");
    for (const cabinets::Zone &zone : cabinets::zones()) {
        for (int free = 1; free <= zone.bins; ++free)
            QTest::addRow("%d bins, %d free", zone.bins, free)
                << zone.bins << free << zone.fitting.value(free - 1);
    }
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
        QVERIFY2(zoneSplitsForRun(bins, 1).size() == 1, model.name.data());
        QVERIFY2(zoneSplitsForRun(bins, bins).size() == offeredZoneSplits(bins).size(), model.name.data());
    }
}

QTEST_APPLESS_MAIN(TestZoneSplits)
#include "tst_zonesplits.moc"
