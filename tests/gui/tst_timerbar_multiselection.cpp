// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/timerbarlist.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;
using namespace timerbarlist;

class TestTimerBarMultiSelection : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void buttonSwitchesTheMode();
    void rowsAreChosen_data();
    void rowsAreChosen();
    void deleteTakesTheSelectedRows();
    void deleteTakesAll();
    void everyRowIsChosenAtOnce();
    void refusedDeleteKeepsTheSelection_data();
    void refusedDeleteKeepsTheSelection();
    void editNeedsTheModeOff();
    void addKeepsTheMode();
    void configurationLeavesTheMode();
};

namespace {

cbr::Menu fiveProducts()
{
    cbr::Menu menu{.products = cbr::manyProducts(5)};
    menu.dayparts[0] = {0, 1, 2, 3};
    menu.dayparts[4] = {4, 3, 1, 100};
    return menu;
}

void switchMode(OpenTimerBar &editor)
{
    ui::click(*editor, "btnSelectMultiProduct");
}

// The selected rows, which have to be the checked ones.
QList<int> chosenRows(OpenTimerBar &editor)
{
    QList<int> rows;
    for (int row = 0; row < editor.products().count(); ++row) {
        const QListWidgetItem *item = editor.products().item(row);
        if (item->isSelected() != (item->checkState() == Qt::Checked))
            require::fail(u"A row's check mark and its selection differ"_s, {__FILE__, __LINE__});
        if (item->isSelected())
            rows.append(row);
    }
    return rows;
}

bool hasBoxes(OpenTimerBar &editor)
{
    return editor.products().item(0)->data(Qt::CheckStateRole).isValid();
}

ModalAnswers::Box deleteQuestion()
{
    return ModalAnswers::deleteQuestion(u"Delete all selected products?"_s);
}

} // namespace

void TestTimerBarMultiSelection::buttonSwitchesTheMode()
{
    OpenTimerBar editor(fiveProducts());
    const QPushButton &button = editor.button("btnSelectMultiProduct");
    QCOMPARE(button.text(), u"Multiple Selection"_s);
    QVERIFY(!hasBoxes(editor));
    ui::clickRow(editor.products(), 2);
    switchMode(editor);
    QCOMPARE(button.text(), u"Cancel Selection"_s);
    QVERIFY(hasBoxes(editor));
    QCOMPARE(chosenRows(editor), QList<int>());
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    ui::clickRow(editor.products(), 3);
    switchMode(editor);
    QCOMPARE(button.text(), u"Multiple Selection"_s);
    QVERIFY(!hasBoxes(editor));
    QVERIFY(editor.products().selectedItems().isEmpty());
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    QCOMPARE(editor.detail("Name"), QString());
}

void TestTimerBarMultiSelection::rowsAreChosen_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("click on the row") << 0;
    QTest::newRow("click on its box") << 1;
    QTest::newRow("Space") << 2;
}

void TestTimerBarMultiSelection::rowsAreChosen()
{
    QFETCH(int, way);
    OpenTimerBar editor(fiveProducts());
    switchMode(editor);
    QListWidget &list = editor.products();
    const auto toggle = [&list, way](int row) {
        if (way == 0)
            return ui::clickRow(list, row);
        if (way == 1)
            return ui::clickRowBox(list, row);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Space);
    };
    toggle(1);
    QCOMPARE(chosenRows(editor), QList<int>{1});
    QCOMPARE(enabledButtons(editor), u"A..X"_s);
    toggle(4);
    toggle(0);
    QCOMPARE(chosenRows(editor), (QList<int>{0, 1, 4}));
    toggle(1);
    QCOMPARE(chosenRows(editor), (QList<int>{0, 4}));
    toggle(0);
    toggle(4);
    QCOMPARE(chosenRows(editor), QList<int>());
    QCOMPARE(enabledButtons(editor), u"A..."_s);
}

