// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/guide.h"

#include <QApplication>
#include <QBuffer>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QStyleFactory>

#include "app/productlines.h"
#include "app/selectproductline.h"
#include "holding/assigndaypartitem.h"
#include "holding/configuration.h"
#include "holding/daypartedit.h"
#include "holding/groupedit.h"
#include "holding/menujson.h"
#include "holding/productedit.h"
#include "lanes/svrxmenufile.h"
#include "model/files.h"
#include "tests/support/require.h"
#include "tests/support/uidriver.h"
#include "timerbar/cbrfile.h"
#include "timerbar/copybins.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbardaypartassignitem.h"
#include "tour/breakfast.h"
#include "widgets/menuinspection.h"

using namespace Qt::StringLiterals;

namespace {

QPalette darkPalette()
{
    constexpr QColor window(0x35, 0x35, 0x35);
    constexpr QColor disabled(0x90, 0x90, 0x90);
    QPalette palette(window);
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::PlaceholderText, disabled);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

QByteArray bytesOf(const timerbar::Menu &menu)
{
    QBuffer buffer;
    REQUIRE(buffer.open(QIODevice::WriteOnly));
    REQUIRE_EQUAL(timerbar::writeMenu(buffer, menu), QString());
    return buffer.data();
}

} // namespace

void GuideChapter::looks()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void GuideChapter::init()
{
    Chapter::init();
    QFETCH(const bool, dark);
    QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
}

void GuideChapter::picture(const QString &name, const QWidget &of)
{
    QFETCH(const bool, dark);
    document(dark ? name + u"-dark"_s : name, of);
}

void GuideChapter::pictureEditor(const QString &name)
{
    picture(name, *activeSubWindow());
}

void GuideChapter::openBreakfast(const QString &fileName, const QByteArray &bytes)
{
    const QString path = filePath(fileName);
    REQUIRE(writeFile(path, bytes));
    ModalAnswers answers;
    answers.expectFileDialog(u"Open JSON Menu"_s, openFilter(), path);
    ui::clickMenu(window(), "menuFile", "actionOpen");
    REQUIRE(activeSubWindow());
}

template <typename Dialog>
void GuideChapter::pictureDialog(const char *button, const QString &name,
                                 const std::function<void(const Dialog &)> &fillIn, const char *leave)
{
    ModalAnswers answers;
    answers.expect<Dialog>([&](Dialog &dialog) {
        if (fillIn)
            fillIn(dialog);
        picture(name, dialog);
        ui::click(dialog, leave);
    });
    ui::click(*activeSubWindow()->widget(), button);
}

void GuideChapter::productLine()
{
    ModalAnswers answers;
    answers.expect<SelectProductLine>([this](SelectProductLine &dialog) {
        picture(u"product-line"_s, dialog);
        ui::click(dialog, "btnCancel");
    });
    ui::clickMenu(window(), "menuFile", "actionNew");
}

namespace {

void fillGroup(const GroupEdit &dialog)
{
    ui::type(dialog, "txtName", u"Sausage"_s);
    auto &products = ui::get<QListWidget>(dialog, "listWidgetProducts");
    for (const QString &name : {u"Sausage Patties"_s, u"Sausage Crumbles"_s}) {
        const QList<QListWidgetItem *> rows = products.findItems(name, Qt::MatchContains);
        ui::clickRow(products, products.row(rows.constFirst()));
        ui::click(dialog, "btnAddProduct");
    }
}

} // namespace

void GuideChapter::holdingEntries()
{
    openBreakfast(u"breakfast.json"_s, holding::writeMenu(breakfastOfHolding()));
    pictureDialog<Configuration>("btnConfig", u"holding-configuration"_s);
    ui::clickRow(ui::get<QListWidget>(*activeSubWindow(), "listWidgetProducts"), 0);
    pictureEditor(u"holding-products"_s);
    pictureDialog<ProductEdit>("btnEditProduct", u"holding-product"_s);
    clickTab(1);
    pictureDialog<GroupEdit>("btnAddGroup", u"holding-group"_s, fillGroup);
    closeEditor(QMessageBox::No);
}

