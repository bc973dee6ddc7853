// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/configuration.h"
#include "tests/gui/editentry.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace editentry;

namespace {

// Products 1 to 4: the first is in a group and in bins, the second only in bins, the third only in a group,
// the fourth nowhere. Group 9 is in bins, group 10 nowhere.
samplefile::Menu menuWith(const QJsonObject &header)
{
    samplefile::Menu menu;
    menu.header = header;
    menu.products = {samplefile::product(1, u"Both"_s), samplefile::product(2, u"Bins"_s),
                     samplefile::product(3, u"Groups"_s), samplefile::product(4, u"Nowhere"_s)};
    menu.groups = {samplefile::group(9, u"Meats"_s, {3, 1, 4}, {{u"defaultProd"_s, 2}}),
                   samplefile::group(10, u"Sauces"_s, {4})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 2, 9, 1}),
                   samplefile::daypart(u"Evening"_s, {9, 1, 2, 0})};
    return menu;
}

const QString fromBins = u"Product has been removed from daypart(s) assignemnts"_s;
const QString fromGroups = u"Product has been removed from group(s)"_s;

QJsonObject savedGroup(const QJsonObject &saved, int row)
{
    return saved.value(u"productGroups"_s).toArray().at(row).toObject();
}

QJsonArray membersOf(const QJsonObject &saved, int group)
{
    const QJsonArray groups = saved.value(u"productGroups"_s).toArray();
    return groups.at(group).toObject().value(u"products"_s).toArray();
}

} // namespace

class TestMenuFileRemovals : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void productLeavesWhereItIs_data();
    void productLeavesWhereItIs();
    void everySettingOfAProductCounts_data();
    void everySettingOfAProductCounts();
    void otherValuesOfAProductDoNotCount();
    void unusedFanSpeedDoesNotCount();
    void freshMenuKeepsItsGroupsOnANewHoldTime_data();
    void freshMenuKeepsItsGroupsOnANewHoldTime();
    void unitRoundTripIsNoChange_data();
    void unitRoundTripIsNoChange();
    void temperatureMadeUpByTheRangeIsAChange();
    void zpvMakesTwoTemperaturesOne();
    void productsBinsAreLeftBeyondTheCabinetToo();
    void changedGroupLeavesTheBins();
    void unchangedGroupStays();
    void groupLidDoesNotCount();
    void changedGroupOutsideBinsWarnsOfNothing();
    void deletedGroupLeavesTheBins();
};

void TestMenuFileRemovals::productLeavesWhereItIs_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QList<int>>("morning");
    QTest::addColumn<QList<int>>("evening");
    QTest::addColumn<QJsonArray>("members");
    QTest::addColumn<int>("defaultIndex");
    const QList<int> morning{1, 2, 9, 1};
    const QList<int> evening{9, 1, 2, 0};
    const QJsonArray members{3, 1, 4};
    QTest::newRow("both") << 0 << fromGroupsAndBins << QList<int>{0, 2, 9, 0} << QList<int>{9, 0, 2, 0}
                          << QJsonArray{3, 4} << 0;
    QTest::newRow("bins") << 1 << fromBins << QList<int>{1, 0, 9, 1} << QList<int>{9, 1, 0, 0} << members
                          << 2;
    QTest::newRow("groups") << 2 << fromGroups << morning << evening << QJsonArray{1, 4} << 0;
}

void TestMenuFileRemovals::productLeavesWhereItIs()
{
    QFETCH(int, row);
    QFETCH(QString, warning);
    OpenEditor editor(menuWith(samplefile::header()));
    editProduct(
        editor, row, [](ProductEdit &dialog) { ui::type(dialog, "numTemp1", u"199"_s); }, warning);
    const QJsonObject saved = editor.saved();
    QTEST(samplefile::binsOf(saved, 0), "morning");
    QTEST(samplefile::binsOf(saved, 1), "evening");
    QTEST(membersOf(saved, 0), "members");
    QTEST(savedGroup(saved, 0).value(u"defaultProd"_s).toInt(-1), "defaultIndex");
    QCOMPARE(membersOf(saved, 1), QJsonArray{4});
    QCOMPARE(editor.products().currentRow(), row);
    QCOMPARE(editor.productDetail("txtTemp1").text(), u"199°F"_s);
}