void TestTimerBarMultiSelection::deleteTakesTheSelectedRows()
{
    cbr::Menu menu = fiveProducts();
    OpenTimerBar editor(menu);
    switchMode(editor);
    for (const int row : {3, 0, 1})
        ui::clickRow(editor.products(), row);
    ui::clickRow(editor.products(), 0);
    ModalAnswers answers;
    answers.expectBox(deleteQuestion(), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(editor.products().count(), 3);
    QCOMPARE(editor.button("btnSelectMultiProduct").text(), u"Multiple Selection"_s);
    QVERIFY(!hasBoxes(editor));
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    QCOMPARE(editor.button("btnDaypartSelect1_0").text(), u"P0"_s);
    QCOMPARE(editor.button("btnDaypartSelect1_1").text(), QString());
    menu.products.remove(3);
    menu.products.remove(1);
    menu.dayparts[0] = {0, 100, 2, 100};
    menu.dayparts[4] = {4, 100, 100, 100};
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarMultiSelection::deleteTakesAll()
{
    OpenTimerBar editor(fiveProducts());
    switchMode(editor);
    for (int row = 0; row < 5; ++row)
        ui::clickRow(editor.products(), row);
    ModalAnswers answers;
    answers.expectBox(deleteQuestion(), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(editor.products().count(), 0);
    QCOMPARE(editor.saved(), hex(cbr::Menu()));
    QCOMPARE(enabledButtons(editor), u"A..."_s);
}

void TestTimerBarMultiSelection::everyRowIsChosenAtOnce()
{
    OpenTimerBar editor(fiveProducts());
    switchMode(editor);
    ui::clickRow(editor.products(), 2);
    QTest::keyClick(&editor.products(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(chosenRows(editor), (QList<int>{0, 1, 2, 3, 4}));
    QCOMPARE(enabledButtons(editor), u"A..X"_s);
}

void TestTimerBarMultiSelection::refusedDeleteKeepsTheSelection_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("No") << false;
    QTest::newRow("Escape") << true;
}

void TestTimerBarMultiSelection::refusedDeleteKeepsTheSelection()
{
    QFETCH(bool, escape);
    OpenTimerBar editor(fiveProducts());
    switchMode(editor);
    ui::clickRow(editor.products(), 2);
    ui::clickRow(editor.products(), 3);
    ModalAnswers answers;
    if (escape)
        answers.expectBoxEscaped(deleteQuestion());
    else
        answers.expectBox(deleteQuestion(), QMessageBox::No);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(chosenRows(editor), (QList<int>{2, 3}));
    QCOMPARE(editor.button("btnSelectMultiProduct").text(), u"Cancel Selection"_s);
    QCOMPARE(editor.saved(), hex(fiveProducts()));
}

void TestTimerBarMultiSelection::editNeedsTheModeOff()
{
    OpenTimerBar editor(fiveProducts());
    const ModalAnswers noDialogs;
    switchMode(editor);
    ui::doubleClickRow(editor.products(), 2);
    QCOMPARE(enabledButtons(editor).first(3), u"A.."_s);
    QCOMPARE(editor.saved(), hex(fiveProducts()));
}

void TestTimerBarMultiSelection::addKeepsTheMode()
{
    OpenTimerBar editor(fiveProducts());
    switchMode(editor);
    ui::clickRow(editor.products(), 1);
    open(editor, "btnAddProduct", saveAsSoup);
    QCOMPARE(chosenRows(editor), QList<int>{1});
    QCOMPARE(editor.products().currentRow(), 5);
    QCOMPARE(enabledButtons(editor), u"A..X"_s);
}

void TestTimerBarMultiSelection::configurationLeavesTheMode()
{
    OpenTimerBar editor(fiveProducts());
    switchMode(editor);
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) { ui::click(dialog, "btnAccept"); });
    ui::click(*editor, "btnConfig");
    QVERIFY(!hasBoxes(editor));
    QCOMPARE(editor.button("btnSelectMultiProduct").text(), u"Multiple Selection"_s);
    QCOMPARE(enabledButtons(editor), u"A..."_s);
}

QTEST_MAIN(TestTimerBarMultiSelection)
#include "tst_timerbar_multiselection.moc"
