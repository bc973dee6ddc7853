// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCheckBox>
#include <QLineEdit>

#include "holding/daypartedit.h"
#include "tests/gui/openbins.h"
#include "tests/support/languages.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/slotlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

/// Adding, naming, deleting and switching day parts.
class TestDayparts : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void selectorShowsTheFirst();
    void selectorSwitches();
    void inUse();
    void nameDialog();
    void add();
    void addNeedsAName();
    void addUpToTen();
    void duplicate_data();
    void duplicate();
    void duplicateUpToTen();
    void edit();
    void editNeedsAName();
    void cancelChangesNothing_data();
    void cancelChangesNothing();
    void deleteMovesTheLaterOnes();
    void deleteAsks();
    void deleteDownToOne();
    void deletedPlaceIsForgotten();
    void menuWithoutDayparts();
    void menuWithOneDaypart();
};

namespace {

samplefile::Menu menuWith(int dayparts)
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {});
    menu.layout = {};
    for (int i = 1; i <= dayparts; ++i) {
        QJsonObject daypart = samplefile::daypart(u"P%1"_s.arg(i), {i, i, i, i});
        daypart.insert(u"inUse"_s, i % 2 != 0);
        menu.layout.append(daypart);
    }
    return menu;
}

QJsonArray savedLayout(OpenBins &editor)
{
    return editor.saved().value(u"layout"_s).toArray();
}

// What a name dialog is given; null cancels.
void expectName(ModalAnswers &answers, const QString &shown, const QString &name)
{
    answers.expect<DaypartEdit>([shown, name](DaypartEdit &dialog) {
        REQUIRE_EQUAL(ui::get<QLineEdit>(dialog, "txtName").text(), shown);
        if (name.isNull()) {
            ui::click(dialog, "btnCancel");
            return;
        }
        ui::type(dialog, "txtName", name);
        ui::click(dialog, "btnSave");
    });
}

void add(OpenBins &editor, const QString &name)
{
    ModalAnswers answers;
    expectName(answers, {}, name);
    ui::click(*editor, "btnAddDaypart");
}

void remove(OpenBins &editor, const QString &name)
{
    ui::choose(*editor, "comboDaypartSelect", name);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected daypart?"_s), QMessageBox::Yes);
    ui::click(*editor, "btnDeleteDaypart");
}

QCheckBox &inUseBox(OpenBins &editor)
{
    return ui::get<QCheckBox>(*editor, "checkBoxDaypartInUse");
}

} // namespace

void TestDayparts::selectorShowsTheFirst()
{
    OpenBins editor(menuWith(3));
    QCOMPARE(editor.dayparts(), u"P1* P2 P3"_s);
    QVERIFY(inUseBox(editor).isChecked());
    QCOMPARE(editor.button(1, 1).text(), u"Third"_s);
}

void TestDayparts::selectorSwitches()
{
    OpenBins editor(menuWith(3));
    const QJsonObject before = editor.saved();
    ui::choose(*editor, "comboDaypartSelect", u"P2"_s);
    QVERIFY(!inUseBox(editor).isChecked());
    QCOMPARE(editor.button(0, 0).text(), u"Half"_s);
    ui::choose(*editor, "comboDaypartSelect", u"P3"_s);
    QVERIFY(inUseBox(editor).isChecked());
    QCOMPARE(editor.button(0, 0).text(), u"Most"_s);
    QCOMPARE(editor.saved(), before);
}

void TestDayparts::inUse()
{
    OpenBins editor(menuWith(3));
    ui::choose(*editor, "comboDaypartSelect", u"P2"_s);
    ui::click(inUseBox(editor));
    QVERIFY(savedLayout(editor).at(1).toObject().value(u"inUse"_s).toBool());
    ui::click(inUseBox(editor));
    QVERIFY(!savedLayout(editor).at(1).toObject().value(u"inUse"_s).toBool());
    ui::choose(*editor, "comboDaypartSelect", u"P1"_s);
    ui::click(inUseBox(editor));
    for (const int index : {0, 1, 2})
        QCOMPARE(savedLayout(editor).at(index).toObject().value(u"inUse"_s).toBool(), index == 2);
}

void TestDayparts::nameDialog()
{
    QCOMPARE(ownSlots(DaypartEdit::staticMetaObject),
             (QStringList{u"on_btnCancel_clicked()"_s, u"on_btnSave_clicked()"_s}));
    DaypartEdit dialog({u"Brunch"_s, u"Almuerzo"_s});
    QCOMPARE(dialog.windowTitle(), u"Edit Day Part"_s);
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    ui::show(dialog);
    QCOMPARE(ui::get<QLineEdit>(dialog, "txtName").text(), u"Brunch"_s);
    QCOMPARE(dialog.names(), (QStringList{u"Brunch"_s, u"Almuerzo"_s}));
    ui::type(dialog, "txtName", u" Tea & Cake "_s);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.names(), inEveryLanguage(u" Tea & Cake "_s));
    const DaypartEdit nameless{QStringList()};
    QVERIFY(ui::get<QLineEdit>(nameless, "txtName").text().isEmpty());
}