void TestMenuFileRemovals::everySettingOfAProductCounts_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("value");
    QTest::newRow("upper temperature") << QByteArray("numTemp1") << u"201"_s;
    QTest::newRow("lower temperature") << QByteArray("numTemp2") << u"201"_s;
    QTest::newRow("fan speed") << QByteArray("numFanSpeed") << u"61"_s;
    QTest::newRow("zone splits") << QByteArray("comboZoneSplits") << u"1/1"_s;
    QTest::newRow("lid") << QByteArray("comboLidType") << u"Vented"_s;
}

void TestMenuFileRemovals::everySettingOfAProductCounts()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, value);
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    const auto change = [&](ProductEdit &dialog) {
        if (input.startsWith("combo"))
            ui::choose(dialog, input.constData(), value);
        else
            ui::type(dialog, input.constData(), value);
    };
    editProduct(editor, 0, change, fromGroupsAndBins);
    QCOMPARE(membersOf(editor.saved(), 0), (QJsonArray{3, 4}));
}

void TestMenuFileRemovals::otherValuesOfAProductDoNotCount()
{
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches()));
    const QJsonObject before = editor.saved();
    const auto change = [](ProductEdit &dialog) {
        ui::type(dialog, "txtName", u"Other"_s);
        ui::enterTime(dialog, "timeHoldTime", {2, 0});
        ui::enterTime(dialog, "timeWarningTime", {1, 0});
        ui::enterTime(dialog, "timeResetTime", {0, 1});
        ui::choose(dialog, "comboBottomType", u"False"_s);
    };
    editProduct(editor, 0, change, {});
    const QJsonObject after = editor.saved();
    QJsonArray products = before.value(u"products"_s).toArray();
    QJsonObject other = products.at(0).toObject();
    for (const auto &[key, value] : std::initializer_list<std::pair<QString, QJsonValue>>{
             {u"productName"_s, samplefile::names(u"Other"_s)},
             {u"holdingTime"_s, 7200},
             {u"warningTime"_s, 3600},
             {u"resetTime"_s, 60},
             {u"bottomType"_s, u"False"_s}})
        other.insert(key, value);
    products[0] = other;
    QCOMPARE(after.value(u"products"_s).toArray(), products);
    QCOMPARE(after.value(u"productGroups"_s), before.value(u"productGroups"_s));
    QCOMPARE(after.value(u"layout"_s), before.value(u"layout"_s));
}

void TestMenuFileRemovals::unusedFanSpeedDoesNotCount()
{
    OpenEditor editor(menuWith(samplefile::header())); // its products hold fan speed 60, saving makes it 0
    const QJsonObject before = editor.saved();
    editProduct(editor, 0, [](ProductEdit &dialog) { ui::enterTime(dialog, "timeHoldTime", {2, 0}); }, {});
    const QJsonObject after = editor.saved();
    QCOMPARE(after.value(u"productGroups"_s), before.value(u"productGroups"_s));
    QCOMPARE(after.value(u"layout"_s), before.value(u"layout"_s));
}

void TestMenuFileRemovals::freshMenuKeepsItsGroupsOnANewHoldTime_data()
{
    QTest::addColumn<QByteArray>("unitButton");
    QTest::newRow("°F") << QByteArray("rbTempUnitF");
    QTest::newRow("°C") << QByteArray("rbTempUnitC");
}

void TestMenuFileRemovals::freshMenuKeepsItsGroupsOnANewHoldTime()
{
    QFETCH(QByteArray, unitButton);
    ModalAnswers answers;
    answers.expect<Configuration>([&unitButton](Configuration &dialog) {
        ui::click(dialog, unitButton.constData());
        ui::click(dialog, "btnAccept");
    });
    MenuFile editor({});
    ui::show(editor);
    int row = 0;
    while (editor.getMenuProducts().at(row)->get_upperTemp() != 215) // 102 °C, which alone would be 216 °F
        ++row;
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(1);
    answers.expect<GroupEdit>([row](GroupEdit &dialog) {
        ui::type(dialog, "txtName", u"Meats"_s);
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), row);
        ui::click(dialog, "btnAddProduct");
        ui::click(dialog, "btnSave");
    });
    ui::click(editor, "btnAddGroup");
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(0);
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        ui::enterTime(dialog, "timeHoldTime", {2, 0});
        ui::click(dialog, "btnSave");
    });
    ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), row);
    ui::click(editor, "btnEditProduct");
    QVERIFY(answers.allAnswered());
    const ProductInfo *product = editor.getMenuProducts().at(row);
    QCOMPARE(product->get_holdTime(), 7200);
    QCOMPARE(product->get_upperTemp(), 215);
    QCOMPARE(product->get_lowerTemp(), 215);
    QCOMPARE(editor.getMenuGroups().constFirst()->get_productList(), QList<int>{product->get_productId()});
}

