// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/groupedit.h"
#include "holding/productedit.h"
#include "tests/gui/editentry.h"
#include "tests/gui/holdbins.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace editentry;

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
    return ui::textsOf(ui::get<QListWidget>(*editor, "listWidgetMembers"));
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
    editProduct(editor, 1, [](ProductEdit &dialog) { ui::type(dialog, "txtName", u"Ham"_s); });
    QCOMPARE(shownMembers(editor), QStringList{u"  1 Ham"_s});
    QCOMPARE(editor.button(1, 0).text(), u"Ham"_s);
    QCOMPARE(editor.groups().currentRow(), 0);
}

void TestMenuFileReload::changedProductLeavesTheShownGroup()
{
    OpenBins editor(menuWithUnknownId());
    chooseGroup(editor);
    editProduct(editor, 1, heat, fromGroupsAndBins);
    QCOMPARE(shownMembers(editor), QStringList());
    QCOMPARE(editor.button(1, 0).text(), QString());
}

void TestMenuFileReload::renamedGroupShowsInItsBins()
{
    OpenBins editor(menuWithUnknownId());
    QCOMPARE(editor.button(0, 1).text(), u"Halves"_s);
    editGroup(editor, 0, [](GroupEdit &dialog) { ui::type(dialog, "txtName", u"Meats"_s); });
    QCOMPARE(editor.button(0, 1).text(), u"Meats"_s);
}

void TestMenuFileReload::changedGroupLeavesTheShownBins()
{
    samplefile::Menu menu = menuWithUnknownId();
    menu.groups = {samplefile::group(5, u"Halves"_s, {2})};
    OpenBins editor(menu);
    editGroup(editor, 0, swapMember, groupFromBins);
    QCOMPARE(editor.button(0, 1).text(), QString());
}

void TestMenuFileReload::editsLeaveTheRemovalMode()
{
    HoldBins editor(menuWithUnknownId());
    const auto enterRemoval = [&editor] {
        editor.showTab(2);
        editor.press(0, 0);
        REQUIRE_SOON(editor.isRemoving());
        editor.release();
    };
    enterRemoval();
    editGroup(editor, 0, [](GroupEdit &dialog) { ui::type(dialog, "txtName", u"Meats"_s); });
    editor.showTab(2);
    QVERIFY(!editor.isRemoving());
    QCOMPARE(editor.button(0, 1).text(), u"Meats"_s);
    enterRemoval();
    editProduct(editor, 1, [](ProductEdit &dialog) { ui::type(dialog, "txtName", u"Ham"_s); });
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
    editProduct(editor, answers, 1, heat, fromGroupsAndBins);
    QCOMPARE(shownAtWarning, (QStringList{u"210°F"_s, QString()}));
}

QTEST_MAIN(TestMenuFileReload)
#include "tst_menufile_reload.moc"
