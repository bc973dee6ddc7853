// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>
#include <QListWidget>
#include <QSpinBox>
#include <QTabWidget>

#include "tests/support/cbrbuilder.h"
#include "tests/support/program.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/require.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "tests/support/windowmenu.h"

using namespace Qt::StringLiterals;

namespace {

using Act = void (*)(Program &program);

QWidget &editor(Program &program)
{
    return *program.subWindow()->widget();
}

void showTab(Program &program, int tab)
{
    ui::get<QTabWidget>(editor(program), "tabWidget").setCurrentIndex(tab);
    QCoreApplication::sendPostedEvents(); // the layout follows
}

void clickRow(Program &program, const char *list, int row)
{
    ui::clickRow(ui::get<QListWidget>(editor(program), list), row);
}

void rename(Program &program, const char *button, const char *input, const QString &name)
{
    program.answers().expect<QDialog>([=](QDialog &dialog) {
        ui::type(dialog, input, name);
        ui::click(dialog, "btnSave");
    });
    ui::click(editor(program), button);
}

void confirmDelete(Program &program, const char *button, const QString &question)
{
    program.answers().expectBox(ModalAnswers::deleteQuestion(question), QMessageBox::Yes);
    ui::click(editor(program), button);
}

/// Chooses a row of the picker of a bin.
void assign(Program &program, const char *bin, int row)
{
    program.answers().expect<QDialog>([row](QDialog &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), row);
        ui::click(dialog, "btnSelect");
    });
    ui::click(editor(program), bin);
}

void removeFrom(Program &program, const char *bin)
{
    auto &button = ui::get<QPushButton>(editor(program), bin);
    QTest::mousePress(&button, Qt::LeftButton);
    REQUIRE_SOON(button.isChecked());
    QTest::mouseRelease(&button, Qt::LeftButton);
    ui::click(editor(program), "btnDaypartRemove");
}

void chooseCelsius(Program &program)
{
    program.answers().expect<QDialog>([](QDialog &dialog) {
        ui::click(dialog, "rbTempUnitC");
        ui::click(dialog, "btnAccept");
    });
    ui::click(editor(program), "btnConfig");
}

void addHoldingRows()
{
    QTest::newRow("holding: configure") << Line::Holding << Act(chooseCelsius);
    QTest::newRow("holding: edit a product") << Line::Holding << Act([](Program &program) {
        clickRow(program, "listWidgetProducts", 3);
        rename(program, "btnEditProduct", "txtName", u"Another"_s);
    });
    QTest::newRow("holding: add a product")
        << Line::Holding
        << Act([](Program &program) { rename(program, "btnAddProduct", "txtName", u"Another"_s); });
    QTest::newRow("holding: duplicate a product") << Line::Holding << Act([](Program &program) {
        clickRow(program, "listWidgetProducts", 3);
        rename(program, "btnDuplicateProduct", "txtName", u"Another"_s);
    });
    QTest::newRow("holding: delete a product") << Line::Holding << Act([](Program &program) {
        clickRow(program, "listWidgetProducts", 3);
        confirmDelete(program, "btnDeleteProduct", u"Delete selected product?"_s);
    });
    QTest::newRow("holding: edit a group") << Line::Holding << Act([](Program &program) {
        showTab(program, 1);
        clickRow(program, "listWidgetGroups", 0);
        rename(program, "btnEditGroup", "txtName", u"Another"_s);
    });
    QTest::newRow("holding: duplicate a group") << Line::Holding << Act([](Program &program) {
        showTab(program, 1);
        clickRow(program, "listWidgetGroups", 0);
        rename(program, "btnDuplicateGroup", "txtName", u"Another"_s);
    });
    QTest::newRow("holding: delete a group") << Line::Holding << Act([](Program &program) {
        showTab(program, 1);
        clickRow(program, "listWidgetGroups", 0);
        confirmDelete(program, "btnDeleteGroup", u"Delete selected group?"_s);
    });
}

void addDaypartRows()
{
    QTest::newRow("holding: put another product into a bin") << Line::Holding << Act([](Program &program) {
        showTab(program, 2);
        assign(program, "btnDaypartSelect1_0", 3);
    });
    QTest::newRow("holding: empty a bin by holding it") << Line::Holding << Act([](Program &program) {
        showTab(program, 2);
        removeFrom(program, "btnDaypartSelect0_0");
    });
    QTest::newRow("holding: add a day part") << Line::Holding << Act([](Program &program) {
        showTab(program, 2);
        rename(program, "btnAddDaypart", "txtName", u"Another"_s);
    });
    QTest::newRow("holding: duplicate a day part") << Line::Holding << Act([](Program &program) {
        showTab(program, 2);
        rename(program, "btnDuplicateDaypart", "txtName", u"Another"_s);
    });
    QTest::newRow("holding: rename a day part") << Line::Holding << Act([](Program &program) {
        showTab(program, 2);
        rename(program, "btnEditDaypart", "txtName", u"Another"_s);
    });
    QTest::newRow("holding: delete a day part") << Line::Holding << Act([](Program &program) {
        showTab(program, 2);
        confirmDelete(program, "btnDeleteDaypart", u"Delete selected daypart?"_s);
    });
    QTest::newRow("holding: take a day part out of use") << Line::Holding << Act([](Program &program) {
        showTab(program, 2);
        QTest::keyClick(&ui::get<QWidget>(editor(program), "checkBoxDaypartInUse"), Qt::Key_Space);
    });
}

