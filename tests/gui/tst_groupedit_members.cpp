// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLineEdit>
#include <QPushButton>

#include "tests/gui/editgroup.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace groupedit;

namespace {

bool fits(const GroupEdit &dialog, int row)
{
    return allProducts(dialog).item(row)->flags().testFlag(Qt::ItemIsSelectable);
}

bool canAdd(const GroupEdit &dialog)
{
    return ui::get<QPushButton>(dialog, "btnAddProduct").isEnabled();
}

bool canRemove(const GroupEdit &dialog)
{
    return ui::get<QPushButton>(dialog, "btnRemoveProduct").isEnabled();
}

void checkDefault(const GroupEdit &dialog, int row)
{
    ui::clickRow(members(dialog), row);
    ui::clickRowBox(members(dialog), row);
}

QList<int> savedMembers(OpenEditor &editor)
{
    QList<int> ids;
    const QJsonArray products = savedGroup(editor).value(u"products"_s).toArray();
    for (const QJsonValue id : products)
        ids.append(id.toInt());
    return ids;
}

int savedDefault(OpenEditor &editor)
{
    return savedGroup(editor).value(u"defaultProd"_s).toInt(-1);
}

} // namespace

class TestGroupEditMembers : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void firstMemberFixesTheSettings();
    void unfittingRowsCannotBeChosen();
    void everySettingDecides_data();
    void everySettingDecides();
    void nothingFixedFitsAnything();
    void zpvIgnoresLids();
    void memberIsAddedOnce();
    void buttonsFollowTheSelection();
    void listsWorkByKeyboard();
    void removedLastMemberFreesEverything();
    void emptiedGroupOpensFree();
    void boxOfTheCurrentMemberMakesItTheDefault();
    void boxOfAnotherMemberOnlyMakesItCurrent();
    void programCannotCheckAnotherMember();
    void spaceChecksTheCurrentMember();
    void removingKeepsTheDefaultProduct_data();
    void removingKeepsTheDefaultProduct();
    void defaultOutOfRangeIsClamped_data();
    void defaultOutOfRangeIsClamped();
    void missingMembersKeepTheirPlace();
    void missingDefaultGivesWay();
    void groupOfMissingMembersCanBeSaved();
    void repeatedMembersAreAllShown();
};

void TestGroupEditMembers::firstMemberFixesTheSettings()
{
    OpenEditor editor(menuWith(emptyGroup()));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        for (int row = 0; row < 4; ++row)
            QVERIFY(fits(dialog, row));
        add(dialog, 0);
        QCOMPARE(shownMembers(dialog), QStringList{u"  1 Bacon*"_s});
        QVERIFY(fits(dialog, 0) && fits(dialog, 1) && !fits(dialog, 2) && fits(dialog, 3));
        add(dialog, 3);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Ham"_s}));
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{1, 4}));
    QCOMPARE(savedDefault(editor), 0);
}

void TestGroupEditMembers::unfittingRowsCannotBeChosen()
{
    samplefile::Menu menu = menuWith(meats({1}));
    menu.products.append(samplefile::product(5, u"Pasta"_s));
    menu.products.append(samplefile::product(6, u"Toast"_s, {{u"lidType"_s, u"Solid"_s}}));
    OpenEditor editor(menu);
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QListWidget &list = allProducts(dialog);
        ui::clickRow(list, 2);
        QVERIFY(list.selectedItems().isEmpty());
        QVERIFY(!canAdd(dialog));
        ui::clickRow(list, 1);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.currentRow(), 2);
        QVERIFY(list.selectedItems().isEmpty());
        QVERIFY(!canAdd(dialog));
        const QColor evenText = list.item(2)->foreground().color();
        QCOMPARE(evenText.red(), evenText.blue()); // some grey
        QVERIFY(evenText.red() > 0 && evenText.red() < 255);
        QCOMPARE(list.item(2)->background().color(), QColor(Qt::white));
        QCOMPARE(list.item(5)->foreground().color(), evenText);
        const QColor oddStripe = list.item(5)->background().color();
        QCOMPARE(oddStripe.red(), oddStripe.blue());
        QVERIFY(oddStripe.red() > evenText.red() && oddStripe.red() < 255);
        cancel(dialog);
    });
}

