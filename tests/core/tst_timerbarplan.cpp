// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "tests/support/sampletimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/binplan.h"

using namespace Qt::StringLiterals;

/// What the bin plan tells of a Timer Bar menu.
class TestTimerBarPlan : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void daypartsWithAFilledBinAreDrawn();
    void binsBeyondTheCabinetDoNotCount();
    void unknownCabinetHasNone();
    void cabinetIsNamed();
    void bins_data();
    void bins();
    void unitIsTheMenus();
    void binsStandAsInTheGrid_data();
    void binsStandAsInTheGrid();
};

namespace {

timerbar::Menu menuOf(const QString &model)
{
    const cbr::Menu file{
        .model = model,
        .products = {{.name = "Bacon", .shortName = "BACN", .holdMinutes = 90, .upper = 126, .lower = 116},
                     {.name = "Ham", .shortName = "", .upper = 116, .lower = 116},
                     {.name = "", .shortName = "CHIL"}}};
    return sample::timerBarMenu(file);
}

QStringList namesIn(const timerbar::Menu &menu)
{
    QStringList names;
    for (const binplan::Daypart &daypart : timerbar::plannedCabinet(menu).dayparts)
        names.append(daypart.name);
    return names;
}

} // namespace

void TestTimerBarPlan::daypartsWithAFilledBinAreDrawn()
{
    timerbar::Menu menu = menuOf(u"KTR22"_s);
    QCOMPARE(namesIn(menu), QStringList());
    menu.dayparts[2][1][1] = 1;
    menu.dayparts[5][0][0] = 77;
    QCOMPARE(namesIn(menu), (QStringList{u"Lunch"_s, u"ChangeOver 3"_s}));
    QCOMPARE(timerbar::plannedCabinet(menu).dayparts[0].bins.size(), 4);
}

void TestTimerBarPlan::binsBeyondTheCabinetDoNotCount()
{
    timerbar::Menu menu = menuOf(u"KTR22"_s);
    menu.dayparts[0][2][0] = 1;
    menu.dayparts[1][0][2] = 1;
    QCOMPARE(namesIn(menu), QStringList());
}

void TestTimerBarPlan::unknownCabinetHasNone()
{
    timerbar::Menu menu = menuOf(u"KTR22"_s);
    menu.dayparts[0][0][0] = 1;
    menu.model = u"KTR99"_s;
    QCOMPARE(namesIn(menu), QStringList());
}

void TestTimerBarPlan::cabinetIsNamed()
{
    const binplan::Cabinet cabinet = timerbar::plannedCabinet(menuOf(u"KTR34"_s));
    QCOMPARE(cabinet.model, u"Timer Bar KTR34"_s);
    QCOMPARE(cabinet.rows, 3);
    QCOMPARE(cabinet.columns, 4);
}

void TestTimerBarPlan::bins_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("settings");
    QTest::newRow("product") << 0 << u"Bacon"_s << u"BACN  225/215°F  01:30"_s;
    QTest::newRow("no short name") << 1 << u"Ham"_s << u"215°F  00:30"_s;
    QTest::newRow("no name") << 2 << u"Id 2"_s << u"CHIL  200°F  00:30"_s;
    QTest::newRow("missing") << 77 << u"Id 77"_s << QString();
    QTest::newRow("beyond what is empty") << 101 << u"Id 101"_s << QString();
    QTest::newRow("empty") << 100 << QString() << QString();
}

void TestTimerBarPlan::bins()
{
    QFETCH(const int, id);
    timerbar::Menu menu = menuOf(u"KTR22"_s);
    menu.dayparts[0][0][0] = 1;
    menu.dayparts[0][1][1] = id;
    const binplan::Content content = timerbar::plannedCabinet(menu).dayparts[0].bins.constLast().content;
    QTEST(content.name, "name");
    QTEST(content.settings, "settings");
    QVERIFY(content.colorName.isEmpty() && content.members.isEmpty());
}

void TestTimerBarPlan::unitIsTheMenus()
{
    timerbar::Menu menu = menuOf(u"KTR22"_s);
    menu.temperatureUnit = unitCelsius;
    menu.dayparts[0][0][0] = 0;
    const binplan::Content content = timerbar::plannedCabinet(menu).dayparts[0].bins[0].content;
    QCOMPARE(content.settings, u"BACN  107/102°C  01:30"_s);
}

void TestTimerBarPlan::binsStandAsInTheGrid_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("places"); // of the first row, in thousandths of the grid's width
    QTest::newRow("one pair") << u"KTR32"_s << u"0-500 500-1000"_s;
    QTest::newRow("two pairs") << u"KTR34"_s << u"0-244 244-489 511-756 756-1000"_s;
    QTest::newRow("a pair of one bin") << u"KTR23"_s << u"0-319 319-638 668-1000"_s;
}

void TestTimerBarPlan::binsStandAsInTheGrid()
{
    QFETCH(const QString, model);
    timerbar::Menu menu = menuOf(model);
    menu.dayparts[0][0][0] = 0;
    QStringList places;
    const binplan::Cabinet cabinet = timerbar::plannedCabinet(menu);
    for (const binplan::GridBin &bin : cabinet.dayparts[0].bins) {
        if (bin.row == 0)
            places.append(u"%1-%2"_s.arg(qRound(1000 * bin.left)).arg(qRound(1000 * bin.right)));
    }
    QTEST(places.join(u' '), "places");
}

QTEST_APPLESS_MAIN(TestTimerBarPlan)
#include "tst_timerbarplan.moc"
