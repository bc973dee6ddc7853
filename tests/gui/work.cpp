// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/work.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

#include "app/aboutapp.h"
#include "app/selectproductline.h"
#include "holding/assigndaypartitem.h"
#include "holding/configuration.h"
#include "holding/daypartedit.h"
#include "holding/groupedit.h"
#include "holding/menufile.h"
#include "holding/menujson.h"
#include "holding/newentries.h"
#include "holding/productedit.h"
#include "holding/timercolorpicker.h"
#include "tests/support/require.h"
#include "tests/support/windowmenu.h"

using namespace Qt::StringLiterals;

void Work::expectBox(QMessageBox::StandardButton press)
{
    m_program.answers().expect<QMessageBox>([this, press](QMessageBox &box) {
        look(box);
        ui::click(*box.button(press));
    });
}

// Of Qt's own dialog only what the program tells it.
void Work::expectFile(const QString &path)
{
    m_program.answers().expect<QFileDialog>([this, path](QFileDialog &dialog) {
        if (m_translated) {
            REQUIRE(dialog.windowTitle().startsWith(PseudoTranslator::mark));
            REQUIRE(dialog.nameFilters().constFirst().startsWith(PseudoTranslator::mark));
        }
        ui::get<QLineEdit>(dialog, "fileNameEdit").setText(path);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
}

QWidget &Work::editor()
{
    return *m_program.area().activeSubWindow();
}

void Work::makeMenu()
{
    expectDialog<AboutApp>([](AboutApp &box) { ui::click(box, "btnAccept"); });
    ui::clickMenu(m_program.window(), "menuHelp", "actionAbout");
    expectDialog<SelectProductLine>([](SelectProductLine &dialog) { ui::click(dialog, "btnAccept"); });
    expectDialog<Configuration>([this](Configuration &dialog) { configure(dialog); });
    m_program.choose("actionNew");
    look(editor());
}

void Work::configure(Configuration &dialog)
{
    ui::choose(dialog, "comboUnitType", u"QHX"_s);
    ui::choose(dialog, "comboUnitModel", u"KTR34"_s);
    for (const char *name : {"checkBoxFanSpeedEnabled", "checkBoxResetTimeEnabled",
                             "checkBoxProductIdEditEnabled", "checkBoxTimerColorEnabled"})
        ui::click(dialog, name);
    ui::click(dialog, "rbTempUnitC");
    ui::click(dialog, "btnAccept");
}

// Each of these entries is refused with a box of its own.
void Work::enterWrongly(ProductEdit &dialog)
{
    const auto refused = [this, &dialog] {
        expectBox(QMessageBox::Close);
        ui::click(dialog, "btnSave");
    };
    const auto enterTime = [&dialog](const char *name, QTime time) {
        ui::get<QTimeEdit>(dialog, name).setTime(time);
    };
    ui::type(dialog, "numProductId", u"1"_s);
    refused();
    ui::type(dialog, "numProductId", u"99"_s);
    refused(); // no name
    ui::type(dialog, "txtName", u"Soup"_s);
    enterTime("timeHoldTime", {0, 5, 59});
    refused();
    enterTime("timeHoldTime", {8, 0, 1});
    refused();
    enterTime("timeHoldTime", {2, 0, 0});
    enterTime("timeWarningTime", {2, 0, 0});
    refused();
    enterTime("timeWarningTime", {0, 10, 0});
    enterTime("timeResetTime", {1, 0, 0});
    refused();
    enterTime("timeResetTime", {0, 10, 0});
}

void Work::addProduct()
{
    expectDialog<ProductEdit>([this](ProductEdit &dialog) {
        enterWrongly(dialog);
        QTest::keyClick(&ui::get<QComboBox>(dialog, "comboLidType"), Qt::Key_End);
        QTest::keyClick(&ui::get<QComboBox>(dialog, "comboBottomType"), Qt::Key_Home);
        expectDialog<TimerColorPicker>(
            [](TimerColorPicker &picker) { ui::click(*picker.findChildren<QPushButton *>().at(20)); });
        ui::click(dialog, "btnTimerColor");
        look(dialog);
        ui::click(dialog, "btnSave");
    });
    ui::click(editor(), "btnAddProduct");
    look(editor());
}

void Work::addGroup()
{
    showTab(1);
    expectDialog<GroupEdit>([this](GroupEdit &dialog) {
        expectBox(QMessageBox::Close); // no name
        ui::click(dialog, "btnSave");
        ui::type(dialog, "txtName", u"Soups"_s);
        expectBox(QMessageBox::Close); // no product
        ui::click(dialog, "btnSave");
        auto &products = ui::get<QListWidget>(dialog, "listWidgetProducts");
        ui::clickRow(products, products.count() - 1);
        ui::click(dialog, "btnAddProduct");
        look(dialog);
        ui::click(dialog, "btnSave");
    });
    ui::click(editor(), "btnAddGroup");
    look(editor());
}

void Work::saveNew()
{
    expectFile(m_program.path(u"new.json"_s));
    m_program.save();
    expectFile(m_program.path(u"missing/new.json"_s));
    expectBox(QMessageBox::Ok);
    m_program.saveAs();
    look(editor());
}

void Work::openSample()
{
    expectFile(m_program.folder().make(u"sample.json"_s, windowmenu::bytes()));
    m_program.choose("actionOpen");
}

// Takes a product out of all groups and bins that have it.
void Work::editProduct(int row)
{
    showTab(0);
    expectDialog<ProductEdit>([](ProductEdit &dialog) {
        ui::type(dialog, "numFanSpeed", u"77"_s);
        ui::click(dialog, "btnSave");
    });
    expectBox(QMessageBox::Ok);
    ui::doubleClickRow(list("listWidgetProducts"), row);
    look(editor());
}

// Its only other member has other settings than the bin was chosen for.
void Work::editGroup()
{
    showTab(1);
    expectDialog<GroupEdit>([](GroupEdit &dialog) {
        auto &members = ui::get<QListWidget>(dialog, "listWidgetGroupProducts");
        while (members.count() > 0) {
            ui::clickRow(members, 0);
            ui::click(dialog, "btnRemoveProduct");
        }
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 0);
        ui::click(dialog, "btnAddProduct");
        ui::click(dialog, "btnSave");
    });
    expectBox(QMessageBox::Ok);
    ui::doubleClickRow(list("listWidgetGroups"), 0);
    look(editor());
}

void Work::fillBins()
{
    showTab(2);
    look(editor());
    expectDialog<AssignDaypartItem>([this](AssignDaypartItem &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 4);
        look(dialog);
        ui::click(dialog, "btnSelect");
    });
    ui::click(editor(), "btnDaypartSelect1_0");
    look(editor());
}

