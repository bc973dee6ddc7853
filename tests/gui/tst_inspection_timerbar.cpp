// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/inspect.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarproductedit.h"

using namespace Qt::StringLiterals;
using ui::hasFocus;

/// What there is to look at in Timer Bar menus.
class TestInspectionTimerBar : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void noLineWhereThereIsNothing();
    void productRow();
    void binOfAnotherDaypart();
    void leavingTheListChangesNothing();
    void lineFollowsEdits();
    void lineFollowsTheModel();
    void lineComesAgainWithTheFile();
};

namespace {

// Nobody can hold Eggs, and in the lower row at dinner Chili stands beside Bacon.
cbr::Menu menuToLookAt()
{
    cbr::Menu menu = baconHamChili(u"KTR24"_s);
    menu.products[2].lower = menu.products[2].upper;
    menu.products.append({.name = "Eggs", .shortName = "EGGS", .holdMinutes = 0});
    menu.dayparts[0] = {0, 1};
    menu.dayparts[4] = {100, 100, 2, 0};
    return menu;
}

const QStringList everything{
    u"Product 4, Eggs: Invalid hold time. Minimum value is 6 minutes!"_s,
    u"Dinner, Row 2, Bin 3: Chili. Does not fit: 190 °F / 190 °F, this pair holds 215 °F"_s,
    u"Dinner, Row 2, Bin 4: Bacon. Does not fit: 215 °F / 215 °F, this pair holds 190 °F"_s,
};

} // namespace

void TestInspectionTimerBar::noLineWhereThereIsNothing()
{
    OpenTimerBar editor(baconHamChili());
    QVERIFY(!editor->findChild<QPushButton *>(u"btnFindings"_s));
}

void TestInspectionTimerBar::productRow()
{
    OpenTimerBar editor(menuToLookAt());
    QCOMPARE(inspect::line(*editor), u"3 things to look at"_s);
    QCOMPARE(inspect::sentences(*editor), everything);
    editor.showTab(1);
    inspect::goTo(*editor, 0);
    QCOMPARE(ui::get<QTabWidget>(*editor, "tabWidget").currentIndex(), 0);
    QVERIFY(hasFocus(editor.products()));
    QVERIFY(editor.products().item(3)->isSelected());
    QCOMPARE(editor.detail("Name"), u"Eggs"_s);
}

void TestInspectionTimerBar::binOfAnotherDaypart()
{
    OpenTimerBar editor(menuToLookAt());
    inspect::goTo(*editor, 2);
    QCOMPARE(ui::get<QTabWidget>(*editor, "tabWidget").currentIndex(), 1);
    QCOMPARE(ui::get<QComboBox>(*editor, "comboDaypartSelect").currentText(), u"Dinner"_s);
    QPushButton &bin = editor.button("btnDaypartSelectB1_1");
    QCOMPARE(bin.text(), u"BACN"_s);
    QVERIFY(hasFocus(bin));
}

void TestInspectionTimerBar::leavingTheListChangesNothing()
{
    OpenTimerBar editor(menuToLookAt());
    inspect::open(*editor, [](MenuInspection &dialog) {
        ui::clickRow(inspect::list(dialog), 1);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    for (int row = 0; row < everything.size(); ++row)
        inspect::goTo(*editor, row);
    QCOMPARE(ui::get<QLabel>(*editor, "lblSaved").text(), u"Saved"_s);
    QCOMPARE(editor.saved(), hex(menuToLookAt()));
}

void TestInspectionTimerBar::lineFollowsEdits()
{
    OpenTimerBar editor(menuToLookAt());
    ModalAnswers answers;
    answers.expect<TimerBarProductEdit>([](TimerBarProductEdit &dialog) {
        ui::enterTime(dialog, "timeHoldTime", QTime(0, 30));
        ui::click(dialog, "btnSave");
    });
    ui::doubleClickRow(editor.products(), 3);
    QCOMPARE(inspect::line(*editor), u"2 things to look at"_s);
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::clickRow(editor.products(), 2);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(inspect::line(*editor), QString());
}

// The pair with Chili is not there in a narrower cabinet.
void TestInspectionTimerBar::lineFollowsTheModel()
{
    OpenTimerBar editor(menuToLookAt());
    ModalAnswers answers;
    answers.expect<QDialog>([](QDialog &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR22"_s);
        ui::click(dialog, "btnAccept");
    });
    ui::click(*editor, "btnConfig");
    QCOMPARE(inspect::line(*editor), u"1 thing to look at"_s);
}

void TestInspectionTimerBar::lineComesAgainWithTheFile()
{
    OpenTimerBar editor(menuToLookAt());
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::clickRow(editor.products(), 3);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(inspect::line(*editor), u"2 things to look at"_s);
    QVERIFY(editor->readMenuFile());
    QCOMPARE(inspect::line(*editor), u"3 things to look at"_s);
}

QTEST_MAIN(TestInspectionTimerBar)
#include "tst_inspection_timerbar.moc"