void TestGroupEditMembers::everySettingDecides_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<bool>("withFanSpeed");
    QTest::addColumn<bool>("fitting");
    QTest::newRow("same") << u"productId"_s << QJsonValue(7) << true << true;
    QTest::newRow("lid") << u"lidType"_s << QJsonValue(u"Solid"_s) << true << false;
    QTest::newRow("lid in other case") << u"lidType"_s << QJsonValue(u"none"_s) << true << false;
    QTest::newRow("zone splits") << u"zoneSplits"_s << QJsonValue(u"1/1"_s) << true << false;
    QTest::newRow("upper temperature") << u"upperTemp"_s << QJsonValue(201) << true << false;
    QTest::newRow("lower temperature") << u"lowerTemp"_s << QJsonValue(199) << true << false;
    QTest::newRow("no temperature") << u"lowerTemp"_s << QJsonValue(0) << true << false;
    QTest::newRow("fan speed") << u"fanSpeed"_s << QJsonValue(61) << true << false;
    QTest::newRow("unused fan speed") << u"fanSpeed"_s << QJsonValue(61) << false << true;
    QTest::newRow("holding time") << u"holdingTime"_s << QJsonValue(999) << true << true;
    QTest::newRow("bottom") << u"bottomType"_s << QJsonValue(u"False"_s) << true << true;
}

void TestGroupEditMembers::everySettingDecides()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QFETCH(bool, withFanSpeed);
    QFETCH(bool, fitting);
    samplefile::Menu menu = menuWith(emptyGroup(), samplefile::header({{u"fanSpeedEnabled"_s, withFanSpeed}}));
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Other"_s, {{key, value}})};
    OpenEditor editor(menu);
    edit(editor, [fitting](GroupEdit &dialog, ModalAnswers &) {
        QVERIFY(fits(dialog, 1));
        add(dialog, 0);
        QCOMPARE(fits(dialog, 1), fitting);
        cancel(dialog);
    });
}

void TestGroupEditMembers::nothingFixedFitsAnything()
{
    samplefile::Menu menu = menuWith(emptyGroup(), samplefile::header({{u"fanSpeedEnabled"_s, true}}));
    menu.products = {samplefile::product(1, u"Bare"_s,
                                     {{u"upperTemp"_s, 0},
                                      {u"lowerTemp"_s, 0},
                                      {u"fanSpeed"_s, 0},
                                      {u"zoneSplits"_s, QString()},
                                      {u"lidType"_s, QString()}}),
                     samplefile::product(2, u"Bacon"_s), samplefile::product(3, u"Hot"_s, {{u"upperTemp"_s, 225}})};
    OpenEditor editor(menu);
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        add(dialog, 0);
        QVERIFY(fits(dialog, 0) && fits(dialog, 1) && fits(dialog, 2));
        add(dialog, 1);
        QVERIFY(fits(dialog, 2)); // only the first member fixes anything
        cancel(dialog);
    });
}

void TestGroupEditMembers::zpvIgnoresLids()
{
    const QJsonObject zpv{{u"cabinetType"_s, u"ZPV"_s}, {u"cabinetModel"_s, u"ZPV23"_s}};
    samplefile::Menu menu = menuWith(meats({1}, {{u"lidType"_s, u"Solid"_s}}), samplefile::header(zpv));
    menu.products.append(samplefile::product(5, u"Lid"_s, {{u"lidType"_s, u"Vented"_s}}));
    OpenEditor editor(menu);
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QVERIFY(fits(dialog, 0) && fits(dialog, 4));
        remove(dialog, 0);
        add(dialog, 4);
        QVERIFY(fits(dialog, 0) && fits(dialog, 4));
        cancel(dialog);
    });
}

void TestGroupEditMembers::memberIsAddedOnce()
{
    OpenEditor editor(menuWith(meats({2, 1})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        add(dialog, 0);
        add(dialog, 3);
        add(dialog, 3);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Chili*"_s, u"  2 Bacon"_s, u"  3 Ham"_s}));
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{2, 1, 4}));
}