void GuideChapter::holdingBins()
{
    openBreakfast(u"breakfast.json"_s, holding::writeMenu(breakfastOfHolding()));
    clickTab(2);
    pictureEditor(u"holding-dayparts"_s);
    pictureDialog<AssignDaypartItem>("btnDaypartSelectB3_1", u"holding-picker"_s,
                                     [](const AssignDaypartItem &dialog) {
                                         ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 8);
                                     });
    pictureDialog<DaypartEdit>("btnDuplicateDaypart", u"holding-duplicate"_s, [](const DaypartEdit &dialog) {
        ui::type(dialog, "txtName", u"SUNDAY BREAKFAST"_s);
    });
    holdBin("btnDaypartSelect1_1");
    pictureEditor(u"holding-removal"_s);
    ui::click(*activeSubWindow()->widget(), "btnCancelDaypartRemove");
    closeEditor(QMessageBox::No);
}

void GuideChapter::finding()
{
    openBreakfast(u"breakfast.json"_s, holding::writeMenu(breakfastOfHolding()));
    auto &products = ui::get<QListWidget>(*activeSubWindow(), "listWidgetProducts");
    ui::type(*activeSubWindow(), "txtFindProducts", u"chicken"_s);
    ui::clickRow(products,
                 products.row(products.findItems(u"Grilled Chicken"_s, Qt::MatchContains).constFirst()));
    pictureEditor(u"holding-find"_s);
    clickTab(2);
    pictureDialog<AssignDaypartItem>("btnDaypartSelectB3_1", u"holding-picker-find"_s,
                                     [](const AssignDaypartItem &dialog) {
                                         ui::click(dialog, "checkBoxOnlyFits");
                                         ui::type(dialog, "txtFind", u"gri"_s);
                                     });
    closeEditor(QMessageBox::No);
}

void GuideChapter::thingsToLookAt()
{
    openBreakfast(u"breakfast.json"_s, holding::writeMenu(breakfastToLookAt()));
    clickTab(2);
    pictureEditor(u"holding-findings"_s);
    pictureDialog<MenuInspection>(
        "btnFindings", u"holding-findings-list"_s,
        [](const MenuInspection &dialog) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetFindings"), 2);
        },
        "btnClose");
    closeEditor(QMessageBox::No);
}

// Paper is white whatever the palette.
void GuideChapter::binPlan_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
}

void GuideChapter::binPlan()
{
    openBreakfast(u"breakfast.json"_s, holding::writeMenu(breakfastOfHolding()));
    clickTab(2);
    const QString pdf = filePath(u"breakfast.pdf"_s);
    {
        ModalAnswers answers;
        answers.expectFileDialog(u"Bin Plan"_s, u"PDF Files (*.pdf)"_s, pdf, u"breakfast.pdf"_s);
        ui::click(*activeSubWindow()->widget(), "btnBinPlan");
    }
    page(u"bin-plan"_s, pdf);
    closeEditor(QMessageBox::No);
}

void GuideChapter::timerBar()
{
    openBreakfast(u"breakfast.cbr"_s, bytesOf(breakfastOfTimerBar()));
    ui::clickRow(ui::get<QListWidget>(*activeSubWindow(), "listWidgetProducts"), 0);
    pictureEditor(u"timerbar-products"_s);
    pictureDialog<TimerBarConfig>("btnConfig", u"timerbar-configuration"_s);
    clickTab(1);
    pictureEditor(u"timerbar-dayparts"_s);
    pictureDialog<TimerBarDaypartAssignItem>(
        "btnDaypartSelectB1_1", u"timerbar-picker"_s, [](const TimerBarDaypartAssignItem &dialog) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 0);
        });
    ui::choose(*activeSubWindow()->widget(), "comboDaypartSelect", u"Lunch"_s);
    pictureDialog<CopyBins>("btnCopyDaypart", u"timerbar-copy"_s);
    closeEditor(QMessageBox::No);
}

void GuideChapter::lanes()
{
    {
        ModalAnswers answers;
        answers.expect<SelectProductLine>([](SelectProductLine &dialog) {
            ui::choose(dialog, "comboProductLineSelect", u"Savorix"_s);
            ui::click(dialog, "btnAccept");
        });
        ui::clickMenu(window(), "menuFile", "actionNew");
    }
    ui::choose(*activeSubWindow()->widget(), "comboModelSelect", u"Triple Lane"_s);
    pictureEditor(u"lanes"_s);
    closeEditor(QMessageBox::No);
}
