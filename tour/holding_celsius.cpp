// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>
#include <QListWidget>
#include <QSpinBox>

#include "holding/configuration.h"
#include "holding/groupedit.h"
#include "holding/menufile.h"
#include "holding/productedit.h"
#include "tests/support/uidriver.h"
#include "tour/holding.h"

using namespace Qt::StringLiterals;

void HoldingChapter::switchToCelsius()
{
    Answers answers(*this);
    answers.expect<Configuration>([this](Configuration &dialog) {
        ui::click(dialog, "rbTempUnitC");
        shot(u"configuration-celsius"_s);
        ui::click(dialog, "btnAccept");
    });
    ui::click(*editor(), "btnConfig");
    QCOMPARE(editor()->getTemperatureUnit(), unitCelsius);
    auto &products = ui::get<QListWidget>(*editor(), "listWidgetProducts");
    ui::clickRow(products, 0);
    shot(u"products-celsius"_s);
}

void HoldingChapter::lookAtDialogsInCelsius()
{
    Answers answers(*this);
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        QCOMPARE(ui::get<QSpinBox>(dialog, "numTemp1").value(), 82);
        ui::click(dialog, "btnCancel");
    });
    ui::click(*editor(), "btnEditProduct");
    answers.expect<GroupEdit>([](GroupEdit &dialog) {
        QCOMPARE(ui::get<QLabel>(dialog, "txtTemp1").text(), u"82°C"_s);
        ui::click(dialog, "btnCancel");
    });
    clickTab(1);
    ui::doubleClickRow(ui::get<QListWidget>(*editor(), "listWidgetGroups"), 0);
    shot(u"groups-celsius"_s);
}

void HoldingChapter::takeProductOutOfGroup()
{
    Answers answers(*this);
    answers.expect<ProductEdit>([](ProductEdit &dialog) {
        ui::type(dialog, "numTemp1", u"85"_s);
        ui::click(dialog, "btnSave");
    });
    answers.expectBox(ModalAnswers::removalWarning(u"Product has been removed from group(s)"_s),
                      QMessageBox::Ok);
    clickTab(0);
    ui::doubleClickRow(ui::get<QListWidget>(*editor(), "listWidgetProducts"), 0);
    QCOMPARE(editor()->getMenuGroups().constFirst()->get_productList(), QList<int>{31});
    QCOMPARE(editor()->getProductObject(12)->get_upperTemp(), 185);
}

void HoldingChapter::deleteSelectedProducts()
{
    ui::click(*editor(), "btnSelectMultiProduct");
    auto &products = ui::get<QListWidget>(*editor(), "listWidgetProducts");
    for (const int row : {1, 2, 4})
        ui::clickRowBox(products, row);
    shot(u"multiple-selection"_s);
    Answers answers(*this);
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete all selected products?"_s), QMessageBox::Yes);
    ui::click(*editor(), "btnDeleteProduct");
    QCOMPARE(editor()->getMenuProducts().size(), 28);
    shot(u"products-deleted"_s);
}

void HoldingChapter::saveInCelsiusAndClose()
{
    saveAs(filePath(u"menu-celsius.json"_s));
    QVERIFY(contents(filePath(u"menu-celsius.json"_s)) != contents(filePath(u"menu.json"_s)));
    closeEditor(QMessageBox::Yes);
    shot(u"menu-closed"_s);
}
