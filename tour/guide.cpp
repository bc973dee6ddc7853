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
#include "holding/groupedit.h"
#include "holding/menujson.h"
#include "holding/productedit.h"
#include "lanes/svrxmenufile.h"
#include "model/files.h"
#include "tests/support/require.h"
#include "tests/support/uidriver.h"
#include "timerbar/cbrfile.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbardaypartassignitem.h"
#include "tour/breakfast.h"

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

template <typename Dialog>
std::function<void(Dialog &)> leftAfter(std::function<void(Dialog &)> act)
{
    return [act](Dialog &dialog) {
        act(dialog);
        ui::click(dialog, "btnCancel");
    };
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

void GuideChapter::productLine()
{
    ModalAnswers answers;
    answers.expect<SelectProductLine>(
        leftAfter<SelectProductLine>([this](auto &dialog) { picture(u"product-line"_s, dialog); }));
    ui::clickMenu(window(), "menuFile", "actionNew");
}

void GuideChapter::pictureHoldingEntries(QWidget &editor)
{
    ModalAnswers answers;
    answers.expect<Configuration>(
        leftAfter<Configuration>([this](auto &dialog) { picture(u"holding-configuration"_s, dialog); }));
    ui::click(editor, "btnConfig");
    ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
    pictureEditor(u"holding-products"_s);
    answers.expect<ProductEdit>(
        leftAfter<ProductEdit>([this](auto &dialog) { picture(u"holding-product"_s, dialog); }));
    ui::click(editor, "btnEditProduct");
    clickTab(1);
    answers.expect<GroupEdit>(leftAfter<GroupEdit>([this](auto &dialog) {
        ui::type(dialog, "txtName", u"Sausage"_s);
        auto &products = ui::get<QListWidget>(dialog, "listWidgetProducts");
        for (const QString &name : {u"Sausage Patties"_s, u"Sausage Crumbles"_s}) {
            const QList<QListWidgetItem *> rows = products.findItems(name, Qt::MatchContains);
            ui::clickRow(products, products.row(rows.constFirst()));
            ui::click(dialog, "btnAddProduct");
        }
        picture(u"holding-group"_s, dialog);
    }));
    ui::click(editor, "btnAddGroup");
}

void GuideChapter::holdingEntries()
{
    openBreakfast(u"breakfast.json"_s, holding::writeMenu(breakfastOfHolding()));
    pictureHoldingEntries(*activeSubWindow()->widget());
    closeEditor(QMessageBox::No);
}

void GuideChapter::holdingBins()
{
    openBreakfast(u"breakfast.json"_s, holding::writeMenu(breakfastOfHolding()));
    clickTab(2);
    pictureEditor(u"holding-dayparts"_s);
    {
        ModalAnswers answers;
        answers.expect<AssignDaypartItem>(leftAfter<AssignDaypartItem>([this](auto &dialog) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 8);
            picture(u"holding-picker"_s, dialog);
        }));
        ui::click(*activeSubWindow()->widget(), "btnDaypartSelectB3_1");
    }
    holdBin("btnDaypartSelect1_1");
    pictureEditor(u"holding-removal"_s);
    ui::click(*activeSubWindow()->widget(), "btnCancelDaypartRemove");
    closeEditor(QMessageBox::No);
}

void GuideChapter::timerBar()
{
    openBreakfast(u"breakfast.cbr"_s, bytesOf(breakfastOfTimerBar()));
    QWidget &editor = *activeSubWindow()->widget();
    ui::clickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
    pictureEditor(u"timerbar-products"_s);
    {
        ModalAnswers answers;
        answers.expect<TimerBarConfig>(leftAfter<TimerBarConfig>(
            [this](auto &dialog) { picture(u"timerbar-configuration"_s, dialog); }));
        ui::click(editor, "btnConfig");
    }
    clickTab(1);
    pictureEditor(u"timerbar-dayparts"_s);
    {
        ModalAnswers answers;
        answers.expect<TimerBarDaypartAssignItem>(leftAfter<TimerBarDaypartAssignItem>([this](auto &dialog) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 0);
            picture(u"timerbar-picker"_s, dialog);
        }));
        ui::click(editor, "btnDaypartSelectB1_1");
    }
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
