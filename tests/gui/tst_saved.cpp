// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>
#include <QListWidget>
#include <QSpinBox>

#include "tests/gui/closing.h"
#include "tests/support/program.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QString notSaved = u"Not saved yet"_s;
const QString changed = u"Changed since the last save"_s;
const QString saved = u"Saved"_s;

QString stateOf(Program &program)
{
    return ui::get<QLabel>(*program.subWindow()->widget(), "lblSaved").text();
}

/// The line of the last act, where it is in sight.
QString told(Program &program)
{
    const auto &label = ui::get<QLabel>(program.window(), "lblTold");
    return label.isVisible() ? label.text() : u"(hidden)"_s;
}

/// The note on the suffix, where it is in sight.
QString suffixNote(Program &program)
{
    const auto &label = ui::get<QLabel>(program.window(), "lblSuffixNote");
    return label.isVisible() ? label.text() : QString();
}

/// A name that the line's editors save under.
QString fileOf(Line line)
{
    return (line == Line::Lanes ? u"svrxconfig_a."_s : u"menu."_s) + namesOf(line).files.first().suffix;
}

void open(Program &program, Line line)
{
    program.open(fileOf(line), namesOf(line).files.first().sample());
}

/// Brings the menu into a file as the program writes it, without what only the sample's bytes hold.
void openOwn(Program &program, Line line)
{
    program.newMenu(line);
    program.expectSaveDialog(line, Asking::Save, program.path(fileOf(line)));
    program.save();
}

/// Changes the menu, and with `back` changes it back.
void change(Program &program, Line line, bool back = false)
{
    QWidget &editor = *program.subWindow()->widget();
    if (line == Line::Lanes) {
        QTest::keyClick(&ui::get<QSpinBox>(editor, "numTemperature1"), back ? Qt::Key_Down : Qt::Key_Up);
        return;
    }
    const char *name = line == Line::TimerBar ? "txtProductName" : "txtName";
    program.answers().expect<QDialog>([back, name](QDialog &dialog) {
        ui::type(dialog, name, back ? u"One"_s : u"Another"_s);
        ui::click(dialog, "btnSave");
    });
    ui::doubleClickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
}

} // namespace

/// What the windows say about whether a menu is saved.
class TestSaved : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addLineRows(); }
    void init() { failOnWarnings(); }
    void newMenuIsNotSaved();
    void openedMenuIsSaved();
    void changeTakenBackIsSaved();
    void savingSays();
    void failedSaveUnderANewNameIsNotSaved();
    void failedProductionFileIsToldOf();
    void editEndsWhatWasTold();
    void suffixNoteFollowsTheActiveMenu();
    void endingOfAnOldMenuIsToldOf();
    void closeButtonAsks();
};

void TestSaved::newMenuIsNotSaved()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    program.newMenu(line);
    QCOMPARE(stateOf(program), notSaved);
    QCOMPARE(told(program), u"(hidden)"_s);
    change(program, line);
    QCOMPARE(stateOf(program), notSaved);
    program.expectSaveDialog(line, Asking::Save, program.path(fileOf(line)));
    program.save();
    QCOMPARE(stateOf(program), saved);
}

void TestSaved::openedMenuIsSaved()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    openOwn(program, line);
    program.open(fileOf(line));
    QCOMPARE(stateOf(program), saved);
    QCOMPARE(told(program), u"Opened %1"_s.arg(program.path(fileOf(line))));
    change(program, line);
    QCOMPARE(stateOf(program), changed);
    program.save();
    QCOMPARE(stateOf(program), saved);
}

void TestSaved::changeTakenBackIsSaved()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    openOwn(program, line);
    change(program, line, true);
    program.save();
    change(program, line);
    QCOMPARE(stateOf(program), changed);
    change(program, line, true);
    QCOMPARE(stateOf(program), saved);
}

