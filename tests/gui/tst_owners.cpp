// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFileDialog>
#include <QListWidget>
#include <QTabWidget>

#include "holding/configuration.h"
#include "holding/daypartedit.h"
#include "holding/groupedit.h"
#include "holding/menufile.h"
#include "holding/productedit.h"
#include "tests/support/cbrbuilder.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/samplefile.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarproductedit.h"

using namespace Qt::StringLiterals;

namespace {

/// The dialogs that come up, each told as "class, title, of its parent's class". All of them are escaped.
class Escaped
{
public:
    explicit Escaped(Program &program)
        : m_program(program)
    {
        program.answers().onShown([this](const QDialog &dialog) { m_shown.append(describe(dialog)); });
    }
    ~Escaped() { m_program.answers().onShown({}); }
    Q_DISABLE_COPY_MOVE(Escaped)

    void expect(int dialogs = 1)
    {
        for (int i = 0; i < dialogs; ++i)
            m_program.answers().expect<QDialog>(
                [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    }
    [[nodiscard]] QStringList shown() const { return m_shown; }
    [[nodiscard]] QStringList boxes() const { return m_shown.filter(u"QMessageBox"_s); }

private:
    static QString describe(const QDialog &dialog)
    {
        const QWidget *parent = dialog.parentWidget();
        return QLatin1StringView(dialog.metaObject()->className()) + u", "_s + dialog.windowTitle() +
               u", of "_s + (parent ? QString::fromLatin1(parent->metaObject()->className()) : u"nothing"_s);
    }

    Program &m_program;
    QStringList m_shown;
};

// Clicks buttons of the editor that was opened last; each opens a dialog.
void clickEach(Program &program, Escaped &escaped, const QList<const char *> &buttons)
{
    for (const char *button : buttons) {
        escaped.expect();
        ui::click(*program.subWindow(), button);
        ui::activate(program.window());
    }
}

void showTab(Program &program, int tab)
{
    ui::get<QTabWidget>(*program.subWindow(), "tabWidget").setCurrentIndex(tab);
}

samplefile::Menu holdingMenu()
{
    samplefile::Menu menu;
    menu.header = samplefile::headerWithAllSwitches();
    menu.products = {samplefile::product(1, u"Bacon"_s)};
    menu.groups = {samplefile::group(2, u"Meats"_s, {1})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1}), samplefile::daypart(u"Evening"_s, {})};
    return menu;
}

} // namespace

/// Which window each dialog belongs to, over which it stands and with which it goes, and in which folder the
/// file dialogs begin.
class TestOwners : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void ofTheMainWindow();
    void ofNewMenus();
    void ofAHoldingMenu();
    void ofAHoldingProduct();
    void ofATimerBarMenu();
    void boxesOfAHoldingMenu();
    void boxesOfATimerBarMenu();
    void ofClosing_data() { addLineRows(); }
    void ofClosing();
    void ofSaving_data() { addLineRows(); }
    void ofSaving();
    void saveAsBeginsInTheMenusFolder_data() { addLineRows(); }
    void saveAsBeginsInTheMenusFolder();
};

void TestOwners::ofTheMainWindow()
{
    Program program;
    Escaped escaped(program);
    for (const char *action : {"actionNew", "actionOpen"}) {
        escaped.expect();
        program.choose(action);
    }
    escaped.expect();
    ui::clickMenu(program.window(), "menuHelp", "actionAbout");
    QCOMPARE(escaped.shown(), (QStringList{u"SelectProductLine, Select Product Line, of MainWindow"_s,
                                           u"QFileDialog, Open JSON Menu, of MainWindow"_s,
                                           u"AboutApp, About..., of MainWindow"_s}));
}

void TestOwners::ofNewMenus()
{
    Program program;
    Escaped escaped(program);
    for (const Line line : {Line::Holding, Line::TimerBar})
        QVERIFY(!program.newMenu(line, "btnCancel"));
    QCOMPARE(escaped.shown(), (QStringList{u"SelectProductLine, Select Product Line, of MainWindow"_s,
                                           u"Configuration, Configuration, of MenuFile"_s,
                                           u"SelectProductLine, Select Product Line, of MainWindow"_s,
                                           u"TimerBarConfig, Configuration, of MainWindow"_s}));
}

