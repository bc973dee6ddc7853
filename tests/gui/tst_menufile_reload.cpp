// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/groupedit.h"
#include "holding/productedit.h"
#include "tests/gui/holdbins.h"
#include "tests/support/modalanswers.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

// Products 1 to 4, the group 5, and the id 6 that nothing has yet, in a bin and as a member of the group.
samplefile::Menu menuWithUnknownId()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {6, 5, 2, 0});
    menu.groups = {samplefile::group(5, u"Halves"_s, {2, 6})};
    return menu;
}

QStringList shownMembers(OpenEditor &editor)
{
    const auto &list = ui::get<QListWidget>(*editor, "listWidgetMembers");
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts.append(list.item(row)->text());
    return texts;
}

void chooseGroup(OpenEditor &editor)
{
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
}

void saveAs(QDialog &dialog, const QString &name)
{
    ui::type(dialog, "txtName", name);
    ui::click(dialog, "btnSave");
}

const QString fromBoth = u"Product has been removed from group(s) and daypart(s) assignemnts"_s;

void heat(ProductEdit &dialog)
{
    ui::type(dialog, "numTemp1", u"210"_s);
}

// Swaps the group's first member for a product of other zone splits.
void swapMember(const GroupEdit &dialog)
{
    ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetGroupProducts"), 0);
    ui::click(dialog, "btnRemoveProduct");
    ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 3);
    ui::click(dialog, "btnAddProduct");
}

void editProduct(OpenEditor &editor, ModalAnswers &answers, int row,
                 const std::function<void(ProductEdit &)> &change, const QString &warning = {})
{
    answers.expect<ProductEdit>([&](ProductEdit &dialog) {
        change(dialog);
        ui::click(dialog, "btnSave");
    });
    if (!warning.isEmpty())
        answers.expectBox(ModalAnswers::removalWarning(warning), QMessageBox::Ok);
    editor.showTab(0);
    ui::clickRow(editor.products(), row);
    ui::click(*editor, "btnEditProduct");
    QVERIFY(answers.allAnswered());
}

void editGroup(OpenEditor &editor, ModalAnswers &answers, const std::function<void(GroupEdit &)> &change,
               const QString &warning = {})
{
    answers.expect<GroupEdit>([&](GroupEdit &dialog) {
        change(dialog);
        ui::click(dialog, "btnSave");
    });
    if (!warning.isEmpty())
        answers.expectBox(ModalAnswers::removalWarning(warning), QMessageBox::Ok);
    chooseGroup(editor);
    ui::click(*editor, "btnEditGroup");
    QVERIFY(answers.allAnswered());
}

} // namespace

/// What is shown anew after products and groups were changed, on every tab.
class TestMenuFileReload : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newProductShowsWhereItsIdAlreadyIs();
    void newGroupShowsWhereItsIdAlreadyIs();
    void renamedProductShowsEverywhere();
    void changedProductLeavesTheShownGroup();
    void renamedGroupShowsInItsBins();
    void changedGroupLeavesTheShownBins();
    void editsLeaveTheRemovalMode();
    void warningComesLast();
};

void TestMenuFileReload::newProductShowsWhereItsIdAlreadyIs()
{
    OpenBins editor(menuWithUnknownId());
    QCOMPARE(editor.button(0, 0).text(), u"Id 6"_s);
    chooseGroup(editor);
    QCOMPARE(shownMembers(editor), QStringList{u"  1 Half"_s});
    editor.showTab(0);
    ModalAnswers answers;
    answers.expect<ProductEdit>([](ProductEdit &dialog) { saveAs(dialog, u"Ham"_s); });
    ui::click(*editor, "btnAddProduct");
    QCOMPARE(editor->getMenuProducts().constLast()->get_productId(), 6);
    QCOMPARE(editor.button(0, 0).text(), u"Ham"_s);
    QCOMPARE(shownMembers(editor), (QStringList{u"  1 Half"_s, u"  2 Ham"_s}));
}

