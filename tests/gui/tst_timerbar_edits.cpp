// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/timerbarlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace timerbarlist;

class TestTimerBarEdits : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void renamingKeepsTheBins();
    void savingUnchangedKeepsTheBins_data();
    void savingUnchangedKeepsTheBins();
    void newTemperatureEmptiesTheBins_data();
    void newTemperatureEmptiesTheBins();
    void newTemperatureOfAProductInNoBin();
    void lowTemperatureIsNoticedBeforeTheBins();
    void timesOfADayAndMoreStay();
    void doubleClickEdits_data();
    void doubleClickEdits();
    void cancelledEditChangesNothing();
    void deleteAsks_data();
    void deleteAsks();
    void deleteKeepsTheIds();
};

namespace {

ModalAnswers::Box leftTheDayparts()
{
    ModalAnswers::Box box =
        ModalAnswers::removalWarning(u"Product has been removed from daypart(s) assignemnts"_s);
    box.buttons = QMessageBox::Close;
    return box;
}

} // namespace

void TestTimerBarEdits::renamingKeepsTheBins()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 2, 100};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 0);
    open(editor, "btnEditProduct", [](TimerBarProductEdit &dialog) {
        ui::enterTime(dialog, "timeHoldTime", {2, 0});
        saveAsSoup(dialog);
    });
    QCOMPARE(ui::textsOf(editor.products()).constFirst(), u"  1 Soup"_s);
    QCOMPARE(editor.products().currentRow(), 0);
    QCOMPARE(editor.detail("ShortName"), u"SOUP"_s);
    QCOMPARE(editor.button("btnDaypartSelect1_0").text(), u"SOUP"_s);
    menu.products[0] = soup;
    menu.products[0].upper = menu.products[0].lower = 116;
    menu.products[0].holdMinutes = 120;
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarEdits::savingUnchangedKeepsTheBins_data()
{
    QTest::addColumn<int>("unit");
    QTest::newRow("Fahrenheit") << 0;
    QTest::newRow("Celsius, which shows 93 for 200 °F") << 1;
}

void TestTimerBarEdits::savingUnchangedKeepsTheBins()
{
    QFETCH(int, unit);
    cbr::Menu menu = baconHamChili(u"KTR22"_s, unit);
    menu.products[0].upper = menu.products[0].lower = 101; // 200 °F
    menu.dayparts[0] = {0, 100, 2, 0};
    menu.dayparts[4] = {100, 0};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 0);
    open(editor, "btnEditProduct", // no warning follows
         [](TimerBarProductEdit &dialog) { ui::click(dialog, "btnSave"); });
    QCOMPARE(editor.button("btnDaypartSelect1_0").text(), u"BACN"_s);
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarEdits::newTemperatureEmptiesTheBins_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("upper") << QByteArray("numTempUpper");
    QTest::newRow("lower") << QByteArray("numTempLower");
}

void TestTimerBarEdits::newTemperatureEmptiesTheBins()
{
    QFETCH(QByteArray, field);
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 0, 100};
    menu.dayparts[5] = {100, 0, 2, 1};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 0);
    ModalAnswers answers;
    answers.expect<TimerBarProductEdit>([&field](TimerBarProductEdit &dialog) {
        ui::type(dialog, field.constData(), u"216"_s);
        ui::click(dialog, "btnSave");
    });
    answers.expectBox(leftTheDayparts(), QMessageBox::Close);
    ui::click(*editor, "btnEditProduct");
    QCOMPARE(editor.button("btnDaypartSelect1_0").text(), QString());
    QCOMPARE(editor.button("btnDaypartSelect1_1").text(), u"HAM"_s);
    QCOMPARE(editor.products().currentRow(), 0);
    (field == "numTempUpper" ? menu.products[0].upper : menu.products[0].lower) = 117;
    menu.dayparts[0] = {100, 1, 100, 100};
    menu.dayparts[5] = {100, 100, 2, 1};
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarEdits::newTemperatureOfAProductInNoBin()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 100, 100};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 2);
    open(editor, "btnEditProduct", [](TimerBarProductEdit &dialog) { // no warning follows
        ui::type(dialog, "numTempUpper", u"200"_s);
        ui::click(dialog, "btnSave");
    });
    QCOMPARE(editor.detail("TempUpper"), u"200°F"_s);
    menu.products[2].upper = 101;
    QCOMPARE(editor.saved(), hex(menu));
}

