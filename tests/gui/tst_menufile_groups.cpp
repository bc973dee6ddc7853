// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/groupedit.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

samplefile::Menu twoGroups()
{
    samplefile::Menu menu;
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Chili"_s),
                     samplefile::product(5, u"Gravy"_s)};
    menu.groups = {samplefile::group(3, u"Meats"_s, {2, 99, 1}, {{u"defaultProd"_s, 2}}),
                   samplefile::group(6, u"Sauces"_s, {5})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {3, 6, 1, 3})};
    return menu;
}

QListWidget &shownMembers(OpenEditor &editor)
{
    return ui::get<QListWidget>(*editor, "listWidgetMembers");
}

QJsonArray savedGroups(OpenEditor &editor)
{
    return editor.saved().value(u"productGroups"_s).toArray();
}

bool singleButtonsEnabled(OpenEditor &editor)
{
    int enabled = 0;
    for (const char *name : {"btnEditGroup", "btnDuplicateGroup", "btnDeleteGroup"})
        enabled += ui::get<QWidget>(*editor, name).isEnabled() ? 1 : 0;
    if (enabled != 0 && enabled != 3)
        require::fail(u"Edit, Duplicate and Delete differ"_s, {__FILE__, __LINE__});
    return enabled == 3;
}

const QString noProducts = u"Cannot add products. Maximum products and groups reached!"_s;
const QString noGroups = u"Cannot add groups. Maximum products and groups reached!"_s;

samplefile::Menu manyEntries(int products, int groups)
{
    samplefile::Menu menu;
    for (int id = 1; id <= products; ++id)
        menu.products.append(samplefile::product(id, u"P"_s));
    for (int id = 1; id <= groups; ++id)
        menu.groups.append(samplefile::group(products + id, u"G"_s, {1}));
    return menu;
}

void choose(OpenEditor &editor, int row)
{
    editor.showTab(1);
    ui::clickRow(editor.groups(), row);
}

} // namespace

class TestMenuFileGroups : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void openedMenuHasNoCurrentGroup();
    void membersOfTheChosenGroupAreShown();
    void newGroupIsEmpty();
    void addedGroupTakesTheFreeIdAndIsCurrent();
    void cancelledAddChangesNothing();
    void editedGroupStaysCurrent();
    void doubleClickEdits_data();
    void doubleClickEdits();
    void duplicateCopiesEverything();
    void cancelledDuplicateChangesNothing();
    void deleteAsks();
    void refusedDeleteChangesNothing();
    void changedProductsShowInTheGroups();
    void fullMenuRefusesMore_data();
    void fullMenuRefusesMore();
    void deletionMakesRoomForOneMore_data();
    void deletionMakesRoomForOneMore();
};

void TestMenuFileGroups::openedMenuHasNoCurrentGroup()
{
    OpenEditor editor(twoGroups());
    editor.showTab(1);
    QCOMPARE(ui::textsOf(editor.groups()), (QStringList{u"  1 Meats"_s, u"  2 Sauces"_s}));
    QCOMPARE(editor.groups().currentRow(), -1);
    QVERIFY(!singleButtonsEnabled(editor));
    QVERIFY(ui::get<QWidget>(*editor, "btnAddGroup").isEnabled());
    QCOMPARE(editor.groupDetail("txtName").text(), QString());
    QCOMPARE(shownMembers(editor).count(), 0);
}

void TestMenuFileGroups::membersOfTheChosenGroupAreShown()
{
    OpenEditor editor(twoGroups());
    choose(editor, 0);
    QVERIFY(singleButtonsEnabled(editor));
    QCOMPARE(editor.groupDetail("txtName").text(), u"Meats"_s);
    QCOMPARE(ui::textsOf(shownMembers(editor)), (QStringList{u"  1 Chili"_s, u"  3 Bacon"_s}));
    QCOMPARE(shownMembers(editor).item(0)->checkState(), Qt::Unchecked);
    QCOMPARE(shownMembers(editor).item(1)->checkState(), Qt::Checked);
    ui::clickRowBox(shownMembers(editor), 0); // only the group editor changes the default
    QCOMPARE(shownMembers(editor).item(0)->checkState(), Qt::Unchecked);
    QCOMPARE(shownMembers(editor).focusPolicy(), Qt::StrongFocus);
    choose(editor, 1);
    QCOMPARE(ui::textsOf(shownMembers(editor)), QStringList{u"  1 Gravy"_s});
    ui::clickRow(editor.groups(), 1, Qt::ControlModifier);
    QCOMPARE(shownMembers(editor).count(), 0);
    QVERIFY(!singleButtonsEnabled(editor));
}

