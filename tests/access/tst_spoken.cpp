// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/assigndaypartitem.h"
#include "holding/timercolorpicker.h"
#include "holding/timercolors.h"
#include "tests/access/heard.h"
#include "tests/gui/editgroup.h"
#include "tests/gui/editproduct.h"
#include "tests/gui/holdbins.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QString settings = u"200°F / 200°F, Holding Time: 00:30:00"_s;

samplefile::Menu colouredMenu(const QJsonObject &switches = {})
{
    samplefile::Menu menu;
    menu.header = samplefile::headerWithAllSwitches(switches);
    menu.products = {samplefile::product(1, u"Bacon"_s, {{u"timerColor"_s, u"#700000"_s}}),
                     samplefile::product(2, u"Chili"_s)};
    menu.groups = {samplefile::group(9, u"Meats"_s, {1, 2})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {})};
    return menu;
}

QStringList marksIn(Heard &heard)
{
    return heard.take().filter(QRegularExpression(u"^check "_s));
}

} // namespace

/// What the editor of holding menus and its dialogs tell screen readers.
class TestSpoken : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void editorHasItsTitle();
    void detailsAreReadWithTheirLabels();
    void nothingSelectedIsNotRead();
    void rowsTellWhatTheyHold();
    void rowsOfOneTemperature();
    void multipleSelectionIsTold();
    void pickersRowsTellWhatTheyHold();
    void groupEditorTellsWhatItHolds();
    void demandOfTheFirstMemberIsTold();
    void defaultMemberIsTold();
    void removalModeIsTold();
    void otherDaypartIsTold();
    void savingIsToldEachTime();
    void firstChangeIsTold();
    void colorIsTold();
    void colorsHaveNames();
};

void TestSpoken::editorHasItsTitle()
{
    TestFolder folder;
    MenuFile editor(folder.make(u"a[*]b.json"_s, colouredMenu().bytes()));
    QCOMPARE(editor.accessibleName(), u"Menu File - a[*]b.json"_s);
    Heard heard;
    ui::show(editor);
    QVERIFY(editor.writeToFile(folder.path(u"c.json"_s)));
    QVERIFY(heard.take().contains(u"name MenuFile: Menu File - c.json"_s));
}

void TestSpoken::detailsAreReadWithTheirLabels()
{
    OpenEditor editor(colouredMenu());
    ui::clickRow(editor.products(), 0);
    QCOMPARE(spokenName(editor.productDetail("txtName")), u"Name: Bacon"_s);
    QCOMPARE(spokenName(editor.productDetail("txtHoldTime")), u"Holding Time: 00:30:00"_s);
    QCOMPARE(spokenName(editor.productDetail("txtTemp1")), u"Upper Temperature: 200°F"_s);
    QCOMPARE(spokenName(editor.productDetail("txtTimerColor")), u"Timer Color: dark red, #700000"_s);
    ui::clickRow(editor.products(), 1);
    QCOMPARE(spokenName(editor.productDetail("txtName")), u"Name: Chili"_s);
    QCOMPARE(spokenName(editor.productDetail("txtTimerColor")), u"Timer Color: No color"_s);
}

void TestSpoken::nothingSelectedIsNotRead()
{
    OpenEditor editor(colouredMenu());
    ui::clickRow(editor.products(), 0);
    ui::click(*editor, "btnSelectMultiProduct");
    for (const char *value : {"txtName", "txtHoldTime", "txtTimerColor"})
        QCOMPARE(spokenName(editor.productDetail(value)), QString());
}

void TestSpoken::rowsTellWhatTheyHold()
{
    OpenEditor editor(colouredMenu());
    QCOMPARE(spokenDescription(editor.products(), 1), settings);
    QCOMPARE(spokenDescription(editor.groups(), 0), u"200°F / 200°F"_s);
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
    QCOMPARE(spokenDescription(ui::get<QListWidget>(*editor, "listWidgetMembers"), 1), settings);
}

void TestSpoken::rowsOfOneTemperature()
{
    OpenEditor editor(colouredMenu(productedit::zpv(productedit::celsius())));
    QCOMPARE(spokenDescription(editor.products(), 0), u"93°C, Holding Time: 00:30:00"_s);
}

