// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/grid.h"

#include <QListWidget>
#include <QPushButton>

#include "holding/assigndaypartitem.h"
#include "holding/bins.h"
#include "holding/menufile.h"
#include "holding/menujson.h"
#include "model/files.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/uidriver.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int daypartsTab = 2;
const QString jsonFilter = u"JSON Menu Files (*.json)"_s;

// The default products of a model in its bins, with every split that its zones can have; a bin in three stays
// empty.
holding::Menu filledMenu(const QString &type, const QString &model)
{
    holding::Menu menu;
    menu.configuration.type = type;
    menu.configuration.model = model;
    const holding::CabinetShape shape = menu.shape();
    const QStringList splits = holding::offeredZoneSplits(shape.binsPerZone);
    if (!holding::readDefaultMenu(shape.binsPerZone, menu).isEmpty())
        return {};
    std::size_t next = 0;
    for (int row = 0; row < shape.rows; ++row) {
        const QString split = splits.value(row % static_cast<int>(splits.size()));
        for (int slot = 0; slot < shape.binsPerRow(); ++slot) {
            const bool first = slot == shape.zoneOfSlot(slot).first;
            if (!first && (split == "1/1"_L1 || (row + slot) % 3 == 0))
                continue;
            ProductInfo &product = *menu.products[next++];
            product.set_zoneSplits(first ? split : splits.constFirst());
            menu.dayparts[0].bins[static_cast<std::size_t>(row)][static_cast<std::size_t>(slot)] =
                product.get_productId();
        }
    }
    return menu;
}

} // namespace

void GridChapter::assign(const char *button, int row)
{
    Answers answers(*this);
    answers.expect<AssignDaypartItem>([row](AssignDaypartItem &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), row);
        ui::click(dialog, "btnSelect");
    });
    ui::click(*activeEditor<MenuFile>(), button);
}

void GridChapter::openTheMenu()
{
    openFile(filePath(u"menu.json"_s));
    clickTab(daypartsTab);
    shot(u"empty-grid"_s);
}

void GridChapter::fillBins()
{
    assign("btnDaypartSelect0_0", 1);
    assign("btnDaypartSelect1_1", 4);
    assign("btnDaypartSelectB2_0", 7);
    QCOMPARE(ui::get<QPushButton>(*activeEditor<MenuFile>(), "btnDaypartSelect0_0").text(), u"Biscuits"_s);
    shot(u"filled-grid"_s);
}

void GridChapter::clearABinByHolding()
{
    holdBin("btnDaypartSelect1_1");
    shot(u"removal-mode"_s);
    ui::click(*activeEditor<MenuFile>(), "btnDaypartRemove");
    QCOMPARE(ui::get<QPushButton>(*activeEditor<MenuFile>(), "btnDaypartSelect1_1").text(), QString());
    shot(u"bin-cleared"_s);
}

void GridChapter::saveAndReopen()
{
    const QString path = filePath(u"menu-with-bins.json"_s);
    saveFileAs(u"Save As JSON Menu"_s, jsonFilter, path);
    closeEditor(QMessageBox::No);
    openFile(path);
    clickTab(daypartsTab);
    const QString copy = filePath(u"menu-with-bins-copy.json"_s);
    saveFileAs(u"Save As JSON Menu"_s, jsonFilter, copy);
    QCOMPARE(contents(copy), contents(path));
    closeEditor(QMessageBox::No);
}

void GridChapter::lookAtEveryModel_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("model");
    for (const QString &type : holding::cabinetTypes()) {
        for (const QString &model : holding::cabinetModels(type))
            QTest::newRow(qPrintable(model)) << type << model;
    }
}

void GridChapter::lookAtEveryModel()
{
    QFETCH(QString, type);
    QFETCH(QString, model);
    const QString path = filePath(model.toLower() + u".json"_s);
    QVERIFY(writeFile(path, holding::writeMenu(filledMenu(type, model))));
    openFile(path);
    clickTab(daypartsTab);
    shot(u"model-"_s + model.toLower());
    closeEditor(QMessageBox::No);
}

void GridChapter::importAnOldMenu()
{
    const QString path = filePath(u"old-menu.qhx"_s);
    QVERIFY(writeFile(path, qhx::sample().bytes()));
    openFile(path);
    QCOMPARE(activeEditor<MenuFile>()->windowTitle(), u"Menu File - old-menu.qhx"_s);
    QCOMPARE(activeEditor<MenuFile>()->filePath(), QString());
    shot(u"old-menu-products"_s);
    clickTab(daypartsTab);
    shot(u"old-menu-grid"_s);
    closeEditor(QMessageBox::No);
}
