// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "tests/gui/holdbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/gui/plannedmenu.h"
#include "tests/support/hardship.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// The button that writes the bin plan of a menu.
class TestBinPlan : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void planIsWritten_data() { planned::addLineRows(); }
    void planIsWritten();
    void newMenuProposesAName_data() { planned::addLineRows(); }
    void newMenuProposesAName();
    void suffixIsAdded_data();
    void suffixIsAdded();
    void planOfAnotherSuffixIsReplaced();
    void replacingIsAskedFor();
    void menusAreNotReplaced_data();
    void menusAreNotReplaced();
    void menuNamedLikeAPlanIsKept();
    void cancelWritesNothing_data() { planned::addLineRows(); }
    void cancelWritesNothing();
    void nothingToDrawIsTold_data() { planned::addLineRows(); }
    void nothingToDrawIsTold();
    void unwritableFolderIsTold_data() { planned::addLineRows(); }
    void unwritableFolderIsTold();
    void failureLeavesTheOldPlan();
    void notWhileRemoving();
    void notWhileRemovingOfTimerBar();
};

namespace {

QString told(Program &program)
{
    return ui::get<QLabel>(program.window(), "lblTold").text();
}

QString stateOf(Program &program)
{
    return ui::get<QLabel>(*program.subWindow(), "lblSaved").text();
}

} // namespace

// The menu stays as it is, and its file too.
void TestBinPlan::planIsWritten()
{
    QFETCH(const Line, line);
    Program program;
    planned::open(program, line);
    const QStringList before = program.folder().names();
    planned::expectPlan(program, program.path(u"plan.pdf"_s), u"menu.pdf"_s);
    planned::clickPlan(program);
    QVERIFY(program.content(u"plan.pdf"_s).startsWith("%PDF-"));
    QCOMPARE(program.folder().names(), before + QStringList{u"plan.pdf"_s});
    QCOMPARE(told(program), u"Saved "_s + program.path(u"plan.pdf"_s));
    QCOMPARE(stateOf(program), u"Saved"_s);
}

void TestBinPlan::newMenuProposesAName()
{
    QFETCH(const Line, line);
    Program program;
    program.newMenu(line);
    if (line == Line::TimerBar)
        planned::fillFirstBin(program);
    planned::expectPlan(program, program.path(u"plan.pdf"_s), u"Bin Plan.pdf"_s);
    planned::clickPlan(program);
    QVERIFY(program.content(u"plan.pdf"_s).startsWith("%PDF-"));
    QCOMPARE(stateOf(program), u"Not saved yet"_s);
}

void TestBinPlan::suffixIsAdded_data()
{
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("written");
    QTest::newRow("none") << u"plan"_s << u"plan.pdf"_s;
    QTest::newRow("its own") << u"plan.pdf"_s << u"plan.pdf"_s;
    QTest::newRow("in capitals") << u"PLAN.PDF"_s << u"PLAN.PDF"_s;
    QTest::newRow("another") << u"plan.of.today"_s << u"plan.of.today"_s;
}

void TestBinPlan::suffixIsAdded()
{
    QFETCH(const QString, entered);
    QFETCH(const QString, written);
    Program program;
    planned::open(program, Line::Holding);
    planned::expectPlan(program, program.path(entered));
    planned::clickPlan(program);
    QVERIFY(program.folder().names().contains(written));
    QCOMPARE(told(program), u"Saved "_s + program.path(written));
}

// A plan is told by its bytes too.
void TestBinPlan::planOfAnotherSuffixIsReplaced()
{
    Program program;
    planned::open(program, Line::Holding);
    program.folder().make(u"plan.of.today"_s, "%PDF-1.4 an older plan");
    planned::expectReplacing(program, u"plan.of.today"_s);
    planned::clickPlan(program);
    QVERIFY(!program.content(u"plan.of.today"_s).contains("an older plan"));
    QVERIFY(program.content(u"plan.of.today"_s).startsWith("%PDF-"));
}

// Also of the file whose suffix is added.
void TestBinPlan::replacingIsAskedFor()
{
    Program program;
    planned::open(program, Line::Holding);
    program.folder().make(u"plan.pdf"_s, "an older plan");
    program.answers().expect<QFileDialog>([&program](QFileDialog &dialog) {
        auto *buttons = dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s);
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(program.path(u"plan"_s));
        program.answers().expect<QMessageBox>(
            [](QMessageBox &box) { ui::click(*box.button(QMessageBox::No)); });
        ui::click(*buttons->button(QDialogButtonBox::Save));
        ui::activate(dialog);
        program.answers().expect<QMessageBox>(
            [](QMessageBox &box) { ui::click(*box.button(QMessageBox::Yes)); });
        REQUIRE_EQUAL(program.content(u"plan.pdf"_s), QByteArray("an older plan"));
        ui::click(*buttons->button(QDialogButtonBox::Save));
    });
    planned::clickPlan(program);
    QVERIFY(program.answers().allAnswered());
    QVERIFY(program.content(u"plan.pdf"_s).startsWith("%PDF-"));
}