// A product that is added meanwhile refills the list, in which the mode goes on.
void TestSpoken::multipleSelectionIsTold()
{
    OpenEditor editor(colouredMenu());
    Heard heard;
    ui::click(*editor, "btnSelectMultiProduct");
    QVERIFY(heard.take().contains(u"name btnSelectMultiProduct: Cancel Selection"_s));
    ui::clickRow(editor.products(), 1);
    QCOMPARE(marksIn(heard), QStringList{u"check listWidgetProducts/1: on"_s});
    QTest::keyClick(&editor.products(), Qt::Key_Space);
    QTRY_COMPARE(editor.products().item(1)->checkState(), Qt::Unchecked); // keys are passed by the bus
    QCOMPARE(marksIn(heard), QStringList{u"check listWidgetProducts/1: off"_s});
    const QString mode = u"Multiple selection: Space marks rows."_s;
    QCOMPARE(editor.products().accessibleDescription(), mode);
    editor->loadProducts();
    QCOMPARE(editor.products().accessibleDescription(), mode);
    (void)heard.take();
    QTest::keyClick(&editor.products(), Qt::Key_Escape);
    QTRY_COMPARE(editor.products().accessibleDescription(), QString());
    const QStringList left = heard.take();
    QVERIFY(left.contains(u"name btnSelectMultiProduct: Multiple Selection"_s));
    QVERIFY(left.contains(u"description listWidgetProducts: "_s));
}

void TestSpoken::pickersRowsTellWhatTheyHold()
{
    OpenBins editor(colouredMenu());
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([](AssignDaypartItem &dialog) {
        auto &list = ui::get<QListWidget>(dialog, "listWidgetProducts");
        REQUIRE_EQUAL(spokenDescription(list, 0), settings);
        REQUIRE_EQUAL(spokenDescription(list, 2), u"200°F / 200°F"_s);
        ui::clickRow(list, 1);
        REQUIRE_EQUAL(spokenName(ui::get<QLabel>(dialog, "txtName")), u"Name: Chili"_s);
        ui::click(dialog, "btnCancel");
    });
    ui::click(editor.button(0, 0));
}

void TestSpoken::groupEditorTellsWhatItHolds()
{
    OpenEditor editor(groupedit::menuWith(groupedit::meats({1, 77, 4})));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        REQUIRE_EQUAL(spokenDescription(groupedit::allProducts(dialog), 0), settings);
        REQUIRE_EQUAL(spokenDescription(groupedit::allProducts(dialog), 2),
                      u"210°F / 200°F, Holding Time: 00:30:00. "
                      "Does not fit: 210 °F / 200 °F, this group holds 200 °F / 200 °F"_s);
        REQUIRE_EQUAL(spokenDescription(groupedit::members(dialog), 1), settings);
        REQUIRE_EQUAL(spokenName(ui::get<QLabel>(dialog, "txtTemp1")), u"Upper Temperature: 200°F"_s);
        groupedit::cancel(dialog);
    });
}

void TestSpoken::demandOfTheFirstMemberIsTold()
{
    OpenEditor editor(groupedit::menuWith(groupedit::emptyGroup()));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        Heard heard;
        groupedit::add(dialog, 0);
        REQUIRE_EQUAL(heard.take().filter(u"alert lblDemand: Needs 200 °F / 200 °F"_s).size(), 1);
        groupedit::add(dialog, 1);
        REQUIRE_EQUAL(heard.take().filter(u"alert lblDemand"_s).size(), 0);
        groupedit::cancel(dialog);
    });
}

// The user may also try to take the mark off the default member, which leaves it where it is.
void TestSpoken::defaultMemberIsTold()
{
    OpenEditor editor(groupedit::menuWith(groupedit::meats({1, 2, 4})));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        ui::clickRow(groupedit::members(dialog), 2);
        Heard heard;
        ui::clickRowBox(groupedit::members(dialog), 2);
        REQUIRE_EQUAL(marksIn(heard), (QStringList{u"check listWidgetGroupProducts/0: off"_s,
                                                   u"check listWidgetGroupProducts/2: on"_s}));
        ui::clickRowBox(groupedit::members(dialog), 2);
        REQUIRE_EQUAL(marksIn(heard), QStringList{u"check listWidgetGroupProducts/2: on"_s});
        groupedit::remove(dialog, 2);
        REQUIRE_EQUAL(marksIn(heard).last(), u"check listWidgetGroupProducts/1: on"_s);
        groupedit::cancel(dialog);
    });
}

