// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/configuration.h"
#include "holding/productedit.h"
#include "tests/gui/holdbins.h"
#include "tests/gui/holdtime.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// The grid while bins are chosen to be cleared.
class TestDaypartRemoval : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void normalMode();
    void whatTheModeShows();
    void clearsTheCheckedBins();
    void clearsNothingWhenNothingIsChecked();
    void cancelClearsNothing();
    void clearsTheShownDaypartOnly();
    void clearsAnUnknownId();
    void hiddenBinsTakeNoPart();
    void clearedWholeShowsWhatItHid();
    void pressStartsNothing();
    void timePassesWithoutEffect();
    void savingKeepsTheMarkedBins();
    void modeCanBeEnteredAgain();
    void otherTabsLeaveTheMode_data();
    void otherTabsLeaveTheMode();
    void configurationLeavesTheMode();
    void rejectedConfigurationKeepsTheMode();
};

namespace {

void enterRemoval(HoldBins &editor, int row, int slot)
{
    editor.press(row, slot);
    REQUIRE_SOON(editor.isRemoving());
    editor.release();
}

void checkNormalMode(HoldBins &editor)
{
    REQUIRE(!editor.isRemoving());
    REQUIRE(!editor.widget("btnCancelDaypartRemove").isVisible());
    for (const char *name :
         {"btnAddDaypart", "btnEditDaypart", "btnDuplicateDaypart", "btnDeleteDaypart", "btnBinPlan"})
        REQUIRE(editor.widget(name).isVisible());
    REQUIRE(editor.selector().isEnabled() && editor.widget("checkBoxDaypartInUse").isEnabled());
    for (QPushButton *bin : editor.widget("frameGrid").findChildren<QPushButton *>())
        REQUIRE(bin->isEnabled() && !bin->isCheckable() && !bin->isChecked());
}

} // namespace

void TestDaypartRemoval::normalMode()
{
    HoldBins editor(bins::menuOf(u"KTR54"_s, {2, 2}));
    checkNormalMode(editor);
}

void TestDaypartRemoval::whatTheModeShows()
{
    HoldBins editor(bins::menuOf(u"KTR24"_s, {2, 0, 99, 0, 4, 2, 0, 5}));
    const auto &hint = ui::get<QLabel>(*editor, "lblDaypartHint");
    QCOMPARE(hint.text(), u"Click a bin to assign it. Hold a filled bin to clear bins."_s);
    enterRemoval(editor, 0, 2);
    QVERIFY(editor.widget("btnCancelDaypartRemove").isVisible());
    for (const char *name : {"btnAddDaypart", "btnEditDaypart", "btnDuplicateDaypart", "btnDeleteDaypart"})
        QVERIFY(!editor.widget(name).isVisible());
    QVERIFY(!editor.selector().isEnabled() && !editor.widget("checkBoxDaypartInUse").isEnabled());
    QCOMPARE(hint.text(), u"Choose the bins to clear, then press Remove."_s);
    const QList<int> filled{0, 2, 4, 7};
    for (const int place : {0, 1, 2, 3, 4, 6, 7}) { // 5 is covered by 4
        const QPushButton &button = editor.button(place / 4, place % 4);
        QVERIFY(button.isVisible());
        QCOMPARE(button.isEnabled(), filled.contains(place));
        QCOMPARE(button.isCheckable(), filled.contains(place));
        QCOMPARE(button.isChecked(), place == 2);
    }
}

void TestDaypartRemoval::clearsTheCheckedBins()
{
    HoldBins editor(bins::menuOf(u"KTR24"_s, {2, 2, 2, 2, 5, 5, 5, 5}));
    enterRemoval(editor, 1, 3);
    ui::click(editor.button(0, 0));
    ui::click(editor.button(0, 2));
    ui::click(editor.button(1, 0));
    ui::click(editor.button(1, 0)); // and off again
    ui::click(*editor, "btnDaypartRemove");
    QCOMPARE(editor.savedBins(0), (QList<int>{0, 2, 0, 2, 5, 5, 5, 0}));
    checkNormalMode(editor);
    QVERIFY(editor.button(0, 0).text().isEmpty() && editor.button(1, 3).text().isEmpty());
    QCOMPARE(editor.button(1, 0).text(), u"Halves"_s);
}

void TestDaypartRemoval::clearsNothingWhenNothingIsChecked()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    ui::click(editor.button(0, 0));
    ui::click(*editor, "btnDaypartRemove");
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
    checkNormalMode(editor);
}

void TestDaypartRemoval::cancelClearsNothing()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    ui::click(editor.button(0, 1));
    ui::click(*editor, "btnCancelDaypartRemove");
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
    checkNormalMode(editor);
    QCOMPARE(editor.button(0, 0).text(), u"Half"_s);
}