void TestMenuFileGroups::newGroupIsEmpty()
{
    OpenEditor editor(twoGroups());
    editor.showTab(1);
    ModalAnswers answers;
    answers.expect<GroupEdit>([&](GroupEdit &dialog) {
        QCOMPARE(ui::get<QListWidget>(dialog, "listWidgetGroupProducts").count(), 0);
        answers.expectBox(ModalAnswers::entryFault(u"Group name is empty!"_s), QMessageBox::Close);
        ui::click(dialog, "btnSave");
        ui::type(dialog, "txtName", u"New"_s);
        answers.expectBox(ModalAnswers::entryFault(u"Product list is empty!"_s), QMessageBox::Close);
        ui::click(dialog, "btnSave");
        ui::click(dialog, "btnCancel");
    });
    ui::click(*editor, "btnAddGroup");
    QCOMPARE(savedGroups(editor), QJsonArray(twoGroups().groups));
}

void TestMenuFileGroups::addedGroupTakesTheFreeIdAndIsCurrent()
{
    OpenEditor editor(twoGroups());
    choose(editor, 0);
    ModalAnswers answers;
    answers.expect<GroupEdit>([](GroupEdit &dialog) {
        ui::type(dialog, "txtName", u"New"_s);
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 2);
        ui::click(dialog, "btnAddProduct");
        ui::click(dialog, "btnSave");
    });
    ui::click(*editor, "btnAddGroup");
    QCOMPARE(savedGroups(editor).last().toObject(),
             samplefile::group(4, u"New"_s, {5}, {{u"fanSpeed"_s, 0}}));
    QVERIFY(editor->getMenuGroups().constLast()->get_isGroup());
    QCOMPARE(editor.groups().currentRow(), 2);
    QCOMPARE(ui::textsOf(shownMembers(editor)), QStringList{u"  1 Gravy"_s});
    QVERIFY(singleButtonsEnabled(editor));
    QCOMPARE(editor->getProductObject(4), editor->getMenuGroups().constLast());
}

void TestMenuFileGroups::cancelledAddChangesNothing()
{
    OpenEditor editor(twoGroups());
    const QJsonObject before = editor.saved();
    choose(editor, 1);
    ModalAnswers answers;
    answers.expect<GroupEdit>([](GroupEdit &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    ui::click(*editor, "btnAddGroup");
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.groups().currentRow(), 1);
}

void TestMenuFileGroups::editedGroupStaysCurrent()
{
    OpenEditor editor(twoGroups());
    choose(editor, 1);
    ModalAnswers answers;
    answers.expect<GroupEdit>([](GroupEdit &dialog) {
        ui::type(dialog, "txtName", u"Toppings"_s);
        ui::click(dialog, "btnSave");
    });
    ui::click(*editor, "btnEditGroup");
    QCOMPARE(editor.groups().currentRow(), 1);
    QCOMPARE(ui::textsOf(editor.groups()), (QStringList{u"  1 Meats"_s, u"  2 Toppings"_s}));
    QCOMPARE(editor.groupDetail("txtName").text(), u"Toppings"_s);
}

// Ctrl takes the selection off a selected row; the row is meant all the same.
void TestMenuFileGroups::doubleClickEdits_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("plain") << Qt::KeyboardModifiers();
    QTest::newRow("with Ctrl") << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void TestMenuFileGroups::doubleClickEdits()
{
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    OpenEditor editor(twoGroups());
    editor.showTab(1);
    ModalAnswers answers;
    answers.expect<GroupEdit>([](GroupEdit &dialog) { ui::click(dialog, "btnCancel"); });
    ui::clickRow(editor.groups(), 1);
    ui::doubleClickRow(editor.groups(), 1, modifiers);
    QVERIFY(answers.allAnswered());
    QCOMPARE(editor.groups().currentRow(), 1);
}

void TestMenuFileGroups::duplicateCopiesEverything()
{
    samplefile::Menu menu = twoGroups();
    menu.header = samplefile::headerWithAllSwitches();
    OpenEditor editor(menu);
    choose(editor, 0);
    ModalAnswers answers;
    answers.expect<GroupEdit>([](GroupEdit &dialog) { ui::click(dialog, "btnSave"); });
    ui::click(*editor, "btnDuplicateGroup");
    const QJsonArray groups = savedGroups(editor);
    QCOMPARE(groups.last().toObject(), samplefile::group(4, u"Meats"_s, {2, 99, 1}, {{u"defaultProd"_s, 2}}));
    QCOMPARE(groups.at(0), menu.groups.at(0));
    QCOMPARE(editor.groups().currentRow(), 2);
    QVERIFY(editor->getMenuGroups().constLast()->get_isGroup());
}

void TestMenuFileGroups::cancelledDuplicateChangesNothing()
{
    OpenEditor editor(twoGroups());
    const QJsonObject before = editor.saved();
    choose(editor, 0);
    ModalAnswers answers;
    answers.expect<GroupEdit>([](GroupEdit &dialog) { ui::click(dialog, "btnCancel"); });
    ui::click(*editor, "btnDuplicateGroup");
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.groups().currentRow(), 0);
}

