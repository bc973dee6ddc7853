// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QSpinBox>

#include "tests/access/heard.h"
#include "tests/support/cbrbuilder.h"
#include "tests/support/program.h"
#include "tests/support/samplefile.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

/// A name that the line's editors save under, without its suffix.
QString nameOf(Line line)
{
    return line == Line::Lanes ? u"svrxconfig_a"_s : u"menu"_s;
}

QString suffixOf(Line line)
{
    return u'.' + namesOf(line).files.first().suffix;
}

/// A menu with something to change.
QByteArray bytesOf(Line line)
{
    if (line == Line::Lanes)
        return namesOf(line).files.first().sample();
    if (line == Line::TimerBar)
        return cbr::Menu{.model = u"KTR22"_s, .products = {{.name = "Bacon", .shortName = "BACN"}}}.bytes();
    samplefile::Menu menu;
    menu.products = {samplefile::product(1, u"Bacon"_s)};
    return menu.bytes();
}

void open(Program &program, Line line)
{
    REQUIRE(program.open(nameOf(line) + suffixOf(line), bytesOf(line)));
}

void saveAs(Program &program, Line line, const QString &name)
{
    program.expectSaveDialog(line, Asking::SaveAs, program.path(name), nameOf(line) + suffixOf(line));
    program.saveAs();
}

} // namespace

/// What the whole program tells screen readers, whatever the line.
class TestSpokenProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addLineRows(); }
    void init() { failOnWarnings(); }
    void windowsHaveTheirTitles();
    void savingIsToldEachTime();
    void savingUnderANameIsToldOnce();
    void firstChangeIsTold();
};

void TestSpokenProgram::windowsHaveTheirTitles()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    open(program, line);
    QMdiSubWindow &subWindow = *program.subWindow();
    const QString title = subWindow.windowTitle();
    QVERIFY(title.contains(nameOf(line)));
    QCOMPARE(spokenName(subWindow), title);
    QCOMPARE(spokenName(*subWindow.widget()), title);
}

void TestSpokenProgram::savingIsToldEachTime()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    open(program, line);
    Heard heard;
    for (int time = 0; time < 2; ++time) {
        program.save();
        const QStringList told = heard.take();
        QCOMPARE(Heard::countOf(told, u"alert lblSaved: Saved"_s), 1);
        QCOMPARE(told.filter(u"alert lblTold: Saved "_s + program.path(nameOf(line))).size(), 1);
        QVERIFY(!told.filter(u"name lblTold: Saved "_s).isEmpty());
    }
}

void TestSpokenProgram::savingUnderANameIsToldOnce()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    open(program, line);
    Heard heard;
    saveAs(program, line, nameOf(line)); // without a suffix
    const QStringList told = heard.take();
    QCOMPARE(told.filter(u"alert lblSaved:"_s), QStringList{u"alert lblSaved: Saved"_s});
    const QString note =
        u"alert lblSuffixNote: Without %1 this program will not open it."_s.arg(suffixOf(line));
    QCOMPARE(Heard::countOf(told, note), 1);
    program.save();
    QCOMPARE(Heard::countOf(heard.take(), note), 0);
}

void TestSpokenProgram::firstChangeIsTold()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    open(program, line);
    program.save();
    QWidget &editor = *program.subWindow()->widget();
    Heard heard;
    if (line == Line::Lanes) {
        ui::get<QSpinBox>(editor, "numTemperature1").stepUp();
    } else {
        ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
        program.answers().expect<QDialog>([](QDialog &dialog) { ui::click(dialog, "btnSave"); });
        ui::click(editor, "btnDuplicateProduct");
    }
    QCOMPARE(Heard::countOf(heard.take(), u"alert lblSaved: Changed since the last save"_s), 1);
}

QTEST_MAIN(TestSpokenProgram)
#include "tst_spoken_program.moc"