void TestDayparts::add()
{
    OpenBins editor(menuWith(2));
    ui::choose(*editor, "comboDaypartSelect", u"P2"_s);
    ::add(editor, u"Brunch"_s);
    QCOMPARE(editor.dayparts(), u"P1 P2 Brunch*"_s);
    QVERIFY(!inUseBox(editor).isChecked());
    QVERIFY(editor.button(0, 0).text().isEmpty());
    const QJsonObject saved = savedLayout(editor).at(2).toObject();
    QCOMPARE(saved.value(u"daypartName"_s).toObject(), samplefile::names(u"Brunch"_s));
    QCOMPARE(saved.value(u"inUse"_s).toBool(), false);
    QCOMPARE(editor.savedBins(2), QList<int>(4, 0));
    ui::click(inUseBox(editor));
    QVERIFY(savedLayout(editor).at(2).toObject().value(u"inUse"_s).toBool());
    QVERIFY(!savedLayout(editor).at(1).toObject().value(u"inUse"_s).toBool());
}

void TestDayparts::addNeedsAName()
{
    OpenBins editor(menuWith(2));
    ModalAnswers answers;
    answers.expect<DaypartEdit>([&answers](DaypartEdit &dialog) {
        answers.expectBox(ModalAnswers::entryFault(u"Product name is empty!"_s), QMessageBox::Close);
        ui::click(dialog, "btnSave");
        QVERIFY(dialog.isHidden());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    });
    ui::click(*editor, "btnAddDaypart");
    QCOMPARE(editor.dayparts(), u"P1* P2"_s);
    QCOMPARE(savedLayout(editor).size(), 2);
}

void TestDayparts::addUpToTen()
{
    OpenBins editor(menuWith(9));
    ::add(editor, u"Last"_s);
    QCOMPARE(editor.selector().count(), 10);
    QCOMPARE(editor.selector().currentIndex(), 9);
    {
        ModalAnswers answers;
        answers.expectBox(ModalAnswers::refusal(u"Cannot add dayparts. Maximum dayparts reached!"_s),
                          QMessageBox::Close);
        ui::click(*editor, "btnAddDaypart");
    }
    QCOMPARE(savedLayout(editor).size(), 10);
    remove(editor, u"P1"_s);
    ::add(editor, u"Again"_s);
    QCOMPARE(savedLayout(editor).size(), 10);
}

void TestDayparts::duplicate_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<bool>("inUse");
    QTest::addColumn<QString>("bin");
    QTest::newRow("the first, in use") << 0 << true << u"Third"_s;
    QTest::newRow("another, not in use") << 1 << false << u"Half"_s;
}

void TestDayparts::duplicate()
{
    QFETCH(const int, source);
    OpenBins editor(menuWith(3));
    const QString name = editor.selector().itemText(source);
    ui::choose(*editor, "comboDaypartSelect", name);
    ModalAnswers answers;
    expectName(answers, name, u"Sunday"_s);
    ui::click(*editor, "btnDuplicateDaypart");
    QCOMPARE(editor.dayparts(), u"P1 P2 P3 Sunday*"_s);
    QTEST(inUseBox(editor).isChecked(), "inUse");
    QTEST(editor.button(0, 0).text(), "bin");
    QJsonArray expected = menuWith(3).layout;
    QJsonObject copy = expected.at(source).toObject();
    copy.insert(u"daypartName"_s, samplefile::names(u"Sunday"_s));
    expected.append(copy);
    QCOMPARE(savedLayout(editor), expected);
}

void TestDayparts::duplicateUpToTen()
{
    OpenBins editor(menuWith(10));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::refusal(u"Cannot add dayparts. Maximum dayparts reached!"_s),
                      QMessageBox::Close);
    ui::click(*editor, "btnDuplicateDaypart");
    QCOMPARE(savedLayout(editor), menuWith(10).layout);
}

void TestDayparts::edit()
{
    OpenBins editor(menuWith(3));
    ui::choose(*editor, "comboDaypartSelect", u"P2"_s);
    ModalAnswers answers;
    expectName(answers, u"P2"_s, u"Noon"_s);
    ui::click(*editor, "btnEditDaypart");
    QCOMPARE(editor.dayparts(), u"P1 Noon* P3"_s);
    QCOMPARE(editor.button(0, 0).text(), u"Half"_s);
    QJsonArray expected = menuWith(3).layout;
    QJsonObject renamed = expected.at(1).toObject();
    renamed.insert(u"daypartName"_s, samplefile::names(u"Noon"_s));
    expected.replace(1, renamed);
    QCOMPARE(savedLayout(editor), expected);
}

void TestDayparts::editNeedsAName()
{
    OpenBins editor(menuWith(2));
    ModalAnswers answers;
    answers.expect<DaypartEdit>([&answers](DaypartEdit &dialog) {
        ui::type(dialog, "txtName", {});
        answers.expectBox(ModalAnswers::entryFault(u"Product name is empty!"_s), QMessageBox::Close);
        ui::click(dialog, "btnSave");
    });
    ui::click(*editor, "btnEditDaypart");
    QCOMPARE(editor.dayparts(), u"P1* P2"_s);
    QCOMPARE(savedLayout(editor), menuWith(2).layout);
}