void TestMenuFileGroups::deleteAsks()
{
    OpenEditor editor(twoGroups());
    choose(editor, 0);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected group?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteGroup");
    QCOMPARE(ui::textsOf(editor.groups()), QStringList{u"  1 Sauces"_s});
    QCOMPARE(editor.groups().currentRow(), -1);
    QVERIFY(!singleButtonsEnabled(editor));
    QCOMPARE(shownMembers(editor).count(), 0);
    QCOMPARE(samplefile::binsOf(editor.saved(), 0), (QList<int>{0, 6, 1, 0}));
}

void TestMenuFileGroups::refusedDeleteChangesNothing()
{
    OpenEditor editor(twoGroups());
    const QJsonObject before = editor.saved();
    choose(editor, 0);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected group?"_s), QMessageBox::No);
    ui::click(*editor, "btnDeleteGroup");
    answers.expectBoxEscaped(ModalAnswers::deleteQuestion(u"Delete selected group?"_s));
    ui::click(*editor, "btnDeleteGroup");
    QCOMPARE(editor.saved(), before);
    QCOMPARE(editor.groups().currentRow(), 0);
}

void TestMenuFileGroups::changedProductsShowInTheGroups()
{
    OpenEditor editor(twoGroups());
    choose(editor, 0);
    editor.showTab(0);
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(ui::textsOf(shownMembers(editor)), QStringList{u"  2 Bacon"_s});
    QCOMPARE(editor.groups().currentRow(), 0);
}

void TestMenuFileGroups::fullMenuRefusesMore_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<int>("groups");
    QTest::addColumn<bool>("full");
    QTest::newRow("60 and 40") << 60 << 40 << true;
    QTest::newRow("100 and none") << 100 << 0 << true;
    QTest::newRow("none and 100") << 0 << 100 << true;
    QTest::newRow("200 and 200") << 200 << 200 << true;
    QTest::newRow("60 and 39") << 60 << 39 << false;
}

void TestMenuFileGroups::fullMenuRefusesMore()
{
    QFETCH(int, products);
    QFETCH(int, groups);
    QFETCH(bool, full);
    OpenEditor editor(manyEntries(products, groups));
    const auto expect = [full](ModalAnswers &answers, const QString &message) {
        if (full)
            answers.expectBox(ModalAnswers::refusal(message), QMessageBox::Close);
        else
            answers.expect<QDialog>([](QDialog &dialog) { ui::click(dialog, "btnCancel"); });
    };
    ModalAnswers answers;
    expect(answers, noProducts);
    ui::click(*editor, "btnAddProduct");
    if (products > 0) {
        ui::clickRow(editor.products(), 0);
        expect(answers, noProducts);
        ui::click(*editor, "btnDuplicateProduct");
    }
    editor.showTab(1);
    expect(answers, noGroups);
    ui::click(*editor, "btnAddGroup");
    if (groups > 0) {
        ui::clickRow(editor.groups(), 0);
        expect(answers, noGroups);
        ui::click(*editor, "btnDuplicateGroup");
    }
    QVERIFY(answers.allAnswered());
    QCOMPARE(editor.products().count(), products);
    QCOMPARE(editor.groups().count(), groups);
}

void TestMenuFileGroups::deletionMakesRoomForOneMore_data()
{
    QTest::addColumn<bool>("addProduct"); // else a group
    QTest::newRow("product") << true;
    QTest::newRow("group") << false;
}

void TestMenuFileGroups::deletionMakesRoomForOneMore()
{
    QFETCH(bool, addProduct);
    OpenEditor editor(manyEntries(60, 40));
    ModalAnswers answers;
    const auto addRefused = [&] {
        answers.expectBox(ModalAnswers::refusal(noProducts), QMessageBox::Close);
        editor.showTab(0);
        ui::click(*editor, "btnAddProduct");
        answers.expectBox(ModalAnswers::refusal(noGroups), QMessageBox::Close);
        editor.showTab(1);
        ui::click(*editor, "btnAddGroup");
        REQUIRE(answers.allAnswered());
    };
    addRefused();
    choose(editor, 39);
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected group?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteGroup");
    answers.expect<QDialog>([addProduct](QDialog &dialog) {
        ui::type(dialog, "txtName", u"New"_s);
        if (!addProduct) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 0);
            ui::click(dialog, "btnAddProduct");
        }
        ui::click(dialog, "btnSave");
    });
    editor.showTab(addProduct ? 0 : 1);
    ui::click(*editor, addProduct ? "btnAddProduct" : "btnAddGroup");
    QVERIFY(answers.allAnswered());
    QCOMPARE(editor.products().count(), addProduct ? 61 : 60);
    QCOMPARE(editor.groups().count(), addProduct ? 39 : 40);
    addRefused();
}

QTEST_MAIN(TestMenuFileGroups)
#include "tst_menufile_groups.moc"