void TestOwners::ofAHoldingMenu()
{
    Program program;
    program.open(u"menu.json"_s, holdingMenu().bytes());
    Escaped escaped(program);
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetProducts"), 0);
    clickEach(program, escaped,
              {"btnConfig", "btnAddProduct", "btnEditProduct", "btnDuplicateProduct", "btnDeleteProduct"});
    showTab(program, 1);
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetGroups"), 0);
    clickEach(program, escaped, {"btnAddGroup", "btnEditGroup", "btnDuplicateGroup", "btnDeleteGroup"});
    showTab(program, 2);
    clickEach(program, escaped,
              {"btnAddDaypart", "btnEditDaypart", "btnDuplicateDaypart", "btnDeleteDaypart", "btnBinPlan",
               "btnDaypartSelect0_1"});
    QStringList expected{u"Configuration, Configuration"_s};
    expected += QStringList(3, u"ProductEdit, Product Edit"_s) + QStringList{u"QMessageBox, Delete"_s};
    expected += QStringList(3, u"GroupEdit, Group Edit"_s) + QStringList{u"QMessageBox, Delete"_s};
    expected += QStringList(3, u"DaypartEdit, Edit Day Part"_s) +
                QStringList{u"QMessageBox, Delete"_s, u"QFileDialog, Bin Plan"_s,
                            u"AssignDaypartItem, Assign Product/Group"_s};
    for (QString &dialog : expected)
        dialog += u", of MenuFile"_s;
    QCOMPARE(escaped.shown(), expected);
}

void TestOwners::ofAHoldingProduct()
{
    Program program;
    program.open(u"menu.json"_s, holdingMenu().bytes());
    Escaped escaped(program);
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetProducts"), 0);
    program.answers().expect<QDialog>([&](QDialog &dialog) {
        escaped.expect();
        ui::click(dialog, "btnTimerColor");
        ui::activate(dialog);
        ui::type(dialog, "txtName", {});
        escaped.expect();
        ui::click(dialog, "btnSave");
        ui::activate(dialog);
        ui::click(dialog, "btnCancel");
    });
    ui::click(*program.subWindow(), "btnEditProduct");
    QCOMPARE(escaped.shown(), (QStringList{u"ProductEdit, Product Edit, of MenuFile"_s,
                                           u"TimerColorPicker, Colors, of ProductEdit"_s,
                                           u"QMessageBox, Error, of ProductEdit"_s}));
}

void TestOwners::ofATimerBarMenu()
{
    Program program;
    program.open(u"menu.cbr"_s, cbr::manyInBins(u"KTR22"_s, 3).bytes());
    Escaped escaped(program);
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetProducts"), 0);
    clickEach(program, escaped,
              {"btnConfig", "btnAddProduct", "btnEditProduct", "btnDuplicateProduct", "btnDeleteProduct"});
    showTab(program, 1);
    clickEach(program, escaped, {"btnCopyDaypart", "btnBinPlan", "btnDaypartSelect0_0"});
    QStringList expected{u"TimerBarConfig, Configuration"_s};
    expected += QStringList(3, u"TimerBarProductEdit, Product Edit"_s) +
                QStringList{u"QMessageBox, Delete"_s, u"CopyBins, Copy Bins"_s, u"QFileDialog, Bin Plan"_s,
                            u"TimerBarDaypartAssignItem, Assign Product"_s};
    for (QString &dialog : expected)
        dialog += u", of TimerBarMenuFile"_s;
    QCOMPARE(escaped.shown(), expected);
}

namespace {

// Presses a button of the dialog that opens a box.
template <typename Dialog>
void expectRefusedSave(Program &program, Escaped &escaped, const char *emptied)
{
    program.answers().expect<Dialog>([&escaped, emptied](Dialog &dialog) {
        ui::type(dialog, emptied, {});
        escaped.expect();
        ui::click(dialog, "btnSave");
        if (!dialog.isVisible())
            return;
        ui::activate(dialog);
        ui::click(dialog, "btnCancel");
    });
}

template <typename Dialog>
void expectSave(Program &program, const char *input, const QString &text)
{
    program.answers().expect<Dialog>([input, text](Dialog &dialog) {
        ui::type(dialog, input, text);
        ui::click(dialog, "btnSave");
    });
}

void clickAlone(Program &program, const char *button)
{
    ui::click(*program.subWindow(), button);
    ui::activate(program.window());
    REQUIRE(program.answers().allAnswered());
}

} // namespace