void TestGroupEditMembers::buttonsFollowTheSelection()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QVERIFY(!canAdd(dialog) && !canRemove(dialog));
        ui::clickRow(allProducts(dialog), 3);
        QVERIFY(canAdd(dialog) && !canRemove(dialog));
        ui::clickRow(members(dialog), 0);
        QVERIFY(canRemove(dialog));
        ui::clickRow(allProducts(dialog), 3, Qt::ControlModifier);
        QVERIFY(!canAdd(dialog) && canRemove(dialog));
        ui::clickRow(members(dialog), 0, Qt::ControlModifier);
        QVERIFY(!canRemove(dialog));
        remove(dialog, 0);
        remove(dialog, 0);
        QVERIFY(!canRemove(dialog));
        cancel(dialog);
    });
}

void TestGroupEditMembers::listsWorkByKeyboard()
{
    OpenEditor editor(menuWith(emptyGroup()));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        allProducts(dialog).setFocus();
        QTest::keyClick(&allProducts(dialog), Qt::Key_Down);
        QTest::keyClick(&allProducts(dialog), Qt::Key_Home);
        auto &button = ui::get<QPushButton>(dialog, "btnAddProduct");
        QVERIFY(button.isEnabled());
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(shownMembers(dialog), QStringList{u"  1 Bacon*"_s});
        members(dialog).setFocus();
        QTest::keyClick(&members(dialog), Qt::Key_Home);
        auto &removing = ui::get<QPushButton>(dialog, "btnRemoveProduct");
        removing.setFocus();
        QTest::keyClick(&removing, Qt::Key_Return);
        QCOMPARE(shownMembers(dialog), QStringList());
        cancel(dialog);
    });
}

void TestGroupEditMembers::removedLastMemberFreesEverything()
{
    OpenEditor editor(menuWith(meats({1}), samplefile::headerWithAllSwitches()));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QVERIFY(!fits(dialog, 2));
        remove(dialog, 0);
        QVERIFY(fits(dialog, 0) && fits(dialog, 2));
        QCOMPARE(ui::get<QLabel>(dialog, "txtTemp1").text(), u"0°F"_s);
        QCOMPARE(ui::get<QLabel>(dialog, "txtFanSpeed").text(), u"0 RPM"_s);
        QCOMPARE(ui::get<QLabel>(dialog, "txtZoneSplits").text(), QString());
        add(dialog, 2);
        QCOMPARE(ui::get<QLabel>(dialog, "txtTemp1").text(), u"210°F"_s);
        QVERIFY(!fits(dialog, 0) && fits(dialog, 2));
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), QList<int>{3});
    QCOMPARE(savedGroup(editor).value(u"upperTemp"_s).toInt(), 210);
}

void TestGroupEditMembers::emptiedGroupOpensFree()
{
    OpenEditor editor(menuWith(meats({}))); // with the settings of products that it had
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QVERIFY(fits(dialog, 0) && fits(dialog, 2));
        QCOMPARE(ui::get<QLabel>(dialog, "txtTemp1").text(), u"0°F"_s);
        cancel(dialog);
    });
}

void TestGroupEditMembers::boxOfTheCurrentMemberMakesItTheDefault()
{
    OpenEditor editor(menuWith(meats({1, 2, 4})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        checkDefault(dialog, 2);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili"_s, u"  3 Ham*"_s}));
        ui::clickRowBox(members(dialog), 2); // it cannot be unchecked
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili"_s, u"  3 Ham*"_s}));
        checkDefault(dialog, 1);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s, u"  3 Ham"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditMembers::boxOfAnotherMemberOnlyMakesItCurrent()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        ui::clickRow(members(dialog), 0);
        ui::clickRowBox(members(dialog), 1);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        QCOMPARE(members(dialog).currentRow(), 1);
        ui::clickRowBox(members(dialog), 0); // not the current one any more, but the default
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 0);
}

void TestGroupEditMembers::programCannotCheckAnotherMember()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        members(dialog).item(1)->setCheckState(Qt::Checked);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        members(dialog).item(0)->setCheckState(Qt::Unchecked);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        cancel(dialog);
    });
}

