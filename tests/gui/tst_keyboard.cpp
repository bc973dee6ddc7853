// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QLineEdit>

#include "holding/assigndaypartitem.h"
#include "tests/gui/editgroup.h"
#include "tests/gui/editproduct.h"
#include "tests/gui/edittimerbarproduct.h"
#include "tests/gui/holdbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/program.h"
#include "tests/support/warnings.h"
#include "tests/support/windowmenu.h"
#include "widgets/binbutton.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;
using ui::hasFocus;

/// Working without a mouse in the real editors.
class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newAndOpenGiveTheListTheFocus_data();
    void newAndOpenGiveTheListTheFocus();
    void deleteGivesTheListTheFocus_data();
    void deleteGivesTheListTheFocus();
    void wrongEntryGetsTheFocus_data();
    void wrongEntryGetsTheFocus();
    void wrongEntryOfTimerBarGetsTheFocus();
    void wrongGroupGetsTheFocus();
    void groupIsMadeByKeyboard();
    void enterSelectsInThePicker();
    void membersOfAGroupCannotBeChanged();
    void binsAreReachedByArrows();
    void removalLeadsBackToTheBins();
};

void TestKeyboard::newAndOpenGiveTheListTheFocus_data()
{
    QTest::addColumn<Line>("line");
    QTest::addColumn<bool>("open");
    for (const Line line : {Line::Holding, Line::TimerBar}) {
        for (const bool open : {false, true})
            QTest::addRow("%s, %s", qPrintable(namesOf(line).chooser), open ? "Open" : "New") << line << open;
    }
}

void TestKeyboard::newAndOpenGiveTheListTheFocus()
{
    QFETCH(const Line, line);
    QFETCH(const bool, open);
    Program program;
    const bool holding = line == Line::Holding;
    const QByteArray bytes = holding ? windowmenu::bytes() : baconHamChili().bytes();
    const QMdiSubWindow *subWindow =
        open ? program.open(holding ? u"menu.json"_s : u"menu.cbr"_s, bytes) : program.newMenu(line);
    QVERIFY(subWindow);
    auto &list = ui::get<QListWidget>(*subWindow, "listWidgetProducts");
    QVERIFY(hasFocus(list));
    QVERIFY(list.selectedItems().isEmpty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(numberedrows::selectedRow(&list), 0);
}

void TestKeyboard::deleteGivesTheListTheFocus_data()
{
    QTest::addColumn<bool>("several");
    QTest::newRow("one") << false;
    QTest::newRow("several") << true;
}

void TestKeyboard::deleteGivesTheListTheFocus()
{
    QFETCH(const bool, several);
    const QString question = several ? u"Delete all selected products?"_s : u"Delete selected product?"_s;
    const auto deleteFrom = [&](QWidget &editor) {
        auto &list = ui::get<QListWidget>(editor, "listWidgetProducts");
        if (several)
            ui::click(editor, "btnSelectMultiProduct");
        ui::clickRow(list, 1);
        ModalAnswers answers;
        answers.expectBox(ModalAnswers::deleteQuestion(question), QMessageBox::Yes);
        auto &button = ui::get<QPushButton>(editor, "btnDeleteProduct");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        ui::activate(editor);
        QVERIFY(hasFocus(list));
    };
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    editor.showTab(0);
    deleteFrom(*editor);
    OpenTimerBar timerBar(baconHamChili());
    deleteFrom(*timerBar);
}

void TestKeyboard::wrongEntryGetsTheFocus_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::newRow("id") << QByteArray("numProductId") << u"2"_s << u"Product Id is duplicated!"_s;
    QTest::newRow("name") << QByteArray("txtName") << QString() << u"Product name is empty!"_s;
    QTest::newRow("hold time") << QByteArray("timeHoldTime") << u"0001"_s
                               << u"Invalid hold time. Minimum value is 6 minutes!"_s;
    QTest::newRow("alert time") << QByteArray("timeWarningTime") << u"2000"_s
                                << u"Invalid cook more alert time. Value must be less than hold time!"_s;
    QTest::newRow("reset time") << QByteArray("timeResetTime") << u"0100"_s << u"Invalid reset time!"_s;
}

