// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>

#include "holding/assigndaypartitem.h"
#include "tests/gui/editgroup.h"
#include "tests/gui/findfield.h"
#include "tests/gui/holdbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbardaypartassignitem.h"

using namespace Qt::StringLiterals;
using findfield::press;
using findfield::shownNames;

namespace {

QListWidget &listOf(const QWidget &dialog)
{
    return ui::get<QListWidget>(dialog, "listWidgetProducts");
}

bool canSelect(const QWidget &dialog)
{
    return ui::get<QWidget>(dialog, "btnSelect").isEnabled();
}

QString demandOf(const QWidget &dialog)
{
    return ui::get<QLabel>(dialog, "lblDemand").text();
}

// Of "Third", "Half", "Most", "Whole" and "Halves" the second and the last fit beside a half.
void openPicker(OpenBins &editor, Qt::Key key, const std::function<void(AssignDaypartItem &)> &act)
{
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>(act);
    editor.button(0, 1).setFocus();
    QTest::keyClick(&editor.button(0, 1), key);
    REQUIRE(answers.allAnswered());
}

} // namespace

/// "Find" and "Only what fits" in the bin pickers and in the group editor.
class TestFindPickers : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void pickerStartsInTheField();
    void typedLettersFillTheBin();
    void enterWithoutAFitSelectsNothing();
    void onlyWhatFitsHidesGreyedRows();
    void escapeEmptiesBeforeItCancels();
    void typingOnABinOpensThePicker();
    void typingInRemovalModeOpensNothing();
    void commandsOnABinOpenNothing();
    void timerBarPickerFindsBothNames();
    void timerBarPickerShowsOnlyWhatFits();
    void typingOnATimerBarBinOpensThePicker();
    void groupIsMadeByFinding();
    void addedProductLeadsToTheNextInSight();
    void groupEditorShowsOnlyWhatFits();
    void enterInTheFieldNeverSavesAGroup();
    void escapeEmptiesBeforeItLeavesAGroup();
};

void TestFindPickers::pickerStartsInTheField()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    openPicker(editor, Qt::Key_Space, [](AssignDaypartItem &picker) {
        QCOMPARE(picker.focusWidget(), &findfield::fieldIn(picker));
        QVERIFY(findfield::fieldIn(picker).text().isEmpty());
        QVERIFY(!findfield::onlyFits(picker).isChecked());
        QCOMPARE(shownNames(listOf(picker)), u"Third Half Most Whole Halves"_s);
        QVERIFY(!canSelect(picker));
        press(picker, Qt::Key_Return); // nothing is selected yet
        QVERIFY(picker.isVisible());
        ui::click(picker, "btnCancel");
    });
}

void TestFindPickers::typedLettersFillTheBin()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    openPicker(editor, Qt::Key_Space, [](AssignDaypartItem &picker) {
        QTest::keyClicks(picker.focusWidget(), u"ves"_s);
        QCOMPARE(shownNames(listOf(picker)), u"Halves*"_s);
        QVERIFY(canSelect(picker));
        QCOMPARE(ui::get<QLabel>(picker, "txtName").text(), u"Halves"_s);
        press(picker, Qt::Key_Return);
    });
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 5, 0, 0}));
}

void TestFindPickers::enterWithoutAFitSelectsNothing()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    openPicker(editor, Qt::Key_Space, [](AssignDaypartItem &picker) {
        for (const QString &typed : {u"whole"_s, u"nothing like it"_s}) {
            findfield::type(picker, u"half"_s);
            QVERIFY(canSelect(picker));
            findfield::type(picker, typed);
            QVERIFY(!canSelect(picker));
            QVERIFY(ui::get<QLabel>(picker, "txtName").text().isEmpty());
            press(picker, Qt::Key_Return);
            QVERIFY(picker.isVisible());
        }
        ui::click(picker, "btnCancel");
    });
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 0, 0, 0}));
}