// Of a menu that has no room for more.
void TestOwners::boxesOfAHoldingMenu()
{
    samplefile::Menu menu = holdingMenu();
    for (int id = 3; id <= 100; ++id)
        menu.products.append(samplefile::product(id, u"More"_s));
    while (menu.layout.size() < 10)
        menu.layout.append(samplefile::daypart(u"Later"_s, {}));
    Program program;
    program.open(u"menu.json"_s, menu.bytes());
    Escaped escaped(program);
    clickEach(program, escaped, {"btnAddProduct"});
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetProducts"), 0);
    expectSave<ProductEdit>(program, "numTemp1", u"210"_s);
    escaped.expect();
    clickAlone(program, "btnEditProduct");
    showTab(program, 1);
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetGroups"), 0);
    expectRefusedSave<GroupEdit>(program, escaped, "txtName");
    clickAlone(program, "btnEditGroup");
    showTab(program, 2);
    clickEach(program, escaped, {"btnAddDaypart"});
    expectRefusedSave<DaypartEdit>(program, escaped, "txtName");
    clickAlone(program, "btnEditDaypart");
    program.answers().expect<Configuration>([](Configuration &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR33"_s);
        ui::click(dialog, "btnAccept");
    });
    escaped.expect();
    clickAlone(program, "btnConfig");
    QCOMPARE(escaped.boxes(),
             (QStringList{u"QMessageBox, Error, of MenuFile"_s, u"QMessageBox, Warning, of MenuFile"_s,
                          u"QMessageBox, Error, of GroupEdit"_s, u"QMessageBox, Error, of MenuFile"_s,
                          u"QMessageBox, Error, of DaypartEdit"_s, u"QMessageBox, Warning, of MenuFile"_s}));
}

void TestOwners::boxesOfATimerBarMenu()
{
    Program program;
    program.open(u"menu.cbr"_s, cbr::manyInBins(u"KTR22"_s, 100).bytes());
    Escaped escaped(program);
    clickEach(program, escaped, {"btnAddProduct"});
    ui::clickRow(ui::get<QListWidget>(*program.subWindow(), "listWidgetProducts"), 0);
    expectRefusedSave<TimerBarProductEdit>(program, escaped, "txtProductName");
    clickAlone(program, "btnEditProduct");
    expectSave<TimerBarProductEdit>(program, "numTempUpper", u"150"_s);
    escaped.expect(2); // the notice, then what was removed
    clickAlone(program, "btnEditProduct");
    QCOMPARE(escaped.boxes(), (QStringList{u"QMessageBox, Error, of TimerBarMenuFile"_s,
                                           u"QMessageBox, Error, of TimerBarProductEdit"_s,
                                           u"QMessageBox, Warning, of TimerBarProductEdit"_s,
                                           u"QMessageBox, Warning, of TimerBarMenuFile"_s}));
}

// The question belongs to no window; the file dialog to the editor that is closed.
void TestOwners::ofClosing()
{
    QFETCH(const Line, line);
    Program program;
    program.newMenu(line);
    Escaped escaped(program);
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(line, Asking::Closing, {});
    program.subWindow()->close();
    QCOMPARE(escaped.shown().size(), 2);
    QCOMPARE(escaped.shown().at(0), u"QMessageBox, Save..., of nothing"_s);
    QVERIFY2(escaped.shown().at(1).endsWith(u", of "_s + namesOf(line).editorClass),
             qPrintable(escaped.shown().at(1)));
}

void TestOwners::ofSaving()
{
    QFETCH(const Line, line);
    Program program;
    program.newMenu(line);
    Escaped escaped(program);
    program.expectSaveDialog(line, Asking::Save, {});
    program.save();
    program.expectSaveDialog(line, Asking::SaveAs, {});
    program.saveAs();
    QCOMPARE(escaped.shown().size(), 2);
    for (const QString &dialog : escaped.shown())
        QVERIFY2(dialog.endsWith(u", of MainWindow"_s), qPrintable(dialog));
    if (line != Line::Holding)
        return;
    program.expectSaveDialog(line, Asking::SaveAs, {});
    program.editor<MenuFile>()->saveAs(); // for callers by name
    QCOMPARE(escaped.shown().constLast(), u"QFileDialog, Save As JSON Menu, of MenuFile"_s);
}

void TestOwners::saveAsBeginsInTheMenusFolder()
{
    QFETCH(const Line, line);
    Program program;
    QVERIFY(QDir().mkdir(program.path(u"folder"_s)));
    const LineFile &file = namesOf(line).files.constFirst();
    const QString name = u"svrxconfig_1."_s + file.suffix;
    program.open(u"folder/"_s + name, file.sample());
    QString folder;
    program.answers().onShown([&folder](const QDialog &dialog) {
        if (const auto *asking = qobject_cast<const QFileDialog *>(&dialog))
            folder = asking->directory().absolutePath();
    });
    program.expectSaveDialog(line, Asking::SaveAs, {}, name);
    program.saveAs();
    QCOMPARE(folder, program.path(u"folder"_s));
}

QTEST_MAIN(TestOwners)
#include "tst_owners.moc"