void TestDaypartRemoval::clearsTheShownDaypartOnly()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}, {5, 5}));
    ui::choose(*editor, "comboDaypartSelect", u"Evening"_s);
    enterRemoval(editor, 0, 0);
    ui::click(*editor, "btnDaypartRemove");
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
    QCOMPARE(editor.savedBins(1), (QList<int>{0, 5, 0, 0}));
    QCOMPARE(editor.dayparts(), u"Morning Evening*"_s);
}

void TestDaypartRemoval::clearsAnUnknownId()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {-7, 99}));
    enterRemoval(editor, 0, 0);
    ui::click(editor.button(0, 1));
    ui::click(*editor, "btnDaypartRemove");
    QCOMPARE(editor.savedBins(0), QList<int>(4, 0));
}

void TestDaypartRemoval::hiddenBinsTakeNoPart()
{
    HoldBins editor(bins::menuOf(u"KTR33"_s, {4, 1, 1, 2, 2, 1}));
    enterRemoval(editor, 0, 0);
    for (const auto &[row, slot] : {std::pair(0, 1), {0, 2}, {1, 2}}) {
        QVERIFY(editor.button(row, slot).isHidden());
        QVERIFY(!editor.button(row, slot).isCheckable() && !editor.button(row, slot).isChecked());
    }
    ui::click(*editor, "btnDaypartRemove");
    QCOMPARE(editor.savedBins(0).first(6), (QList<int>{0, 1, 1, 2, 2, 1}));
}

void TestDaypartRemoval::clearedWholeShowsWhatItHid()
{
    HoldBins editor(bins::menuOf(u"KTR33"_s, {4, 1, 1}));
    enterRemoval(editor, 0, 0);
    ui::click(*editor, "btnDaypartRemove");
    QVERIFY(editor.button(0, 1).isVisible() && editor.button(0, 2).isVisible());
    QCOMPARE(editor.button(0, 0).minimumWidth(), 112);
    QCOMPARE(editor.button(0, 1).text(), u"Third"_s);
    checkNormalMode(editor);
}

void TestDaypartRemoval::pressStartsNothing()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    editor.press(0, 1);
    waitForAHold();
    QVERIFY(editor.button(0, 1).isDown());
    QVERIFY(editor.button(0, 0).isChecked() && !editor.button(0, 1).isChecked());
    editor.release();
    QVERIFY(editor.button(0, 0).isChecked() && editor.button(0, 1).isChecked());
}

void TestDaypartRemoval::timePassesWithoutEffect()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    ui::click(editor.button(0, 0));
    waitForAHold();
    QVERIFY(editor.isRemoving() && !editor.button(0, 0).isChecked());
}

void TestDaypartRemoval::savingKeepsTheMarkedBins()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
    QVERIFY(editor.isRemoving() && editor.button(0, 0).isChecked());
}

void TestDaypartRemoval::modeCanBeEnteredAgain()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    ui::click(*editor, "btnCancelDaypartRemove");
    enterRemoval(editor, 0, 1);
    QVERIFY(!editor.button(0, 0).isChecked() && editor.button(0, 1).isChecked());
    ui::click(*editor, "btnDaypartRemove");
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 0, 0, 0}));
}

void TestDaypartRemoval::otherTabsLeaveTheMode_data()
{
    QTest::addColumn<bool>("edited"); // else deleted
    QTest::newRow("a product is edited") << true;
    QTest::newRow("a product is deleted") << false;
}

void TestDaypartRemoval::otherTabsLeaveTheMode()
{
    QFETCH(bool, edited);
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    editor.showTab(0);
    ui::clickRow(editor.products(), 0);
    ModalAnswers answers;
    if (edited) {
        answers.expect<ProductEdit>([](ProductEdit &dialog) {
            ui::type(dialog, "txtName", u"Other"_s);
            ui::click(dialog, "btnSave");
        });
        ui::click(*editor, "btnEditProduct");
    } else {
        answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
        ui::click(*editor, "btnDeleteProduct");
    }
    editor.showTab(2);
    checkNormalMode(editor);
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
}

void TestDaypartRemoval::configurationLeavesTheMode()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    ui::click(*editor, "btnConfig");
    checkNormalMode(editor);
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
}

void TestDaypartRemoval::rejectedConfigurationKeepsTheMode()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    enterRemoval(editor, 0, 0);
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnCancel"); });
    ui::click(*editor, "btnConfig");
    QVERIFY(editor.isRemoving() && editor.button(0, 0).isChecked());
}

QTEST_MAIN(TestDaypartRemoval)
#include "tst_daypart_removal.moc"