void addLaneRows()
{
    QTest::newRow("lanes: number") << Line::Lanes << Act([](Program &program) {
        ui::choose(editor(program), "comboModelSelect", u"Quad Lane"_s);
    });
    QTest::newRow("lanes: temperature") << Line::Lanes << Act([](Program &program) {
        QTest::keyClick(&ui::get<QWidget>(editor(program), "numTemperature1"), Qt::Key_Up);
    });
    QTest::newRow("lanes: fan speed") << Line::Lanes << Act([](Program &program) {
        QTest::keyClick(&ui::get<QWidget>(editor(program), "numFanSpeed1"), Qt::Key_Up);
    });
}

void addTimerBarRows()
{
    QTest::newRow("Timer Bar: configure") << Line::TimerBar << Act(chooseCelsius);
    QTest::newRow("Timer Bar: edit a product") << Line::TimerBar << Act([](Program &program) {
        clickRow(program, "listWidgetProducts", 0);
        rename(program, "btnEditProduct", "txtProductName", u"Another"_s);
    });
    QTest::newRow("Timer Bar: duplicate a product") << Line::TimerBar << Act([](Program &program) {
        clickRow(program, "listWidgetProducts", 0);
        rename(program, "btnDuplicateProduct", "txtProductName", u"Another"_s);
    });
    QTest::newRow("Timer Bar: delete a product") << Line::TimerBar << Act([](Program &program) {
        clickRow(program, "listWidgetProducts", 0);
        confirmDelete(program, "btnDeleteProduct", u"Delete selected product?"_s);
    });
    QTest::newRow("Timer Bar: empty a bin in its picker") << Line::TimerBar << Act([](Program &program) {
        showTab(program, 1);
        assign(program, "btnDaypartSelect0_0", 0);
    });
    QTest::newRow("Timer Bar: copy bins") << Line::TimerBar << Act([](Program &program) {
        showTab(program, 1);
        program.answers().expect<QDialog>([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        program.answers().expectBox({.title = u"Copy Bins"_s,
                                     .text = u"Replace the bins of Breakfast with those of ChangeOver 1?"_s,
                                     .icon = QMessageBox::Question},
                                    QMessageBox::Yes);
        ui::click(editor(program), "btnCopyDaypart");
    });
    QTest::newRow("Timer Bar: empty a bin by holding it") << Line::TimerBar << Act([](Program &program) {
        showTab(program, 1);
        removeFrom(program, "btnDaypartSelect1_0");
    });
}

/// A menu as the program writes it, with an entry in its first bin.
QByteArray bytesOf(Line line)
{
    if (line == Line::Holding)
        return windowmenu::bytes();
    if (line == Line::Lanes)
        return namesOf(line).files.first().sample();
    cbr::Menu menu{.products = {{.name = "Bacon", .shortName = "BACN", .upper = 116, .lower = 116}}};
    menu.dayparts[0] = {0, 100, 100, 100};
    return menu.bytes();
}

QString stateOf(Program &program)
{
    QCoreApplication::sendPostedEvents(); // the layout follows
    const auto &label = ui::get<QLabel>(editor(program), "lblSaved");
    REQUIRE(label.height() >= label.heightForWidth(label.width()), label.text());
    return label.text();
}

} // namespace

Q_DECLARE_METATYPE(Act)

/// That each act which changes a menu says so.
class TestSavedEdits : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyEditSays_data();
    void everyEditSays();
    void importSays();
    void longNameOfAnImportKeepsTheWidth();
};

void TestSavedEdits::everyEditSays_data()
{
    QTest::addColumn<Line>("line");
    QTest::addColumn<Act>("act");
    addHoldingRows();
    addDaypartRows();
    addLaneRows();
    addTimerBarRows();
}

void TestSavedEdits::everyEditSays()
{
    QFETCH(const Line, line);
    QFETCH(const Act, act);
    Program program;
    const QString name =
        (line == Line::Lanes ? u"svrxconfig_a."_s : u"menu."_s) + namesOf(line).files.first().suffix;
    program.open(name, bytesOf(line));
    QCOMPARE(stateOf(program), u"Saved"_s);
    act(program);
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(stateOf(program), u"Changed since the last save"_s);
    program.save();
    QCOMPARE(stateOf(program), u"Saved"_s);
}

void TestSavedEdits::importSays()
{
    Program program;
    program.open(u"old.qhx"_s, qhx::sample().bytes());
    const QString imported = u"Imported from old.qhx. Check Configuration before you save."_s;
    QCOMPARE(stateOf(program), imported);
    chooseCelsius(program);
    QCOMPARE(stateOf(program), imported);
    program.expectSaveDialog(Line::Holding, Asking::Save, program.path(u"new.json"_s));
    program.save();
    QCOMPARE(stateOf(program), u"Saved"_s);
    program.save();
    chooseCelsius(program);
    QCOMPARE(stateOf(program), u"Saved"_s);
}

void TestSavedEdits::longNameOfAnImportKeepsTheWidth()
{
    Program program;
    program.open(u"old.qhx"_s, qhx::sample().bytes());
    const QSize size = editor(program).size();
    program.open(QString(200, u'W') + u".qhx"_s, qhx::sample().bytes());
    QCOMPARE(editor(program).size(), size);
    QVERIFY(stateOf(program).contains(u"\u2026"_s));
    QVERIFY(editor(program).windowTitle().contains(QString(200, u'W')));
}

QTEST_MAIN(TestSavedEdits)
#include "tst_saved_edits.moc"