void TestMenuFileRemovals::unitRoundTripIsNoChange_data()
{
    QTest::addColumn<int>("upperTemp");
    QTest::addColumn<int>("lowerTemp");
    QTest::newRow("whole degrees of both") << 212 << 160;
    QTest::newRow("between two °C") << 215 << 200;
    QTest::newRow("no temperature") << 0 << 0;
}

void TestMenuFileRemovals::unitRoundTripIsNoChange()
{
    QFETCH(int, upperTemp);
    QFETCH(int, lowerTemp);
    samplefile::Menu menu = menuWith(samplefile::header({{u"temperatureUnit"_s, 1}}));
    menu.products[0] =
        samplefile::product(1, u"Both"_s, {{u"upperTemp"_s, upperTemp}, {u"lowerTemp"_s, lowerTemp}});
    OpenEditor editor(menu);
    const QJsonObject before = editor.saved();
    editProduct(editor, 0, [](ProductEdit &dialog) { ui::enterTime(dialog, "timeHoldTime", {2, 0}); }, {});
    const QJsonObject after = editor.saved();
    QCOMPARE(after.value(u"layout"_s), before.value(u"layout"_s));
    QCOMPARE(after.value(u"productGroups"_s), before.value(u"productGroups"_s));
    QJsonObject product = before.value(u"products"_s).toArray().at(0).toObject();
    product.insert(u"holdingTime"_s, 7200);
    QCOMPARE(after.value(u"products"_s).toArray().at(0).toObject(), product);
}

void TestMenuFileRemovals::temperatureMadeUpByTheRangeIsAChange()
{
    samplefile::Menu menu = menuWith(samplefile::header());
    menu.products[0] = samplefile::product(1, u"Both"_s, {{u"lowerTemp"_s, 80}});
    OpenEditor editor(menu);
    editProduct(
        editor, 0, [](ProductEdit &) {}, fromGroupsAndBins);
    QCOMPARE(editor->getMenuProducts().constFirst()->get_lowerTemp(), 90);
}

void TestMenuFileRemovals::zpvMakesTwoTemperaturesOne()
{
    samplefile::Menu menu =
        menuWith(samplefile::header({{u"cabinetType"_s, u"ZPV"_s}, {u"cabinetModel"_s, u"ZPV23"_s}}));
    menu.products[0] = samplefile::product(1, u"Both"_s, {{u"upperTemp"_s, 210}, {u"lowerTemp"_s, 190}});
    OpenEditor editor(menu);
    editProduct(
        editor, 0, [](ProductEdit &) {}, fromGroupsAndBins);
    QCOMPARE(editor->getMenuProducts().constFirst()->get_upperTemp(), 210);
    QCOMPARE(editor->getMenuProducts().constFirst()->get_lowerTemp(), 210);
    QCOMPARE(membersOf(editor.saved(), 0), (QJsonArray{3, 4}));
}

void TestMenuFileRemovals::productsBinsAreLeftBeyondTheCabinetToo()
{
    samplefile::Menu menu = menuWith(samplefile::header({{u"cabinetModel"_s, u"KTR24"_s}}));
    menu.layout = {samplefile::daypart(u"Morning"_s, {0, 0, 0, 2, 0, 0, 0, 0})};
    OpenEditor editor(menu);
    const auto configure = [&editor](const QString &model) {
        ModalAnswers answers;
        answers.expect<Configuration>([&model](Configuration &dialog) {
            ui::choose(dialog, "comboUnitModel", model);
            ui::click(dialog, "btnAccept");
        });
        ui::click(*editor, "btnConfig");
    };
    configure(u"KTR22"_s); // the fourth bin of a row is out of sight now
    editProduct(
        editor, 1, [](ProductEdit &dialog) { ui::type(dialog, "numTemp1", u"199"_s); }, fromBins);
    configure(u"KTR24"_s);
    QCOMPARE(samplefile::binsOf(editor.saved(), 0), QList<int>(8, 0));
}