void TestKeyboard::wrongEntryGetsTheFocus()
{
    QFETCH(const QByteArray, input);
    QFETCH(const QString, typed);
    QFETCH(const QString, message);
    OpenEditor editor(productedit::menuWith(samplefile::headerWithAllSwitches()));
    productedit::edit(editor, [&](ProductEdit &dialog, ModalAnswers &answers) {
        auto &field = ui::get<QWidget>(dialog, input.constData());
        ui::type(field, typed);
        ui::get<QWidget>(dialog, "btnSave").setFocus();
        productedit::saveRefused(dialog, answers, message);
        ui::activate(dialog);
        REQUIRE(hasFocus(field));
        auto *line = qobject_cast<QLineEdit *>(&field);
        if (!line)
            line = field.findChild<QLineEdit *>();
        REQUIRE_EQUAL(line->selectedText(), line->text());
        if (qobject_cast<QTimeEdit *>(&field)) {
            QTest::keyClicks(&field, u"0010"_s); // in place of the wrong time
            REQUIRE_EQUAL(productedit::timeIn(dialog, input.constData()), QTime(0, 10));
        }
        productedit::cancel(dialog);
    });
}

void TestKeyboard::wrongEntryOfTimerBarGetsTheFocus()
{
    TimerBarProductEditing editing;
    for (const auto &[input, message] : {std::pair{"txtShortName", u"Product short name is empty!"_s},
                                         std::pair{"txtProductName", u"Product name is empty!"_s}}) {
        ui::type(*editing.dialog, input, {});
        editing.saveRefused(message);
        QVERIFY(hasFocus(editing.get<QWidget>(input)));
    }
    ui::type(*editing.dialog, "txtShortName", u"BACN"_s);
    ui::type(*editing.dialog, "txtProductName", u"Bacon"_s);
    editing.enterTime("timeWarningTime", 3, 0);
    editing.saveRefused(u"Invalid cook more alert time. Value must be less than hold time!"_s);
    QVERIFY(hasFocus(editing.get<QWidget>("timeWarningTime")));
    editing.enterTime("timeHoldTime", 9, 0);
    editing.saveRefused(u"Invalid hold time. Maximum value is 8 hours!"_s);
    QVERIFY(hasFocus(editing.get<QWidget>("timeHoldTime")));
    QCOMPARE(editing.get<QTimeEdit>("timeHoldTime").findChild<QLineEdit *>()->selectedText(), u"09:00"_s);
}

void TestKeyboard::wrongGroupGetsTheFocus()
{
    OpenEditor editor(groupedit::menuWith(groupedit::emptyGroup()));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &answers) {
        answers.expectBox(ModalAnswers::entryFault(u"Product list is empty!"_s), QMessageBox::Close);
        groupedit::save(dialog);
        ui::activate(dialog);
        REQUIRE(hasFocus(groupedit::allProducts(dialog)));
        auto &name = ui::get<QLineEdit>(dialog, "txtName");
        ui::type(name, {});
        ui::get<QWidget>(dialog, "btnSave").setFocus();
        answers.expectBox(ModalAnswers::entryFault(u"Group name is empty!"_s), QMessageBox::Close);
        groupedit::save(dialog);
        ui::activate(dialog);
        REQUIRE(hasFocus(name));
        groupedit::cancel(dialog);
    });
}