void TestDayparts::cancelChangesNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("escape");
    QTest::newRow("Add, Cancel") << QByteArray("btnAddDaypart") << false;
    QTest::newRow("Add, Escape") << QByteArray("btnAddDaypart") << true;
    QTest::newRow("Duplicate, Cancel") << QByteArray("btnDuplicateDaypart") << false;
    QTest::newRow("Duplicate, Escape") << QByteArray("btnDuplicateDaypart") << true;
    QTest::newRow("Edit, Cancel") << QByteArray("btnEditDaypart") << false;
    QTest::newRow("Edit, Escape") << QByteArray("btnEditDaypart") << true;
}

void TestDayparts::cancelChangesNothing()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, escape);
    OpenBins editor(menuWith(2));
    ui::choose(*editor, "comboDaypartSelect", u"P2"_s);
    ModalAnswers answers;
    answers.expect<DaypartEdit>([escape](DaypartEdit &dialog) {
        ui::type(dialog, "txtName", u"Other"_s);
        if (escape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            ui::click(dialog, "btnCancel");
    });
    ui::click(*editor, button.constData());
    QCOMPARE(editor.dayparts(), u"P1 P2*"_s);
    QCOMPARE(savedLayout(editor), menuWith(2).layout);
}

void TestDayparts::deleteMovesTheLaterOnes()
{
    OpenBins editor(menuWith(4));
    remove(editor, u"P2"_s);
    QCOMPARE(editor.dayparts(), u"P1* P3 P4"_s);
    QCOMPARE(editor.button(0, 0).text(), u"Third"_s);
    QJsonArray expected = menuWith(4).layout;
    expected.removeAt(1);
    QCOMPARE(savedLayout(editor), expected);
    remove(editor, u"P4"_s);
    QCOMPARE(editor.dayparts(), u"P1* P3"_s);
    remove(editor, u"P1"_s);
    QCOMPARE(editor.dayparts(), u"P3*"_s);
    QCOMPARE(editor.button(0, 0).text(), u"Most"_s);
    QVERIFY(inUseBox(editor).isChecked());
}

void TestDayparts::deleteAsks()
{
    OpenBins editor(menuWith(3));
    ui::choose(*editor, "comboDaypartSelect", u"P2"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected daypart?"_s), QMessageBox::No);
    ui::click(*editor, "btnDeleteDaypart");
    answers.expectBoxEscaped(ModalAnswers::deleteQuestion(u"Delete selected daypart?"_s));
    ui::click(*editor, "btnDeleteDaypart");
    QVERIFY(answers.allAnswered());
    QCOMPARE(editor.dayparts(), u"P1 P2* P3"_s);
    QCOMPARE(savedLayout(editor), menuWith(3).layout);
}

void TestDayparts::deleteDownToOne()
{
    OpenBins editor(menuWith(3));
    QVERIFY(editor.widget("btnDeleteDaypart").isEnabled());
    remove(editor, u"P1"_s);
    QVERIFY(editor.widget("btnDeleteDaypart").isEnabled());
    remove(editor, u"P2"_s);
    QVERIFY(!editor.widget("btnDeleteDaypart").isEnabled());
    ::add(editor, u"Brunch"_s);
    QVERIFY(editor.widget("btnDeleteDaypart").isEnabled());
}

void TestDayparts::deletedPlaceIsForgotten()
{
    OpenBins editor(menuWith(3));
    remove(editor, u"P3"_s);
    ::add(editor, u"Brunch"_s);
    QCOMPARE(editor.savedBins(2), QList<int>(4, 0));
    QVERIFY(!savedLayout(editor).at(2).toObject().value(u"inUse"_s).toBool());
}

void TestDayparts::menuWithoutDayparts()
{
    OpenBins editor(menuWith(0));
    const ModalAnswers answers;
    QVERIFY(editor.dayparts().isEmpty());
    QVERIFY(!editor.widget("btnDeleteDaypart").isEnabled());
    QVERIFY(!editor.widget("btnDuplicateDaypart").isEnabled());
    QVERIFY(!inUseBox(editor).isChecked());
    editor->on_btnEditDaypart_clicked();
    editor->on_btnDeleteDaypart_clicked();
    editor->on_btnDaypartRemove_clicked();
    editor->on_checkBoxDaypartInUse_stateChanged(Qt::Checked);
    QVERIFY(savedLayout(editor).isEmpty());
}

void TestDayparts::menuWithOneDaypart()
{
    OpenBins none(menuWith(0));
    ::add(none, u"First"_s);
    QCOMPARE(none.dayparts(), u"First*"_s);
    ui::click(inUseBox(none));
    QVERIFY(savedLayout(none).at(0).toObject().value(u"inUse"_s).toBool());
    OpenBins one(menuWith(1));
    QVERIFY(!one.widget("btnDeleteDaypart").isEnabled());
    QVERIFY(one.widget("btnEditDaypart").isEnabled() && one.widget("btnAddDaypart").isEnabled());
}

QTEST_MAIN(TestDayparts)
#include "tst_dayparts.moc"