void TestMenuFileRemovals::changedGroupLeavesTheBins()
{
    samplefile::Menu menu = menuWith(samplefile::header());
    menu.products[3] = samplefile::product(4, u"Hot"_s, {{u"upperTemp"_s, 210}});
    menu.groups[0] = samplefile::group(9, u"Meats"_s, {3});
    OpenEditor editor(menu);
    const auto change = [](GroupEdit &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetGroupProducts"), 0);
        ui::click(dialog, "btnRemoveProduct");
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 3);
        ui::click(dialog, "btnAddProduct");
    };
    editGroup(editor, 0, change, groupFromBins);
    const QJsonObject saved = editor.saved();
    QCOMPARE(samplefile::binsOf(saved, 0), (QList<int>{1, 2, 0, 1}));
    QCOMPARE(samplefile::binsOf(saved, 1), (QList<int>{0, 1, 2, 0}));
    QCOMPARE(membersOf(saved, 0), QJsonArray{4});
    QCOMPARE(editor.groups().currentRow(), 0);
    QCOMPARE(editor.groupDetail("txtTemp1").text(), u"210°F"_s);
}

void TestMenuFileRemovals::unchangedGroupStays()
{
    OpenEditor editor(menuWith(samplefile::header()));
    const QJsonObject before = editor.saved();
    const auto change = [](GroupEdit &dialog) {
        ui::type(dialog, "txtName", u"Other"_s);
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 1);
        ui::click(dialog, "btnAddProduct");
    };
    editGroup(editor, 0, change, {});
    QCOMPARE(editor.saved().value(u"layout"_s), before.value(u"layout"_s));
    QCOMPARE(editor.groups().item(0)->text(), u"  1 Other"_s);
}

void TestMenuFileRemovals::groupLidDoesNotCount()
{
    samplefile::Menu menu = menuWith(samplefile::header());
    menu.products[3] = samplefile::product(4, u"Lid"_s, {{u"lidType"_s, u"Solid"_s}});
    menu.groups[0] = samplefile::group(9, u"Meats"_s, {3});
    OpenEditor editor(menu);
    const QJsonObject before = editor.saved();
    const auto change = [](GroupEdit &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetGroupProducts"), 0);
        ui::click(dialog, "btnRemoveProduct");
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 3);
        ui::click(dialog, "btnAddProduct");
    };
    editGroup(editor, 0, change, {});
    const QJsonObject saved = editor.saved();
    QCOMPARE(saved.value(u"layout"_s), before.value(u"layout"_s));
    QCOMPARE(savedGroup(saved, 0).value(u"lidType"_s).toString(), u"Solid"_s);
}

void TestMenuFileRemovals::changedGroupOutsideBinsWarnsOfNothing()
{
    samplefile::Menu menu = menuWith(samplefile::header());
    menu.groups[1] = samplefile::group(10, u"Sauces"_s, {4}, {{u"upperTemp"_s, 150}});
    OpenEditor editor(menu);
    const auto change = [](GroupEdit &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetGroupProducts"), 0);
        ui::click(dialog, "btnRemoveProduct");
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 3);
        ui::click(dialog, "btnAddProduct");
    };
    editGroup(editor, 1, change, {});
    QCOMPARE(savedGroup(editor.saved(), 1).value(u"upperTemp"_s).toInt(), 200);
}

void TestMenuFileRemovals::deletedGroupLeavesTheBins()
{
    samplefile::Menu menu = menuWith(samplefile::header());
    menu.groups[1] = samplefile::group(10, u"Sauces"_s, {9, 4}); // 9 is no product, whatever it names
    OpenEditor editor(menu);
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected group?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteGroup");
    const QJsonObject saved = editor.saved();
    QCOMPARE(samplefile::binsOf(saved, 0), (QList<int>{1, 2, 0, 1}));
    QCOMPARE(samplefile::binsOf(saved, 1), (QList<int>{0, 1, 2, 0}));
    QCOMPARE(saved.value(u"productGroups"_s).toArray().size(), 1);
    QCOMPARE(membersOf(saved, 0), (QJsonArray{9, 4}));
    QCOMPARE(saved.value(u"products"_s).toArray().size(), 4);
}

QTEST_MAIN(TestMenuFileRemovals)
#include "tst_menufile_removals.moc"
