// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/holdbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Escape leaves a mode before it closes an editor.
class TestEscape : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void escapeLeavesRemovalMode();
    void escapeLeavesRemovalModeOfTimerBar();
    void escapeLeavesMultipleSelection_data();
    void escapeLeavesMultipleSelection();
    void escapeLeavesMultipleSelectionOfTimerBar();
    void heldEscapeClosesNothing();
    void escapeClosesWhereNoModeIsInSight();
};

namespace {

void escape(const QWidget &editor)
{
    REQUIRE(editor.focusWidget());
    QTest::keyClick(editor.focusWidget(), Qt::Key_Escape);
}

// The next Escape asks, and the editor stays.
void checkEscapeAsks(QWidget &editor)
{
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    escape(editor);
    REQUIRE(answers.allAnswered());
    REQUIRE(editor.isVisible());
}

} // namespace

void TestEscape::escapeLeavesRemovalMode()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2}));
    editor.press(0, 0);
    REQUIRE_SOON(editor.isRemoving());
    editor.release();
    {
        const ModalAnswers nothingComesUp;
        escape(*editor);
    }
    QVERIFY(!editor.isRemoving());
    QVERIFY(!editor.button(0, 0).isCheckable());
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 2, 0, 0}));
    checkEscapeAsks(*editor);
}

void TestEscape::escapeLeavesRemovalModeOfTimerBar()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts = {QList<int>{0, 0, 0, 0}};
    OpenTimerBar editor(menu);
    enterRemovalMode(*editor);
    {
        const ModalAnswers nothingComesUp;
        escape(*editor);
    }
    QVERIFY(!editor.button("btnDaypartSelect1_0").isCheckable());
    QVERIFY(!editor.button("btnDaypartRemove").isVisible());
    QCOMPARE(editor.button("btnDaypartSelect1_0").text(), u"BACN"_s);
    checkEscapeAsks(*editor);
}

void TestEscape::escapeLeavesMultipleSelection_data()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("products") << 0;
    QTest::newRow("groups") << 1;
}

void TestEscape::escapeLeavesMultipleSelection()
{
    QFETCH(const int, tab);
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    editor.showTab(tab);
    QListWidget &list = tab == 0 ? editor.products() : editor.groups();
    const char *button = tab == 0 ? "btnSelectMultiProduct" : "btnSelectMultiGroup";
    ui::click(*editor, button);
    ui::clickRow(list, 0);
    {
        const ModalAnswers nothingComesUp;
        escape(*editor);
    }
    QCOMPARE(ui::get<QPushButton>(*editor, button).text(), u"Multiple Selection"_s);
    QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(list.selectedItems().isEmpty());
    checkEscapeAsks(*editor);
}

void TestEscape::escapeLeavesMultipleSelectionOfTimerBar()
{
    OpenTimerBar editor(baconHamChili());
    ui::click(*editor, "btnSelectMultiProduct");
    ui::clickRow(editor.products(), 0);
    {
        const ModalAnswers nothingComesUp;
        escape(*editor);
    }
    QCOMPARE(editor.button("btnSelectMultiProduct").text(), u"Multiple Selection"_s);
    checkEscapeAsks(*editor);
}

void TestEscape::heldEscapeClosesNothing()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    const ModalAnswers nothingComesUp;
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, {}, true);
    QCoreApplication::sendEvent(editor->focusWidget(), &held);
    QVERIFY(editor->isVisible());
}

void TestEscape::escapeClosesWhereNoModeIsInSight()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    editor.showTab(0);
    ui::click(*editor, "btnSelectMultiProduct");
    editor.showTab(1);
    checkEscapeAsks(*editor);
    QCOMPARE(ui::get<QPushButton>(*editor, "btnSelectMultiProduct").text(), u"Cancel Selection"_s);
}

QTEST_MAIN(TestEscape)
#include "tst_escape.moc"