// What is said of all rows is still true.
void TestFindPickers::onlyWhatFitsHidesGreyedRows()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    openPicker(editor, Qt::Key_Space, [](AssignDaypartItem &picker) {
        const QString demand = demandOf(picker);
        QVERIFY(demand.endsWith(u"2 of 5 fit"_s));
        findfield::onlyFits(picker).click();
        QCOMPARE(shownNames(listOf(picker)), u"Half Halves"_s);
        findfield::type(picker, u"v"_s);
        QCOMPARE(shownNames(listOf(picker)), u"Halves*"_s);
        QCOMPARE(demandOf(picker), demand);
        picker.loadProducts();
        QCOMPARE(shownNames(listOf(picker)), u"Halves"_s);
        findfield::onlyFits(picker).click();
        findfield::type(picker, {});
        QCOMPARE(listOf(picker).count(), 5);
        ui::click(picker, "btnCancel");
    });
}

void TestFindPickers::escapeEmptiesBeforeItCancels()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    openPicker(editor, Qt::Key_Space, [](AssignDaypartItem &picker) {
        findfield::type(picker, u"half"_s);
        press(picker, Qt::Key_Down); // the focus is in the list
        press(picker, Qt::Key_Escape);
        QVERIFY(picker.isVisible());
        QVERIFY(findfield::fieldIn(picker).text().isEmpty());
        press(picker, Qt::Key_Escape);
        QVERIFY(picker.isHidden());
    });
}

void TestFindPickers::typingOnABinOpensThePicker()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2}));
    openPicker(editor, Qt::Key_H, [](AssignDaypartItem &picker) {
        QCOMPARE(findfield::fieldIn(picker).text(), u"h"_s);
        QCOMPARE(picker.focusWidget(), &findfield::fieldIn(picker));
        QTest::keyClicks(picker.focusWidget(), u"alv"_s); // goes on where the bin began
        QCOMPARE(findfield::fieldIn(picker).text(), u"halv"_s);
        press(picker, Qt::Key_Return);
    });
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 5, 0, 0}));
    openPicker(editor, Qt::Key_Space, [](AssignDaypartItem &picker) {
        QVERIFY(findfield::fieldIn(picker).text().isEmpty());
        ui::click(picker, "btnCancel");
    });
}

void TestFindPickers::typingInRemovalModeOpensNothing()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    editor.press(0, 0);
    REQUIRE_SOON(editor.isRemoving());
    editor.release();
    const ModalAnswers nothingComesUp;
    QTest::keyClick(&editor.button(0, 1), Qt::Key_H);
    QVERIFY(!editor.button(0, 1).isChecked());
    QVERIFY(editor.isRemoving());
}

void TestFindPickers::commandsOnABinOpenNothing()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    const ModalAnswers nothingComesUp;
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        QTest::keyClick(&editor.button(0, 1), Qt::Key_H, modifier);
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_F5, Qt::Key_Delete, Qt::Key_Backspace})
        QTest::keyClick(&editor.button(0, 1), key);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_H, {}, u"h"_s, true);
    QCoreApplication::sendEvent(&editor.button(0, 1), &held);
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
}

void TestFindPickers::timerBarPickerFindsBothNames()
{
    OpenTimerBar editor(baconHamChili());
    TimerBarDaypartAssignItem picker(0, 0, &*editor);
    ui::show(picker);
    QCOMPARE(picker.focusWidget(), &findfield::fieldIn(picker));
    for (const QString &typed : {u"bacn"_s, u"BACO"_s, u"1"_s}) {
        findfield::type(picker, typed);
        QCOMPARE(shownNames(listOf(picker)), u"BACN*"_s);
    }
    findfield::type(picker, u"steak"_s);
    press(picker, Qt::Key_Return);
    QVERIFY(picker.isHidden());
    QCOMPARE(picker.chosenId(), 1);
}

void TestFindPickers::timerBarPickerShowsOnlyWhatFits()
{
    OpenTimerBar editor(baconHamChili());
    TimerBarDaypartAssignItem picker(215, 215, &*editor);
    ui::show(picker);
    QCOMPARE(shownNames(listOf(picker)), u"BACN HAM CHIL"_s);
    findfield::onlyFits(picker).click();
    QCOMPARE(shownNames(listOf(picker)), u"BACN HAM"_s);
    QVERIFY(demandOf(picker).endsWith(u"2 of 3 fit"_s));
}