void TestBinPlan::menusAreNotReplaced_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("its own") << u"menu.json"_s;
    QTest::newRow("another one") << u"other.cbr"_s;
    QTest::newRow("open one, named like a plan") << u"open.pdf"_s;
}

// Though somebody says Yes to whether the file is replaced.
void TestBinPlan::menusAreNotReplaced()
{
    QFETCH(const QString, name);
    Program program;
    program.newMenu(Line::TimerBar);
    program.expectSaveDialog(Line::TimerBar, Asking::SaveAs, program.path(u"open.pdf"_s));
    program.saveAs();
    planned::open(program, Line::Holding);
    program.folder().make(u"other.cbr"_s, planned::timerBarMenu(true));
    const QByteArray before = program.content(name);
    planned::expectRefusal(program, name);
    planned::clickPlan(program);
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.content(name), before);
    QCOMPARE(stateOf(program), u"Saved"_s);
}

void TestBinPlan::menuNamedLikeAPlanIsKept()
{
    Program program;
    program.newMenu(Line::TimerBar);
    planned::fillFirstBin(program);
    program.expectSaveDialog(Line::TimerBar, Asking::SaveAs, program.path(u"menu.pdf"_s));
    program.saveAs();
    const QByteArray before = program.content(u"menu.pdf"_s);
    planned::expectPlan(program, program.path(u"plan.pdf"_s), u"Bin Plan.pdf"_s);
    planned::clickPlan(program);
    planned::expectRefusal(program, u"menu.pdf"_s);
    planned::clickPlan(program);
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.content(u"menu.pdf"_s), before);
}

void TestBinPlan::cancelWritesNothing()
{
    QFETCH(const Line, line);
    Program program;
    planned::open(program, line);
    const QStringList before = program.folder().names();
    const QString toldBefore = told(program);
    planned::expectPlan(program, {});
    planned::clickPlan(program);
    QCOMPARE(program.folder().names(), before);
    QCOMPARE(told(program), toldBefore);
}

void TestBinPlan::nothingToDrawIsTold()
{
    QFETCH(const Line, line);
    Program program;
    planned::open(program, line, false);
    const bool holding = line == Line::Holding;
    program.answers().expectBox(
        ModalAnswers::refusal(holding ? u"No day part is in use."_s : u"No bin is filled."_s),
        QMessageBox::Close);
    planned::clickPlan(program);
    QVERIFY(program.answers().allAnswered());
}

void TestBinPlan::unwritableFolderIsTold()
{
    QFETCH(const Line, line);
    Program program;
    planned::open(program, line);
    REQUIRE(QDir(program.path({})).mkdir(u"folder"_s));
    const QString path = program.path(u"folder/plan.pdf"_s);
    REQUIRE(QFile::setPermissions(program.path(u"folder"_s), QFile::ReadOwner | QFile::ExeOwner));
    const QString toldBefore = told(program);
    {
        const OrdinaryUser user;
        QVERIFY(user.isActive());
        planned::expectPlan(program, path);
        program.answers().expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
        planned::clickPlan(program);
    }
    QVERIFY(program.answers().allAnswered());
    QVERIFY(!QFile::exists(path));
    QCOMPARE(told(program), toldBefore);
}

void TestBinPlan::failureLeavesTheOldPlan()
{
    Program program;
    planned::open(program, Line::Holding);
    const QString path = program.folder().make(u"plan.pdf"_s, "an older plan");
    program.answers().expect<QFileDialog>([&](QFileDialog &dialog) {
        program.answers().expect<QMessageBox>(
            [](QMessageBox &box) { ui::click(*box.button(QMessageBox::Yes)); });
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
        ui::click(*dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s)->button(QDialogButtonBox::Save));
        program.answers().expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    });
    {
        const FileSizeLimit limit(100);
        QVERIFY(limit.isActive());
        planned::clickPlan(program);
    }
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.content(u"plan.pdf"_s), QByteArray("an older plan"));
}

// Like the other buttons of day parts; nothing moves when it goes.
void TestBinPlan::notWhileRemoving()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    const QWidget &plan = editor.widget("btnBinPlan");
    QVERIFY(plan.isVisible() && plan.isEnabled());
    const QList<QRect> before = editor.places();
    editor.press(0, 0);
    REQUIRE_SOON(editor.isRemoving());
    editor.release();
    QVERIFY(!plan.isVisible());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(editor.places(), before);
    ui::click(*editor, "btnCancelDaypartRemove");
    QVERIFY(plan.isVisible());
}

void TestBinPlan::notWhileRemovingOfTimerBar()
{
    cbr::Menu menu = baconHamChili(u"KTR22"_s);
    menu.dayparts[0] = {0, 1, 1, 0};
    OpenTimerBar editor(menu);
    enterRemovalMode(*editor);
    QVERIFY(!editor.button("btnBinPlan").isEnabled());
    ui::click(*editor, "btnCancelDaypartRemove");
    QVERIFY(editor.button("btnBinPlan").isEnabled());
}

QTEST_MAIN(TestBinPlan)
#include "tst_binplan.moc"
