// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menujson.h"
#include "tests/support/menudocument.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

// The filled bins as "row,slot=id", row by row.
QString filledBins(const Daypart &daypart)
{
    QStringList filled;
    for (std::size_t row = 0; row < maxRows; ++row) {
        for (std::size_t slot = 0; slot < maxSlots; ++slot) {
            if (const int id = daypart.bins[row][slot]; id != emptyBin)
                filled.append(u"%1,%2=%3"_s.arg(row).arg(slot).arg(id));
        }
    }
    return filled.join(u' ');
}

} // namespace

class TestMenuJsonBins : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void locations_data();
    void locations();
    void eachDaypartOnItsOwn();
};

void TestMenuJsonBins::locations_data()
{
    QTest::addColumn<QString>("cabinet");
    QTest::addColumn<QByteArray>("locations");
    QTest::addColumn<QString>("filled");
    const QString two = u"QHX KTR24"_s; // 2 rows of 4
    const QString oneBin = u"QHX KTR23"_s;
    QTest::newRow("none") << two << QByteArray("") << QString();
    QTest::newRow("first bin") << two << QByteArray(R"({"bin":1,"productId":7})") << u"0,0=7"_s;
    QTest::newRow("last of the first row") << two << QByteArray(R"({"bin":4,"productId":7})") << u"0,3=7"_s;
    QTest::newRow("first of the second row") << two << QByteArray(R"({"bin":5,"productId":7})") << u"1,0=7"_s;
    QTest::newRow("last bin") << two << QByteArray(R"({"bin":8,"productId":7})") << u"1,3=7"_s;
    QTest::newRow("beyond the last") << two << QByteArray(R"({"bin":9,"productId":7})") << QString();
    QTest::newRow("bin 0") << two << QByteArray(R"({"bin":0,"productId":7})") << QString();
    QTest::newRow("negative bin") << two << QByteArray(R"({"bin":-1,"productId":7})") << QString();
    QTest::newRow("smallest bin") << two << QByteArray(R"({"bin":-2147483648,"productId":7})") << QString();
    QTest::newRow("largest bin") << two << QByteArray(R"({"bin":2147483647,"productId":7})") << QString();
    QTest::newRow("bin would wrap to 1")
        << two << QByteArray(R"({"bin":4294967297,"productId":7})") << QString();
    QTest::newRow("fraction of a bin") << two << QByteArray(R"({"bin":1.5,"productId":7})") << QString();
    QTest::newRow("no bin") << two << QByteArray(R"({"productId":7})") << QString();
    QTest::newRow("text for a bin") << two << QByteArray(R"({"bin":"1","productId":7})") << QString();
    QTest::newRow("no objects") << two << QByteArray(R"(1,null,"x",[{"bin":1,"productId":7}],true)")
                                << QString();
    QTest::newRow("id without an entry, negative id")
        << two << QByteArray(R"({"bin":1,"productId":99},{"bin":2,"productId":-5})") << u"0,0=99 0,1=-5"_s;
    QTest::newRow("any order") << two << QByteArray(R"({"bin":6,"productId":2},{"bin":2,"productId":1})")
                               << u"0,1=1 1,1=2"_s;
    QTest::newRow("last of a repeated bin counts")
        << two << QByteArray(R"({"bin":1,"productId":7},{"bin":1,"productId":8})") << u"0,0=8"_s;
    QTest::newRow("emptied again") << two << QByteArray(R"({"bin":1,"productId":7},{"bin":1})") << QString();
    QTest::newRow("faults between good ones")
        << two << QByteArray(R"({"bin":1,"productId":7},{"bin":99,"productId":1},3,{"bin":2,"productId":8})")
        << u"0,0=7 0,1=8"_s;

    QTest::newRow("one-bin second zone: its bin")
        << oneBin << QByteArray(R"({"bin":3,"productId":7})") << u"0,2=7"_s;
    QTest::newRow("one-bin second zone: the missing bin")
        << oneBin << QByteArray(R"({"bin":4,"productId":7},{"bin":8,"productId":7})") << QString();
    QTest::newRow("one-bin second zone: second row")
        << oneBin << QByteArray(R"({"bin":5,"productId":7},{"bin":7,"productId":8})") << u"1,0=7 1,2=8"_s;

    QTest::newRow("one zone, row end")
        << u"QHX KTR82"_s << QByteArray(R"({"bin":3,"productId":7})") << u"1,0=7"_s;
    QTest::newRow("eight rows, last bin")
        << u"QHX KTR82"_s << QByteArray(R"({"bin":16,"productId":7},{"bin":17,"productId":8})") << u"7,1=7"_s;
    QTest::newRow("three bins, row end")
        << u"ZPV ZPV23"_s << QByteArray(R"({"bin":4,"productId":7})") << u"1,0=7"_s;
    QTest::newRow("three bins, last bin")
        << u"ZPV ZPV43"_s << QByteArray(R"({"bin":12,"productId":7},{"bin":13,"productId":8})") << u"3,2=7"_s;
    QTest::newRow("two zones, many rows, last bin")
        << u"QHX KTR54"_s << QByteArray(R"({"bin":20,"productId":7},{"bin":21,"productId":8})") << u"4,3=7"_s;
    QTest::newRow("unknown cabinet has no bins")
        << u"QHX KTR99"_s << QByteArray(R"({"bin":0,"productId":6},{"bin":1,"productId":7})") << QString();
}

void TestMenuJsonBins::locations()
{
    QFETCH(QString, cabinet);
    QFETCH(QByteArray, locations);
    const QByteArray header = R"({"cabinetType":")" + cabinet.section(u' ', 0, 0).toLatin1() +
                              R"(","cabinetModel":")" + cabinet.section(u' ', 1).toLatin1() + R"("})";
    const QByteArray content =
        R"({"products":[],"productGroups":[],"layout":[{"productLocations":[)" + locations + "]}]}";
    Menu menu;
    QCOMPARE(readMenu(document::of(content, header), menu, [](CabinetConfiguration &) { return true; }),
             QString());
    QTEST(filledBins(menu.dayparts[0]), "filled");
}

void TestMenuJsonBins::eachDaypartOnItsOwn()
{
    Menu menu;
    QCOMPARE(document::read(document::withLists("", "",
                                                R"({"productLocations":[{"bin":1,"productId":7}]},{},)"
                                                R"({"productLocations":[{"bin":2,"productId":8}]})"),
                            menu),
             QString());
    QCOMPARE(filledBins(menu.dayparts[0]), u"0,0=7"_s);
    QCOMPARE(filledBins(menu.dayparts[1]), QString());
    QCOMPARE(filledBins(menu.dayparts[2]), u"0,1=8"_s);
    QCOMPARE(filledBins(menu.dayparts[3]), QString());
}

QTEST_APPLESS_MAIN(TestMenuJsonBins)
#include "tst_menujson_bins.moc"