void TestFindPickers::typingOnATimerBarBinOpensThePicker()
{
    OpenTimerBar editor(baconHamChili());
    editor.showTab(1);
    ModalAnswers answers;
    answers.expect<TimerBarDaypartAssignItem>([](TimerBarDaypartAssignItem &picker) {
        QTest::keyClicks(picker.focusWidget(), u"am"_s);
        press(picker, Qt::Key_Return);
    });
    QTest::keyClick(&editor.button("btnDaypartSelect0_0"), Qt::Key_H);
    QCOMPARE(editor.button("btnDaypartSelect0_0").text(), u"HAM"_s);
}

// Gravy does not fit the others.
void TestFindPickers::groupIsMadeByFinding()
{
    OpenEditor editor(groupedit::menuWith(groupedit::emptyGroup()));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        findfield::fieldIn(dialog).setFocus();
        for (const QString &name : {u"ham"_s, u"gra"_s, u"bac"_s}) {
            QTest::keyClicks(dialog.focusWidget(), name); // in place of the last one
            press(dialog, Qt::Key_Return);
            QCOMPARE(dialog.focusWidget(), &findfield::fieldIn(dialog));
        }
        QCOMPARE(groupedit::shownMembers(dialog), (QStringList{u"  1 Ham*"_s, u"  2 Bacon"_s}));
        groupedit::save(dialog);
    });
    QCOMPARE(groupedit::savedMembers(editor), (QList<int>{4, 1}));
}

// Chili, the second row, would be next.
void TestFindPickers::addedProductLeadsToTheNextInSight()
{
    OpenEditor editor(groupedit::menuWith(groupedit::emptyGroup()));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QListWidget &all = groupedit::allProducts(dialog);
        findfield::type(dialog, u"a"_s);
        QCOMPARE(shownNames(all), u"Bacon* Gravy Ham"_s);
        ui::click(dialog, "btnAddProduct");
        QCOMPARE(dialog.focusWidget(), &all);
        QCOMPARE(shownNames(all), u"Bacon Gravy Ham*"_s);
        ui::click(dialog, "btnAddProduct");
        QCOMPARE(shownNames(all), u"Bacon Gravy Ham*"_s);
        groupedit::save(dialog);
    });
    QCOMPARE(groupedit::savedMembers(editor), (QList<int>{1, 4}));
}

// Which products fit follows the members.
void TestFindPickers::groupEditorShowsOnlyWhatFits()
{
    OpenEditor editor(groupedit::menuWith(groupedit::emptyGroup()));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QListWidget &all = groupedit::allProducts(dialog);
        findfield::onlyFits(dialog).click();
        QCOMPARE(shownNames(all), u"Bacon Chili Gravy Ham"_s);
        groupedit::add(dialog, 2);
        QCOMPARE(shownNames(all), u"Gravy*"_s);
        QVERIFY(demandOf(dialog).endsWith(u"1 of 4 fit"_s));
        groupedit::remove(dialog, 0);
        QCOMPARE(shownNames(all), u"Bacon Chili Gravy Ham"_s);
        groupedit::cancel(dialog);
    });
}

void TestFindPickers::enterInTheFieldNeverSavesAGroup()
{
    OpenEditor editor(groupedit::menuWith(groupedit::meats({1})));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        findfield::fieldIn(dialog).setFocus();
        press(dialog, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        findfield::type(dialog, u"gravy"_s);
        press(dialog, Qt::Key_Enter);
        QVERIFY(dialog.isVisible());
        QCOMPARE(groupedit::shownMembers(dialog), QStringList{u"  1 Bacon*"_s});
        groupedit::cancel(dialog);
    });
}

void TestFindPickers::escapeEmptiesBeforeItLeavesAGroup()
{
    OpenEditor editor(groupedit::menuWith(groupedit::meats({1})));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        findfield::type(dialog, u"ham"_s);
        ui::get<QWidget>(dialog, "txtName").setFocus();
        press(dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
        QCOMPARE(shownNames(groupedit::allProducts(dialog)), u"Bacon Chili Gravy Ham*"_s);
        press(dialog, Qt::Key_Escape);
        QVERIFY(dialog.isHidden());
    });
}

QTEST_MAIN(TestFindPickers)
#include "tst_find_pickers.moc"