void TestMenuFileReload::newGroupShowsWhereItsIdAlreadyIs()
{
    OpenBins editor(menuWithUnknownId());
    editor.showTab(1);
    ModalAnswers answers;
    answers.expect<GroupEdit>([](GroupEdit &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 1);
        ui::click(dialog, "btnAddProduct");
        saveAs(dialog, u"Meats"_s);
    });
    ui::click(*editor, "btnAddGroup");
    QCOMPARE(editor->getMenuGroups().constLast()->get_productId(), 6);
    QCOMPARE(editor.button(0, 0).text(), u"Meats"_s);
}

void TestMenuFileReload::renamedProductShowsEverywhere()
{
    OpenBins editor(menuWithUnknownId());
    chooseGroup(editor);
    ModalAnswers answers;
    editProduct(editor, answers, 1, [](ProductEdit &dialog) { ui::type(dialog, "txtName", u"Ham"_s); });
    QCOMPARE(shownMembers(editor), QStringList{u"  1 Ham"_s});
    QCOMPARE(editor.button(1, 0).text(), u"Ham"_s);
    QCOMPARE(editor.groups().currentRow(), 0);
}

void TestMenuFileReload::changedProductLeavesTheShownGroup()
{
    OpenBins editor(menuWithUnknownId());
    chooseGroup(editor);
    ModalAnswers answers;
    editProduct(editor, answers, 1, heat, fromBoth);
    QCOMPARE(shownMembers(editor), QStringList());
    QCOMPARE(editor.button(1, 0).text(), QString());
}

void TestMenuFileReload::renamedGroupShowsInItsBins()
{
    OpenBins editor(menuWithUnknownId());
    QCOMPARE(editor.button(0, 1).text(), u"Halves"_s);
    ModalAnswers answers;
    editGroup(editor, answers, [](GroupEdit &dialog) { ui::type(dialog, "txtName", u"Meats"_s); });
    QCOMPARE(editor.button(0, 1).text(), u"Meats"_s);
}

void TestMenuFileReload::changedGroupLeavesTheShownBins()
{
    samplefile::Menu menu = menuWithUnknownId();
    menu.groups = {samplefile::group(5, u"Halves"_s, {2})};
    OpenBins editor(menu);
    ModalAnswers answers;
    editGroup(editor, answers, swapMember, u"Group has been removed from daypart(s) assignemnts"_s);
    QCOMPARE(editor.button(0, 1).text(), QString());
}

void TestMenuFileReload::editsLeaveTheRemovalMode()
{
    HoldBins editor(menuWithUnknownId());
    const auto enterRemoval = [&editor] {
        editor.showTab(2);
        editor.press(0, 0);
        QTRY_VERIFY(editor.isRemoving());
        editor.release();
    };
    ModalAnswers answers;
    enterRemoval();
    editGroup(editor, answers, [](GroupEdit &dialog) { ui::type(dialog, "txtName", u"Meats"_s); });
    editor.showTab(2);
    QVERIFY(!editor.isRemoving());
    QCOMPARE(editor.button(0, 1).text(), u"Meats"_s);
    enterRemoval();
    editProduct(editor, answers, 1, [](ProductEdit &dialog) { ui::type(dialog, "txtName", u"Ham"_s); });
    editor.showTab(2);
    QVERIFY(!editor.isRemoving());
}

void TestMenuFileReload::warningComesLast()
{
    OpenBins editor(menuWithUnknownId());
    chooseGroup(editor);
    QStringList shownAtWarning;
    ModalAnswers answers;
    answers.onShown([&](const QDialog &dialog) {
        if (qobject_cast<const QMessageBox *>(&dialog))
            shownAtWarning = shownMembers(editor)
                             << editor.productDetail("txtTemp1").text() << editor.button(1, 0).text();
    });
    editProduct(editor, answers, 1, heat, fromBoth);
    QCOMPARE(shownAtWarning, (QStringList{u"210°F"_s, QString()}));
}

QTEST_MAIN(TestMenuFileReload)
#include "tst_menufile_reload.moc"