void TestGroupEditMembers::spaceChecksTheCurrentMember()
{
    OpenEditor editor(menuWith(meats({1, 2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        members(dialog).setFocus();
        QTest::keyClick(&members(dialog), Qt::Key_End);
        QTest::keyClick(&members(dialog), Qt::Key_Space);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s}));
        QTest::keyClick(&members(dialog), Qt::Key_Space);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditMembers::removingKeepsTheDefaultProduct_data()
{
    QTest::addColumn<int>("defaultRow");
    QTest::addColumn<int>("removedRow");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<int>("saved");
    QTest::newRow("before the default") << 1 << 0 << QStringList{u"  1 Chili*"_s, u"  2 Ham"_s} << 0;
    QTest::newRow("after the default") << 1 << 2 << QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s} << 1;
    QTest::newRow("the default") << 1 << 1 << QStringList{u"  1 Bacon"_s, u"  2 Ham*"_s} << 1;
    QTest::newRow("the default at the end") << 2 << 2 << QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s} << 1;
    QTest::newRow("the default at the start") << 0 << 0 << QStringList{u"  1 Chili*"_s, u"  2 Ham"_s} << 0;
}

void TestGroupEditMembers::removingKeepsTheDefaultProduct()
{
    QFETCH(int, defaultRow);
    QFETCH(int, removedRow);
    QFETCH(QStringList, shown);
    QFETCH(int, saved);
    OpenEditor editor(menuWith(meats({1, 2, 4}, {{u"defaultProd"_s, defaultRow}})));
    edit(editor, [&](GroupEdit &dialog, ModalAnswers &) {
        remove(dialog, removedRow);
        QCOMPARE(shownMembers(dialog), shown);
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), saved);
}

void TestGroupEditMembers::defaultOutOfRangeIsClamped_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("saved");
    QTest::newRow("just outside") << 2 << 1;
    QTest::newRow("far outside") << 2147483647 << 1;
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("most negative") << -2147483647 << 0;
}

void TestGroupEditMembers::defaultOutOfRangeIsClamped()
{
    QFETCH(int, stored);
    QFETCH(int, saved);
    OpenEditor editor(menuWith(meats({1, 2}, {{u"defaultProd"_s, stored}})));
    edit(editor, [saved](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog).indexOf(saved == 0 ? u"  1 Bacon*"_s : u"  2 Chili*"_s), saved);
        cancel(dialog);
    });
    QCOMPARE(savedDefault(editor), stored); // kept until somebody saves the dialog
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) { save(dialog); });
    QCOMPARE(savedDefault(editor), saved);
}

void TestGroupEditMembers::missingMembersKeepTheirPlace()
{
    OpenEditor editor(menuWith(meats({77, 1, 78, 2, 79}, {{u"defaultProd"_s, 3}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon"_s, u"  4 Chili*"_s}));
        checkDefault(dialog, 0);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon*"_s, u"  4 Chili"_s}));
        add(dialog, 3);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon*"_s, u"  4 Chili"_s, u"  6 Ham"_s}));
        remove(dialog, 1);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  2 Bacon*"_s, u"  5 Ham"_s}));
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{77, 1, 78, 79, 4}));
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditMembers::missingDefaultGivesWay()
{
    OpenEditor editor(menuWith(meats({1, 77, 2, 78}, {{u"defaultProd"_s, 1}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  3 Chili*"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(editor), 2);
    OpenEditor other(menuWith(meats({1, 2, 78}, {{u"defaultProd"_s, 2}})));
    edit(other, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Chili*"_s}));
        save(dialog);
    });
    QCOMPARE(savedDefault(other), 1);
}

void TestGroupEditMembers::groupOfMissingMembersCanBeSaved()
{
    OpenEditor editor(menuWith(meats({77, 78}, {{u"defaultProd"_s, 1}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), QStringList());
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{77, 78}));
    QCOMPARE(savedDefault(editor), 1);
}

void TestGroupEditMembers::repeatedMembersAreAllShown()
{
    OpenEditor editor(menuWith(meats({1, 1, 2}, {{u"defaultProd"_s, 1}})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Bacon*"_s, u"  3 Chili"_s}));
        remove(dialog, 0);
        QCOMPARE(shownMembers(dialog), (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s}));
        save(dialog);
    });
    QCOMPARE(savedMembers(editor), (QList<int>{1, 2}));
}

QTEST_MAIN(TestGroupEditMembers)
#include "tst_groupedit_members.moc"
