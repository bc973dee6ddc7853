// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/holding.h"

#include <QCheckBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>

#include "holding/configuration.h"
#include "holding/groupedit.h"
#include "holding/menufile.h"
#include "holding/productedit.h"
#include "holding/timercolorpicker.h"
#include "tests/support/uidriver.h"

using namespace Qt::StringLiterals;

namespace {

const QString jsonFilter = u"JSON Menu Files (*.json)"_s;

QJsonObject elementById(const QJsonArray &array, QLatin1StringView idKey, int id)
{
    for (const QJsonValue element : array) {
        if (element[idKey].toInt() == id)
            return element.toObject();
    }
    return {};
}

} // namespace

MenuFile *HoldingChapter::editor() const
{
    return activeEditor<MenuFile>();
}

void HoldingChapter::createMenu()
{
    Answers answers(*this);
    expectProductLine(answers, u"QHX/ZPV"_s);
    answers.expect<Configuration>([this](Configuration &dialog) {
        ui::choose(dialog, "comboUnitType", u"QHX"_s);
        ui::choose(dialog, "comboUnitModel", u"KTR34"_s);
        for (const char *box : {"checkBoxFanSpeedEnabled", "checkBoxResetTimeEnabled",
                                "checkBoxProductIdEditEnabled", "checkBoxTimerColorEnabled"}) {
            ui::click(dialog, box);
            QVERIFY2(ui::get<QCheckBox>(dialog, box).isChecked(), box);
        }
        shot(u"configuration-filled-in"_s);
        ui::click(dialog, "btnAccept");
    });
    ui::clickMenu(window(), "menuFile", "actionNew");
    QVERIFY(editor());
    QCOMPARE(editor()->windowTitle(), u"Menu File - "_s);
    QCOMPARE(editor()->getMenuProducts().size(), 30);
    shot(u"new-menu"_s);
}

void HoldingChapter::editProduct()
{
    Answers answers(*this);
    answers.expect<ProductEdit>([this](ProductEdit &dialog) {
        ui::type(dialog, "txtName", {});
        ui::click(dialog, "btnSave");
        ui::type(dialog, "txtName", u"Crispy Bacon"_s);
        ui::type(dialog, "numTemp1", u"180"_s);
        ui::type(dialog, "numTemp2", u"170"_s);
        ui::type(dialog, "timeHoldTime", u"01:15:00"_s);
        ui::type(dialog, "numFanSpeed", u"80"_s);
        ui::choose(dialog, "comboLidType", u"Vented"_s);
        ui::click(dialog, "btnTimerColor");
        shot(u"product-edit-filled-in"_s);
        ui::click(dialog, "btnSave");
    });
    answers.expectBox(ModalAnswers::entryFault(u"Product name is empty!"_s), QMessageBox::Close);
    answers.expect<TimerColorPicker>(
        [](TimerColorPicker &picker) { ui::click(*picker.findChildren<QPushButton *>().at(12)); });
    ui::doubleClickRow(ui::get<QListWidget>(*editor(), "listWidgetProducts"), 0);
    const ProductInfo *bacon = editor()->getProductObject(12);
    QVERIFY(bacon);
    QCOMPARE(shownName(bacon->get_productName()), u"Crispy Bacon"_s);
    QCOMPARE(bacon->get_upperTemp(), 180);
    QCOMPARE(bacon->get_lowerTemp(), 170);
    QCOMPARE(bacon->get_holdTime(), 75 * 60);
    shot(u"product-edited"_s);
}

void HoldingChapter::duplicateProduct()
{
    Answers answers(*this);
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        ui::type(dialog, "txtName", u"Smoked Bacon"_s);
        ui::click(dialog, "btnSave");
    });
    ui::click(*editor(), "btnDuplicateProduct");
    QCOMPARE(editor()->getMenuProducts().size(), 31);
    shot(u"product-duplicated"_s);
}

void HoldingChapter::buildGroup()
{
    Answers answers(*this);
    answers.expect<GroupEdit>([this](GroupEdit &dialog) {
        ui::type(dialog, "txtName", u"Bacon"_s);
        auto &products = ui::get<QListWidget>(dialog, "listWidgetProducts");
        for (const int row : {0, 30}) {
            ui::clickRow(products, row);
            ui::click(dialog, "btnAddProduct");
        }
        auto &members = ui::get<QListWidget>(dialog, "listWidgetGroupProducts");
        QCOMPARE(members.count(), 2);
        ui::clickRow(members, 1);
        ui::clickRowBox(members, 1);
        QCOMPARE(members.item(1)->checkState(), Qt::Checked);
        QCOMPARE(members.item(0)->checkState(), Qt::Unchecked);
        shot(u"group-edit-filled-in"_s);
        ui::click(dialog, "btnSave");
    });
    clickTab(1);
    ui::click(*editor(), "btnAddGroup");
    QCOMPARE(editor()->getMenuGroups().size(), 1);
    shot(u"group-built"_s);
}

void HoldingChapter::saveAs(const QString &path)
{
    saveFileAs(u"Save As JSON Menu"_s, jsonFilter, path);
}

void HoldingChapter::saveMenu()
{
    saveAs(filePath(u"menu.json"_s));
    QCOMPARE(editor()->windowTitle(), u"Menu File - menu.json"_s);
    shot(u"menu-saved"_s);
}

void HoldingChapter::findEverythingInTheFile()
{
    const QJsonObject root = QJsonDocument::fromJson(contents(filePath(u"menu.json"_s))).object();
    const QJsonObject header = root["header"_L1].toObject();
    QCOMPARE(header["cabinetModel"_L1].toString(), u"KTR34"_s);
    for (const auto key :
         {"fanSpeedEnabled"_L1, "resetTimeEnabled"_L1, "timerColorEnabled"_L1, "prodcutIdEnabled"_L1})
        QVERIFY2(header[key].toBool(), key.data());

    const QJsonObject menu = root["menu"_L1].toObject();
    const QJsonArray products = menu["products"_L1].toArray();
    QCOMPARE(products.size(), 31);
    const QJsonObject bacon = elementById(products, "productId"_L1, 12);
    QCOMPARE(bacon["productName"_L1]["jpn"_L1].toString(), u"Crispy Bacon"_s);
    QCOMPARE(bacon["upperTemp"_L1].toInt(), 180);
    QCOMPARE(bacon["lowerTemp"_L1].toInt(), 170);
    QCOMPARE(bacon["holdingTime"_L1].toInt(), 75 * 60);
    QCOMPARE(bacon["fanSpeed"_L1].toInt(), 80);
    QCOMPARE(bacon["lidType"_L1].toString(), u"Vented"_s);

    const QJsonObject group = elementById(menu["productGroups"_L1].toArray(), "groupId"_L1, 32);
    QCOMPARE(group["products"_L1].toArray(), QJsonArray({12, 31}));
    QCOMPARE(group["defaultProd"_L1].toInt(), 1);
}

void HoldingChapter::closeAndReopen()
{
    closeEditor(QMessageBox::No);
    openFile(filePath(u"menu.json"_s));
    QCOMPARE(editor()->windowTitle(), u"Menu File - menu.json"_s);
    ui::clickRow(ui::get<QListWidget>(*editor(), "listWidgetProducts"), 0);
    shot(u"menu-reopened"_s);
}

void HoldingChapter::saveSecondCopy()
{
    const QByteArray original = contents(filePath(u"menu.json"_s));
    saveAs(filePath(u"menu-copy.json"_s));
    QCOMPARE(contents(filePath(u"menu-copy.json"_s)), original);
    QCOMPARE(contents(filePath(u"menu.json"_s)), original);
}
