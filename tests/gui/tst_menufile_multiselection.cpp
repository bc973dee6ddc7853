// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QPushButton>

#include "holding/configuration.h"
#include "holding/groupedit.h"
#include "holding/productedit.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

// Five products and five groups; each bin and each group holds several of them.
samplefile::Menu fiveAndFive()
{
    samplefile::Menu menu;
    for (int id = 1; id <= 5; ++id) {
        menu.products.append(samplefile::product(id, u"Product %1"_s.arg(id)));
        menu.groups.append(samplefile::group(id + 10, u"Group %1"_s.arg(id), {1, 2, 3, 4, 5}));
    }
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 3, 12, 15})};
    return menu;
}

} // namespace

// Each test runs on the products' tab and on the groups'.
class TestMenuFileMultiSelection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup() { m_editor.reset(); }
    void buttonSwitchesTheMode();
    void rowClicksCheck();
    void boxClicksCheck();
    void spaceChecks();
    void typingChecksNothing();
    void shiftAndDragKeepMarkAndSelectionOne();
    void deleteFollowsTheMarks();
    void deleteTakesTheCheckedOnly();
    void deleteTakesAll();
    void refusedDeleteKeepsTheMarks();
    void editNeedsTheModeOff();
    void addKeepsTheMarks();
    void programmaticMarksCount();
    void detailsFollowTheArrowKeys();
    void leavingClearsEverything();
    void configurationLeavesTheMode();
    void otherTabIsUntouched();

private:
    [[nodiscard]] QListWidget &list() { return m_tab == 0 ? m_editor->products() : m_editor->groups(); }
    [[nodiscard]] QPushButton &button(const char *action)
    {
        const QByteArray name = QByteArray("btn") + action + (m_tab == 0 ? "Product" : "Group");
        return ui::get<QPushButton>(**m_editor, name.constData());
    }
    [[nodiscard]] QString enabledButtons();
    [[nodiscard]] QList<int> checkedRows();
    [[nodiscard]] QList<int> ids();
    void expectDeleteQuestion(ModalAnswers &answers, QMessageBox::StandardButton answer);

    int m_tab = 0;
    std::unique_ptr<OpenEditor> m_editor;
};

void TestMenuFileMultiSelection::initTestCase_data()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("products") << 0;
    QTest::newRow("groups") << 1;
}

void TestMenuFileMultiSelection::init()
{
    failOnWarnings();
    QFETCH_GLOBAL(int, tab);
    m_tab = tab;
    m_editor = std::make_unique<OpenEditor>(fiveAndFive());
    m_editor->showTab(tab);
}

// Add, Edit, Duplicate, Delete, with a dot for each that is disabled.
QString TestMenuFileMultiSelection::enabledButtons()
{
    QString enabled;
    for (const char *action : {"Add", "Edit", "Duplicate", "Delete"})
        enabled += button(action).isEnabled() ? QLatin1StringView(action) : "."_L1;
    return enabled;
}

// The rows with a check mark, which have to be the selected ones.
QList<int> TestMenuFileMultiSelection::checkedRows()
{
    QList<int> rows;
    for (int row = 0; row < list().count(); ++row) {
        const QListWidgetItem *item = list().item(row);
        const bool checked = item->checkState() == Qt::Checked;
        if (checked != item->isSelected())
            require::fail(u"A row's check mark and its selection differ"_s, {__FILE__, __LINE__});
        if (checked)
            rows.append(row);
    }
    return rows;
}

QList<int> TestMenuFileMultiSelection::ids()
{
    QList<int> found;
    const QList<ProductInfo *> entries =
        m_tab == 0 ? (*m_editor)->getMenuProducts() : (*m_editor)->getMenuGroups();
    for (const ProductInfo *entry : entries)
        found.append(entry->get_productId() % 10);
    return found;
}

void TestMenuFileMultiSelection::expectDeleteQuestion(ModalAnswers &answers,
                                                      QMessageBox::StandardButton answer)
{
    answers.expectBox(ModalAnswers::deleteQuestion(m_tab == 0 ? u"Delete all selected products?"_s
                                                              : u"Delete all selected groups?"_s),
                      answer);
}

void TestMenuFileMultiSelection::buttonSwitchesTheMode()
{
    QCOMPARE(button("SelectMulti").text(), u"Multiple Selection"_s);
    QVERIFY(!list().item(0)->data(Qt::CheckStateRole).isValid());
    ui::clickRow(list(), 2);
    QCOMPARE(enabledButtons(), u"AddEditDuplicateDelete"_s);
    ui::click(button("SelectMulti"));
    QCOMPARE(button("SelectMulti").text(), u"Cancel Selection"_s);
    QCOMPARE(enabledButtons(), u"Add..."_s);
    QCOMPARE(checkedRows(), QList<int>());
    for (int row = 0; row < 5; ++row)
        QVERIFY(list().item(row)->data(Qt::CheckStateRole).isValid());
    ui::click(button("SelectMulti"));
    QCOMPARE(button("SelectMulti").text(), u"Multiple Selection"_s);
    QCOMPARE(enabledButtons(), u"Add..."_s);
    QVERIFY(!list().item(0)->data(Qt::CheckStateRole).isValid());
    ui::clickRow(list(), 1);
    QCOMPARE(enabledButtons(), u"AddEditDuplicateDelete"_s);
}