// Gravy, the third row, does not fit the others.
void TestKeyboard::groupIsMadeByKeyboard()
{
    OpenEditor editor(groupedit::menuWith(groupedit::emptyGroup()));
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        QListWidget &all = groupedit::allProducts(dialog);
        QListWidget &members = groupedit::members(dialog);
        all.setFocus();
        QTest::keyClick(&all, Qt::Key_Down);
        for (const int next : {1, 3, 3}) { // the last one stays, as nothing is left behind it
            QTest::keyClick(&all, Qt::Key_Return);
            QVERIFY(hasFocus(all));
            QCOMPARE(numberedrows::selectedRow(&all), next);
        }
        QCOMPARE(groupedit::shownMembers(dialog),
                 (QStringList{u"  1 Bacon*"_s, u"  2 Chili"_s, u"  3 Ham"_s}));
        members.setFocus();
        QTest::keyClick(&members, Qt::Key_End);
        QTest::keyClick(&members, Qt::Key_Space);
        QTest::keyClick(&members, Qt::Key_Up);
        QTest::keyClick(&members, Qt::Key_Return);
        QVERIFY(hasFocus(members));
        QCOMPARE(groupedit::shownMembers(dialog), (QStringList{u"  1 Bacon"_s, u"  2 Ham*"_s}));
        auto &add = ui::get<QPushButton>(dialog, "btnAddProduct");
        ui::clickRow(all, 1);
        ui::click(add);
        QVERIFY(hasFocus(all));
        groupedit::save(dialog);
    });
    QCOMPARE(groupedit::savedMembers(editor), (QList<int>{1, 4, 2}));
}

void TestKeyboard::enterSelectsInThePicker()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([](AssignDaypartItem &picker) {
        auto &list = ui::get<QListWidget>(picker, "listWidgetProducts");
        QTest::keyClick(&list, Qt::Key_Return); // nothing is selected yet
        REQUIRE(picker.isVisible());
        QTest::keyClicks(&list, u"half"_s);
        QTest::keyClick(&list, Qt::Key_Return);
    });
    editor.button(1, 1).setFocus();
    QTest::keyClick(&editor.button(1, 1), Qt::Key_Space);
    QCOMPARE(editor.savedBins(0), (QList<int>{0, 0, 0, 2}));
    ui::activate(*editor);
    QVERIFY(hasFocus(editor.button(1, 1)));
}

void TestKeyboard::membersOfAGroupCannotBeChanged()
{
    OpenBins editor(bins::menuOf(u"KTR22"_s, {}));
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
    const QJsonObject before = editor.saved();
    auto &members = ui::get<QListWidget>(*editor, "listWidgetMembers");
    members.setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Return, Qt::Key_H})
        QTest::keyClick(&members, key);
    QCOMPARE(editor.saved(), before);
    QVERIFY(members.selectedItems().isEmpty());
}

// "Whole" covers the upper row of two zones.
void TestKeyboard::binsAreReachedByArrows()
{
    OpenBins editor(bins::menuOf(u"KTR24"_s, {4}));
    editor.selector().setFocus();
    QWidget *focus = nullptr;
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(editor->focusWidget(), key);
        focus = editor->focusWidget();
    };
    while (focus != &editor.button(0, 0))
        press(Qt::Key_Tab);
    press(Qt::Key_Right);
    QCOMPARE(focus, &editor.button(0, 2));
    press(Qt::Key_Down);
    QCOMPARE(focus, &editor.button(1, 2));
    press(Qt::Key_Left);
    QCOMPARE(focus, &editor.button(1, 1));
    press(Qt::Key_Up);
    QCOMPARE(focus, &editor.button(0, 0));
    press(Qt::Key_Down);
    QCOMPARE(focus, &editor.button(1, 1));
    press(Qt::Key_Tab);
    QVERIFY(!qobject_cast<BinButton *>(focus));
    press(Qt::Key_Backtab);
    QCOMPARE(focus, &editor.button(1, 1));
    press(Qt::Key_Backtab);
    QVERIFY(!qobject_cast<BinButton *>(focus));
}

void TestKeyboard::removalLeadsBackToTheBins()
{
    HoldBins editor(bins::menuOf(u"KTR22"_s, {2, 2, 2}));
    for (const char *button : {"btnCancelDaypartRemove", "btnDaypartRemove"}) {
        editor.button(0, 1).setFocus();
        editor.holdSpace();
        REQUIRE_SOON(editor.isRemoving());
        editor.releaseSpace();
        QWidget &leaving = editor.widget(button);
        leaving.setFocus();
        QTest::keyClick(&leaving, Qt::Key_Space);
        QVERIFY(!editor.isRemoving());
        QVERIFY(hasFocus(editor.button(0, 1)));
    }
    QCOMPARE(editor.savedBins(0), (QList<int>{2, 0, 2, 0}));
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