void TestSaved::savingSays()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    openOwn(program, line);
    const QString path = program.path(fileOf(line));
    const bool lanes = line == Line::Lanes;
    QCOMPARE(told(program), lanes ? u"Saved %1 and %2"_s.arg(path, program.path(u"svrxprod_a.txt"_s))
                                  : u"Saved %1"_s.arg(path));
    program.save();
    QCOMPARE(told(program),
             u"Saved %1"_s.arg(path) + (lanes ? u". The production file was not written."_s : QString()));
}

void TestSaved::failedSaveUnderANewNameIsNotSaved()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    openOwn(program, line);
    const QString path = program.path(u"no such folder/"_s + fileOf(line));
    program.expectSaveDialog(line, Asking::SaveAs, path, fileOf(line));
    const QString fault =
        line == Line::TimerBar ? u"Failed to open the file:"_s : u"Failed to create/open the file:"_s;
    program.answers().expectBox(ModalAnswers::fileFault(fault + path), QMessageBox::Ok);
    program.saveAs();
    QCOMPARE(stateOf(program), notSaved);
    QCOMPARE(told(program), u"(hidden)"_s);
}

// The lanes' editor alone writes a second file.
void TestSaved::failedProductionFileIsToldOf()
{
    QFETCH_GLOBAL(const Line, line);
    if (line != Line::Lanes)
        return;
    Program program;
    program.newMenu(line);
    const QString production = program.path(u"svrxprod_a.txt"_s);
    QVERIFY(QDir().mkdir(production)); // no file can take its place
    const QString path = program.path(u"svrxconfig_a.txt"_s);
    program.expectSaveDialog(line, Asking::SaveAs, path);
    program.answers().expectBox(ModalAnswers::writeFault(production), QMessageBox::Ok);
    program.saveAs();
    QCOMPARE(told(program), u"Saved %1. The production file was not written."_s.arg(path));
}

void TestSaved::editEndsWhatWasTold()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    openOwn(program, line);
    QVERIFY(told(program) != u"(hidden)"_s);
    change(program, line);
    QCOMPARE(told(program), u"(hidden)"_s);
}

void TestSaved::suffixNoteFollowsTheActiveMenu()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    openOwn(program, line);
    QCOMPARE(suffixNote(program), QString());
    QMdiSubWindow *first = program.subWindow();
    program.newMenu(line);
    const QString name = line == Line::Lanes ? u"svrxconfig_b"_s : u"menu"_s;
    program.expectSaveDialog(line, Asking::Save, program.path(name));
    program.save();
    const QString note =
        u"Without .%1 this program will not open it."_s.arg(namesOf(line).files.first().suffix);
    QCOMPARE(suffixNote(program), note);
    change(program, line);
    QCOMPARE(suffixNote(program), note);
    program.area().setActiveSubWindow(first);
    QCOMPARE(suffixNote(program), QString());
    program.area().setActiveSubWindow(program.subWindow());
    QCOMPARE(suffixNote(program), note);
}

// Open would take such a file for an old menu.
void TestSaved::endingOfAnOldMenuIsToldOf()
{
    QFETCH_GLOBAL(const Line, line);
    if (line != Line::Holding)
        return;
    Program program;
    program.newMenu(line);
    program.expectSaveDialog(line, Asking::Save, program.path(u"menu.qhx"_s));
    program.save();
    QCOMPARE(suffixNote(program), u"Without .json this program will not open it."_s);
}

void TestSaved::closeButtonAsks()
{
    QFETCH_GLOBAL(const Line, line);
    Program program;
    open(program, line);
    const QPointer<QWidget> editor = closing::editor(program);
    program.expectSaveQuestion(QMessageBox::Cancel);
    ui::click(*editor, "btnClose");
    closing::requireOpen(program, editor);
    program.expectSaveQuestion(QMessageBox::No);
    ui::click(*editor, "btnClose");
    closing::requireGone(program, editor);
}

QTEST_MAIN(TestSaved)
#include "tst_saved.moc"