void TestMenuFileMultiSelection::rowClicksCheck()
{
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 1);
    ui::clickRow(list(), 3);
    QCOMPARE(checkedRows(), (QList<int>{1, 3}));
    ui::clickRow(list(), 1);
    QCOMPARE(checkedRows(), QList<int>{3});
}

void TestMenuFileMultiSelection::boxClicksCheck()
{
    ui::click(button("SelectMulti"));
    ui::clickRowBox(list(), 1);
    QCOMPARE(checkedRows(), QList<int>{1});
    ui::clickRowBox(list(), 4);
    QCOMPARE(checkedRows(), (QList<int>{1, 4}));
    ui::clickRowBox(list(), 1);
    QCOMPARE(checkedRows(), QList<int>{4});
    ui::clickRow(list(), 4);
    QCOMPARE(checkedRows(), QList<int>());
}

void TestMenuFileMultiSelection::spaceChecks()
{
    ui::click(button("SelectMulti"));
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Home);
    QCOMPARE(checkedRows(), QList<int>());
    QTest::keyClick(&list(), Qt::Key_Space);
    QCOMPARE(checkedRows(), QList<int>{0});
    QCOMPARE(list().currentRow(), 0);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Space);
    QCOMPARE(checkedRows(), (QList<int>{0, 2}));
    QTest::keyClick(&list(), Qt::Key_Space);
    QCOMPARE(checkedRows(), QList<int>{0});
}

void TestMenuFileMultiSelection::typingChecksNothing()
{
    list().item(3)->setText(u"9 Named"_s); // what a row from 100 on begins with is a digit, too
    ui::click(button("SelectMulti"));
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Home);
    QTest::keyClicks(&list(), u"9"_s);
    QCOMPARE(checkedRows(), QList<int>());
    QTest::keyClick(&list(), Qt::Key_Space);
    QCOMPARE(checkedRows(), QList<int>{0});
}

void TestMenuFileMultiSelection::shiftAndDragKeepMarkAndSelectionOne()
{
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 1);
    ui::clickRow(list(), 3, Qt::ShiftModifier);
    const QList<int> afterShift = checkedRows();
    QVERIFY(afterShift.contains(1) && afterShift.contains(3));
    QTest::keyClick(&list(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(checkedRows(), (QList<int>{0, 1, 2, 3, 4}));
    QCOMPARE(enabledButtons(), u"Add..Delete"_s);
    const auto middle = [this](int row) { return list().visualItemRect(list().item(row)).center(); };
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, middle(0));
    QTest::mouseMove(list().viewport(), middle(1));
    QTest::mouseMove(list().viewport(), middle(2));
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, middle(2));
    QVERIFY(!checkedRows().contains(0));
}

void TestMenuFileMultiSelection::deleteFollowsTheMarks()
{
    ui::click(button("SelectMulti"));
    QCOMPARE(enabledButtons(), u"Add..."_s);
    ui::clickRow(list(), 2);
    QCOMPARE(enabledButtons(), u"Add..Delete"_s);
    ui::clickRowBox(list(), 3);
    QCOMPARE(enabledButtons(), u"Add..Delete"_s);
    ui::clickRow(list(), 2);
    QCOMPARE(enabledButtons(), u"Add..Delete"_s);
    ui::clickRow(list(), 3);
    QCOMPARE(enabledButtons(), u"Add..."_s);
}

void TestMenuFileMultiSelection::deleteTakesTheCheckedOnly()
{
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 4);
    ui::clickRow(list(), 1);
    ui::clickRow(list(), 2);
    ui::clickRow(list(), 2); // current, but not checked
    ModalAnswers answers;
    expectDeleteQuestion(answers, QMessageBox::Yes);
    ui::click(button("Delete"));
    QCOMPARE(ids(), (QList<int>{1, 3, 4}));
    QCOMPARE(list().count(), 3);
    QCOMPARE(list().currentRow(), -1);
    QCOMPARE(button("SelectMulti").text(), u"Multiple Selection"_s);
    QCOMPARE(enabledButtons(), u"Add..."_s);
    QVERIFY(!list().item(0)->data(Qt::CheckStateRole).isValid());
    const QJsonObject saved = m_editor->saved();
    QCOMPARE(samplefile::binsOf(saved, 0),
             m_tab == 0 ? (QList<int>{1, 3, 12, 15}) : (QList<int>{1, 3, 0, 0}));
    const QJsonObject group = saved.value(u"productGroups"_s).toArray().at(0).toObject();
    QCOMPARE(group.value(u"products"_s).toArray(),
             m_tab == 0 ? (QJsonArray{1, 3, 4}) : (QJsonArray{1, 2, 3, 4, 5}));
}