void Work::clearBins()
{
    auto &bin = ui::get<QPushButton>(editor(), "btnDaypartSelect1_0");
    QTest::mousePress(&bin, Qt::LeftButton);
    REQUIRE_SOON(bin.isCheckable());
    QTest::mouseRelease(&bin, Qt::LeftButton);
    look(editor());
    ui::click(editor(), "btnDaypartRemove");
}

void Work::manageDayparts()
{
    const auto expectName = [this](const QString &name) {
        expectDialog<DaypartEdit>([name](DaypartEdit &dialog) {
            ui::type(dialog, "txtName", name);
            ui::click(dialog, "btnSave");
        });
    };
    expectName({});
    expectBox(QMessageBox::Close);
    ui::click(editor(), "btnAddDaypart");
    for (int count = 2; count < holding::maxDayparts; ++count) {
        expectName(u"Soup"_s);
        ui::click(editor(), "btnAddDaypart");
    }
    expectBox(QMessageBox::Close); // no room for more
    ui::click(editor(), "btnAddDaypart");
    expectName(u"Soups"_s);
    ui::click(editor(), "btnEditDaypart");
    expectBox(QMessageBox::Yes);
    ui::click(editor(), "btnDeleteDaypart");
    expectFile(m_program.path(u"plan.pdf"_s));
    ui::click(editor(), "btnBinPlan");
}

void Work::deleteEntries(const char *select, const char *remove, const char *listName)
{
    ui::clickRow(list(listName), 0);
    expectBox(QMessageBox::No);
    ui::click(editor(), remove);
    ui::click(editor(), select);
    ui::clickRow(list(listName), 0);
    look(editor());
    expectBox(QMessageBox::Yes);
    ui::click(editor(), remove);
    look(editor());
}

void Work::changeModel()
{
    expectDialog<Configuration>([](Configuration &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR33"_s);
        ui::click(dialog, "btnAccept");
    });
    expectBox(QMessageBox::Ok);
    ui::click(editor(), "btnConfig");
    look(editor());
}

void Work::fillUp()
{
    holding::Menu full = windowmenu::menu();
    while (!full.isFull())
        full.products.push_back(holding::newProduct(full.nextFreeId(), 2));
    expectFile(m_program.folder().make(u"full.json"_s, holding::writeMenu(full)));
    m_program.choose("actionOpen");
    expectBox(QMessageBox::Close);
    ui::click(editor(), "btnAddProduct");
    showTab(1);
    expectBox(QMessageBox::Close);
    ui::click(editor(), "btnAddGroup");
}

void Work::leave()
{
    expectBox(QMessageBox::Cancel);
    QTest::keyClick(&ui::get<MenuFile>(editor(), "MenuFile"), Qt::Key_Escape);
    expectBox(QMessageBox::No);
    REQUIRE(m_program.window().close());
}

QList<QByteArray> Work::run()
{
    makeMenu();
    addProduct();
    addGroup();
    saveNew();
    openSample();
    fillBins();
    clearBins();
    manageDayparts();
    fillBins();
    editProduct(0); // in the group and in a bin
    editProduct(1); // in the group alone
    editProduct(2); // in a bin alone
    editGroup();
    m_program.save();
    const QByteArray edited = m_program.content(u"sample.json"_s);
    deleteEntries("btnSelectMultiGroup", "btnDeleteGroup", "listWidgetGroups");
    showTab(0);
    deleteEntries("btnSelectMultiProduct", "btnDeleteProduct", "listWidgetProducts");
    changeModel();
    m_program.save();
    fillUp();
    leave();
    return {m_program.content(u"new.json"_s), edited, m_program.content(u"sample.json"_s)};
}