void TestSpoken::removalModeIsTold()
{
    HoldBins editor(bins::menuOf(u"KTR24"_s, {2, 0, 2}));
    const QString first = u"check btnDaypartSelect0_0: "_s;
    const QString third = u"check btnDaypartSelectB0_0: "_s;
    Heard heard;
    editor.press(0, 0);
    QTRY_VERIFY(editor.isRemoving());
    editor.release();
    const QStringList entering = heard.take();
    QVERIFY(entering.contains(u"alert lblDaypartHint: Choose the bins to clear, then press Remove."_s));
    QVERIFY(entering.contains(first + u"on"_s));
    ui::click(editor.button(0, 2));
    QCOMPARE(marksIn(heard), QStringList{third + u"on"_s});
    ui::click(editor.button(0, 2));
    QCOMPARE(marksIn(heard), QStringList{third + u"off"_s});
    ui::click(*editor, "btnDaypartRemove");
    const QStringList leaving = heard.take();
    QVERIFY(leaving.contains(first + u"off"_s));
    QVERIFY(leaving.contains(u"name btnDaypartSelect0_0: Row 1, Bin 1: Empty"_s));
    QVERIFY(leaving.filter(u"alert lblDaypartHint: Click a bin"_s).size() == 1);
}

void TestSpoken::otherDaypartIsTold()
{
    OpenBins editor(bins::menuOf(u"KTR24"_s, {2}, {1}));
    Heard heard;
    editor.selector().setCurrentIndex(1);
    const QStringList told = heard.take();
    QVERIFY(told.contains(u"value comboDaypartSelect: Evening"_s));
    QVERIFY(told.contains(u"name btnDaypartSelect0_0: Row 1, Bin 1: Third"_s));
}

void TestSpoken::savingIsToldEachTime()
{
    OpenEditor editor(colouredMenu());
    Heard heard;
    for (int time = 0; time < 2; ++time) {
        (void)editor.saved();
        const QStringList told = heard.take();
        QCOMPARE(Heard::countOf(told, u"alert lblSaved: Saved"_s), 1);
        QCOMPARE(Heard::countOf(told, u"name lblSaved: Saved"_s), 1);
    }
}

void TestSpoken::firstChangeIsTold()
{
    OpenEditor editor(colouredMenu());
    (void)editor.saved();
    const auto rename = [&editor](const QString &name) {
        productedit::edit(editor, [name](ProductEdit &dialog, ModalAnswers &) {
            ui::get<QLineEdit>(dialog, "txtName").setText(name);
            productedit::save(dialog);
        });
    };
    const QString changed = u"alert lblSaved: Changed since the last save"_s;
    Heard heard;
    rename(u"Ham"_s);
    QCOMPARE(Heard::countOf(heard.take(), changed), 1);
    rename(u"Eggs"_s);
    QCOMPARE(Heard::countOf(heard.take(), changed), 0);
}

void TestSpoken::colorIsTold()
{
    OpenEditor editor(colouredMenu());
    productedit::edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        auto &button = ui::get<QPushButton>(dialog, "btnTimerColor");
        REQUIRE_EQUAL(button.accessibleDescription(), u"dark red, #700000"_s);
        answers.expect<TimerColorPicker>(
            [](TimerColorPicker &picker) { ui::click(*picker.findChildren<QPushButton *>().last()); });
        Heard heard;
        ui::click(button);
        REQUIRE(heard.take().contains(u"description btnTimerColor: white, #ffffff"_s));
        productedit::cancel(dialog);
    });
}

void TestSpoken::colorsHaveNames()
{
    TimerColorPicker picker;
    const QList<QPushButton *> buttons = picker.findChildren<QPushButton *>();
    QCOMPARE(spokenName(*buttons[0]), u"No color"_s);
    QCOMPARE(spokenName(*buttons[1]), u"dark red, #700000"_s);
    picker.setCurrent(u"#700000"_s);
    QCOMPARE(buttons[1]->accessibleDescription(), u"Current"_s);
    QCOMPARE(buttons[0]->accessibleDescription(), QString());
    for (qsizetype index = 1; index < buttons.size(); ++index)
        QCOMPARE(spokenName(*buttons[index]),
                 holding::colorWords(holding::timerPalette()[std::size_t(index)]));
}

QTEST_MAIN(TestSpoken)
#include "tst_spoken.moc"