void TestMenuFileMultiSelection::deleteTakesAll()
{
    ui::click(button("SelectMulti"));
    for (int row = 0; row < 5; ++row)
        ui::clickRow(list(), row);
    ModalAnswers answers;
    expectDeleteQuestion(answers, QMessageBox::Yes);
    ui::click(button("Delete"));
    QCOMPARE(ids(), QList<int>());
    ui::click(button("SelectMulti"));
    QCOMPARE(enabledButtons(), u"Add..."_s);
}

void TestMenuFileMultiSelection::refusedDeleteKeepsTheMarks()
{
    const QJsonObject before = m_editor->saved();
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 0);
    ui::clickRow(list(), 3);
    ModalAnswers answers;
    expectDeleteQuestion(answers, QMessageBox::No);
    ui::click(button("Delete"));
    QCOMPARE(checkedRows(), (QList<int>{0, 3}));
    QCOMPARE(list().currentRow(), 3);
    QCOMPARE(enabledButtons(), u"Add..Delete"_s);
    QCOMPARE(button("SelectMulti").text(), u"Cancel Selection"_s);
    QCOMPARE(m_editor->saved(), before);
}

void TestMenuFileMultiSelection::editNeedsTheModeOff()
{
    const ModalAnswers noDialogs;
    ui::click(button("SelectMulti"));
    ui::doubleClickRow(list(), 2);
    QCOMPARE(enabledButtons().left(4), u"Add."_s);
    const QList<int> checked = checkedRows();
    QCOMPARE(button("Delete").isEnabled(), !checked.isEmpty());
}

void TestMenuFileMultiSelection::addKeepsTheMarks()
{
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 1);
    ui::clickRow(list(), 3);
    ModalAnswers answers;
    answers.expect<QDialog>([this](QDialog &dialog) {
        ui::type(dialog, "txtName", u"New"_s);
        if (m_tab == 1) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 0);
            ui::click(dialog, "btnAddProduct");
        }
        ui::click(dialog, "btnSave");
    });
    ui::click(button("Add"));
    QCOMPARE(list().count(), 6);
    QCOMPARE(checkedRows(), (QList<int>{1, 3}));
    QCOMPARE(list().currentRow(), 5);
    QVERIFY(list().item(5)->data(Qt::CheckStateRole).isValid());
    QCOMPARE(enabledButtons(), u"Add..Delete"_s);
    ui::clickRow(list(), 5);
    QCOMPARE(checkedRows(), (QList<int>{1, 3, 5}));
}

void TestMenuFileMultiSelection::programmaticMarksCount()
{
    ui::click(button("SelectMulti"));
    list().item(2)->setCheckState(Qt::Checked);
    QCOMPARE(checkedRows(), QList<int>{2});
    QCOMPARE(enabledButtons(), u"Add..Delete"_s);
    list().item(2)->setCheckState(Qt::Unchecked);
    QCOMPARE(checkedRows(), QList<int>());
    QCOMPARE(enabledButtons(), u"Add..."_s);
}

void TestMenuFileMultiSelection::leavingClearsEverything()
{
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 1);
    ui::click(button("SelectMulti"));
    QVERIFY(list().selectedItems().isEmpty());
    QCOMPARE(list().currentRow(), -1);
    QCOMPARE(enabledButtons(), u"Add..."_s);
    ui::click(button("SelectMulti"));
    QCOMPARE(checkedRows(), QList<int>());
}

// They move the current row and mark none.
void TestMenuFileMultiSelection::detailsFollowTheArrowKeys()
{
    ui::click(button("SelectMulti"));
    QTest::keyClick(&list(), Qt::Key_Home);
    const QLabel &name = m_tab == 0 ? m_editor->productDetail("txtName") : m_editor->groupDetail("txtName");
    const QString entry = m_tab == 0 ? u"Product %1"_s : u"Group %1"_s;
    QCOMPARE(name.text(), entry.arg(1));
    QTest::keyClick(&list(), Qt::Key_Down);
    QCOMPARE(name.text(), entry.arg(2));
    QCOMPARE(checkedRows(), QList<int>());
}

void TestMenuFileMultiSelection::configurationLeavesTheMode()
{
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 1);
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    ui::click(**m_editor, "btnConfig");
    QCOMPARE(button("SelectMulti").text(), u"Multiple Selection"_s);
    QVERIFY(list().selectedItems().isEmpty());
    QCOMPARE(enabledButtons(), u"Add..."_s);
}

void TestMenuFileMultiSelection::otherTabIsUntouched()
{
    ui::clickRow(list(), 1);
    m_tab = 1 - m_tab;
    m_editor->showTab(m_tab);
    ui::click(button("SelectMulti"));
    ui::clickRow(list(), 2);
    m_tab = 1 - m_tab;
    QCOMPARE(enabledButtons(), u"AddEditDuplicateDelete"_s);
    QCOMPARE(list().currentRow(), 1);
    QCOMPARE(button("SelectMulti").text(), u"Multiple Selection"_s);
}

QTEST_MAIN(TestMenuFileMultiSelection)
#include "tst_menufile_multiselection.moc"
