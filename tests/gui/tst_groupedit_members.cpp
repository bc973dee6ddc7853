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
    void addedRowStaysSelected();
    void buttonsFollowTheSelection();
    void listsWorkByKeyboard();
    void removedLastMemberFreesEverything();
    void emptiedGroupOpensFree();
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
    samplefile::Menu menu =
        menuWith(emptyGroup(), samplefile::header({{u"fanSpeedEnabled"_s, withFanSpeed}}));
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
                     samplefile::product(2, u"Bacon"_s),
                     samplefile::product(3, u"Hot"_s, {{u"upperTemp"_s, 225}})};
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

void TestGroupEditMembers::addedRowStaysSelected()
{
    OpenEditor editor(menuWith(meats({2})));
    edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        add(dialog, 3);
        const QListWidget &list = allProducts(dialog);
        QCOMPARE(list.selectedItems(), QList<QListWidgetItem *>{list.item(3)});
        QCOMPARE(list.currentRow(), 3);
        QVERIFY(canAdd(dialog));
        cancel(dialog);
    });
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

QTEST_MAIN(TestGroupEditMembers)
#include "tst_groupedit_members.moc"