void TestTimerBarEdits::lowTemperatureIsNoticedBeforeTheBins()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 100, 0};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 0);
    ModalAnswers answers;
    answers.expect<TimerBarProductEdit>([](TimerBarProductEdit &dialog) {
        ui::type(dialog, "numTempLower", u"154"_s);
        ui::click(dialog, "btnSave");
    });
    answers.expect<QMessageBox>([&editor](QMessageBox &box) {
        QCOMPARE(box.text(), u"Temperature values less than 155°F are supported in cabinet IO software "
                             "version 1.6.2 or newer"_s);
        QCOMPARE(editor.button("btnDaypartSelect1_0").text(), u"BACN"_s); // still there
        ui::click(*box.button(QMessageBox::Ok));
    });
    answers.expectBox(leftTheDayparts(), QMessageBox::Close);
    ui::click(*editor, "btnEditProduct");
    menu.products[0].lower = 55;
    menu.dayparts[0] = {100, 1, 100, 100};
    QCOMPARE(editor.saved(), hex(menu));
}

// Shown as a time of day, but not made one.
void TestTimerBarEdits::timesOfADayAndMoreStay()
{
    cbr::Menu menu = baconHamChili();
    menu.products[0].holdMinutes = 1470;
    menu.products[0].alertMinutes = 1445;
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 0);
    QCOMPARE(editor.detail("HoldTime"), u"00:30"_s);
    QCOMPARE(editor.detail("WarningTime"), u"00:05"_s);
    ModalAnswers answers;
    answers.expect<TimerBarProductEdit>([](TimerBarProductEdit &dialog) {
        ui::click(dialog, "btnSave");
        ui::activate(dialog);
        ui::click(dialog, "btnCancel");
    });
    answers.expectBox(ModalAnswers::entryFault(u"Invalid hold time. Maximum value is 8 hours!"_s),
                      QMessageBox::Close);
    ui::click(*editor, "btnEditProduct");
    QCOMPARE(editor.saved(), hex(menu));
}

// Ctrl takes the selection off a selected row; the row is meant all the same.
void TestTimerBarEdits::doubleClickEdits_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("plain") << Qt::KeyboardModifiers();
    QTest::newRow("with Ctrl") << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void TestTimerBarEdits::doubleClickEdits()
{
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    OpenTimerBar editor(baconHamChili());
    ModalAnswers answers;
    answers.expect<TimerBarProductEdit>(saveAsSoup);
    ui::clickRow(editor.products(), 2);
    ui::doubleClickRow(editor.products(), 2, modifiers);
    QVERIFY(answers.allAnswered());
    QCOMPARE(ui::textsOf(editor.products()).constLast(), u"  3 Soup"_s);
    QCOMPARE(editor.products().currentRow(), 2);
}

void TestTimerBarEdits::cancelledEditChangesNothing()
{
    OpenTimerBar editor(baconHamChili());
    ui::clickRow(editor.products(), 1);
    open(editor, "btnEditProduct", cancel);
    QCOMPARE(editor.saved(), hex(baconHamChili()));
    QCOMPARE(editor.detail("Name"), u"Ham Steak"_s);
}

void TestTimerBarEdits::deleteAsks_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("No") << false;
    QTest::newRow("Escape") << true;
}

void TestTimerBarEdits::deleteAsks()
{
    QFETCH(bool, escape);
    OpenTimerBar editor(baconHamChili());
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    const ModalAnswers::Box question = ModalAnswers::deleteQuestion(u"Delete selected product?"_s);
    if (escape)
        answers.expectBoxEscaped(question);
    else
        answers.expectBox(question, QMessageBox::No);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(editor.saved(), hex(baconHamChili()));
    QCOMPARE(editor.products().currentRow(), 1);
    QCOMPARE(enabledButtons(editor), u"AEDX"_s);
}

// The bins go on naming the others by their ids, which are no places in the file any more.
void TestTimerBarEdits::deleteKeepsTheIds()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 2, 2};
    menu.dayparts[3] = {1, 0, 0, 2};
    OpenTimerBar editor(menu);
    ui::clickRow(editor.products(), 0);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteProduct");
    QCOMPARE(ui::textsOf(editor.products()), (QStringList{u"  1 Ham Steak"_s, u"  2 Chili"_s}));
    QCOMPARE(ids(editor), (QList<int>{1, 2}));
    QVERIFY(editor.products().selectedItems().isEmpty());
    QCOMPARE(details(editor), QStringList(6, QString()));
    QCOMPARE(enabledButtons(editor), u"A..."_s);
    QCOMPARE(editor.button("btnDaypartSelect1_0").text(), QString());
    QCOMPARE(editor.button("btnDaypartSelect1_1").text(), u"HAM"_s);
    menu.products.removeFirst();
    menu.dayparts[0] = {100, 1, 2, 2};
    menu.dayparts[3] = {1, 100, 100, 2};
    QCOMPARE(editor.saved(), hex(menu));
}

QTEST_MAIN(TestTimerBarEdits)
#include "tst_timerbar_edits.moc"
