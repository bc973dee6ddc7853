// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/openlaneeditor.h"
#include "tests/support/program.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList laneCounts{u"Single Lane"_s, u"Double Lane"_s, u"Triple Lane"_s, u"Quad Lane"_s};

QByteArray golden(const QString &name)
{
    return contentOf(QFINDTESTDATA(u"../data/"_s + name));
}

void saveAs(Program &program, const QString &start)
{
    program.expectSaveDialog(Line::Lanes, Asking::SaveAs, program.path(u"svrxconfig_a.txt"_s), start);
    program.saveAs();
}

void addRows()
{
    QTest::addColumn<int>("laneCount");
    QTest::addColumn<QByteArray>("unit");
    for (int laneCount = 1; laneCount <= laneCounts.size(); ++laneCount) {
        for (const char *unit : {"rbTempUnitF", "rbTempUnitC"})
            QTest::addRow("%d, %s", laneCount, unit) << laneCount << QByteArray(unit);
    }
}

} // namespace

/// Both files of a lane configuration, byte for byte, whichever unit is shown.
class TestSvrxMenuFileGolden : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void openedFilesAreWritten_data() { addRows(); }
    void openedFilesAreWritten();
    void enteredFilesAreWritten_data() { addRows(); }
    void enteredFilesAreWritten();
    void celsiusEntriesAreWritten();
};

void TestSvrxMenuFileGolden::openedFilesAreWritten()
{
    QFETCH(const int, laneCount);
    QFETCH(const QByteArray, unit);
    Program program;
    program.open(u"a.txt"_s, golden(u"svrxconfig_4.txt"_s));
    ui::click(*program.editor<SvrxMenuFile>(), unit.constData());
    ui::choose(*program.editor<SvrxMenuFile>(), "comboModelSelect", laneCounts[laneCount - 1]);
    saveAs(program, u"a.txt"_s);
    const QString ending = QString::number(laneCount) + u".txt"_s;
    QCOMPARE(program.content(u"svrxconfig_a.txt"_s), golden(u"svrxconfig_"_s + ending));
    QCOMPARE(program.content(u"svrxprod_a.txt"_s), golden(u"svrxprod_"_s + ending));
}

// Entered in °F; the unit is changed before they are saved.
void TestSvrxMenuFileGolden::enteredFilesAreWritten()
{
    QFETCH(const int, laneCount);
    QFETCH(const QByteArray, unit);
    const int temperatures[] = {150, 400, 276, 399};
    const int fanSpeeds[] = {1500, 3200, 2047, 2816};
    Program program;
    program.newMenu(Line::Lanes);
    SvrxMenuFile &editor = *program.editor<SvrxMenuFile>();
    ui::choose(editor, "comboModelSelect", laneCounts[laneCount - 1]);
    for (int lane = 1; lane <= laneCount; ++lane) {
        ui::type(temperatureBox(editor, lane), QString::number(temperatures[lane - 1]));
        ui::type(fanSpeedBox(editor, lane), QString::number(fanSpeeds[lane - 1]));
    }
    ui::click(editor, unit.constData());
    saveAs(program, u"svrxconfig_"_s);
    const QString ending = QString::number(laneCount) + u".txt"_s;
    QCOMPARE(program.content(u"svrxconfig_a.txt"_s), golden(u"svrxconfig_"_s + ending));
    QCOMPARE(program.content(u"svrxprod_a.txt"_s), golden(u"svrxprod_"_s + ending));
}

void TestSvrxMenuFileGolden::celsiusEntriesAreWritten()
{
    Program program;
    program.newMenu(Line::Lanes);
    SvrxMenuFile &editor = *program.editor<SvrxMenuFile>();
    ui::click(editor, "rbTempUnitC");
    ui::type(temperatureBox(editor, 1), u"66"_s);
    ui::type(temperatureBox(editor, 2), u"204"_s);
    saveAs(program, u"svrxconfig_"_s);
    QCOMPARE(program.content(u"svrxconfig_a.txt"_s),
             lanefile::text("T1=151,T2=399,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0"));
    QCOMPARE(program.content(u"svrxprod_a.txt"_s),
             QByteArray("a5a5081101070800970708018fffffffffffffffff3e2b"));
}

QTEST_MAIN(TestSvrxMenuFileGolden)
#include "tst_svrxmenufile_golden.moc"
