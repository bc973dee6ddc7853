// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "tests/support/cbrbuilder.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/samplefile.h"
#include "tests/support/uidriver.h"
#include "timerbar/timerbardaypartassignitem.h"

/// Menus that a bin plan is made of, in the running program.
namespace planned {

using namespace Qt::StringLiterals;

/// A test column "line": the lines whose menus have bins.
inline void addLineRows()
{
    QTest::addColumn<Line>("line");
    QTest::newRow("holding") << Line::Holding;
    QTest::newRow("Timer Bar") << Line::TimerBar;
}

inline QByteArray holdingMenu(bool inUse)
{
    samplefile::Menu menu;
    menu.products = {samplefile::product(1, u"Bacon"_s)};
    QJsonObject daypart = samplefile::daypart(u"Morning"_s, {1});
    daypart.insert(u"inUse"_s, inUse);
    menu.layout = {daypart};
    return menu.bytes();
}

inline QByteArray timerBarMenu(bool filled)
{
    cbr::Menu menu{.products = {{.name = "Bacon", .shortName = "BACN"}}};
    if (filled)
        menu.dayparts[0] = {0};
    return menu.bytes();
}

/// Turns to the last tab, that of the day parts.
inline void showBins(Program &program)
{
    auto &tabs = ui::get<QTabWidget>(*program.subWindow(), "tabWidget");
    tabs.setCurrentIndex(tabs.count() - 1);
}

/// Opens "menu.json" or "menu.cbr"; `drawn` says whether there is anything to draw.
inline void open(Program &program, Line line, bool drawn = true)
{
    const bool holding = line == Line::Holding;
    REQUIRE(program.open(holding ? u"menu.json"_s : u"menu.cbr"_s,
                         holding ? holdingMenu(drawn) : timerBarMenu(drawn)));
}

inline void fillFirstBin(Program &program)
{
    showBins(program);
    program.answers().expect<TimerBarDaypartAssignItem>([](TimerBarDaypartAssignItem &dialog) {
        ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 0);
        ui::click(dialog, "btnSelect");
    });
    ui::click(*program.subWindow(), "btnDaypartSelect0_0");
    ui::activate(program.window());
}

/// Expects the dialog that asks where to; cancels it for an empty path.
inline void expectPlan(Program &program, const QString &path, const QString &proposed = {})
{
    program.answers().expectFileDialog(u"Bin Plan"_s, u"PDF Files (*.pdf)"_s, path, proposed);
}

/// Expects the dialog, chooses a file that is in the folder, says Yes to its question, and goes on.
inline void expectReplacing(
    Program &program, const QString &name, const std::function<void()> &goOn = [] {})
{
    program.answers().expect<QFileDialog>([&program, name, goOn](QFileDialog &dialog) {
        program.answers().expect<QMessageBox>(
            [](QMessageBox &box) { ui::click(*box.button(QMessageBox::Yes)); });
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(program.path(name));
        ui::click(*dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s)->button(QDialogButtonBox::Save));
        goOn();
    });
}

/// The same of a menu's file, and that it is told all the same.
inline void expectRefusal(Program &program, const QString &name)
{
    expectReplacing(program, name, [&program, name] {
        program.answers().expectBox(ModalAnswers::refusal(u"A bin plan cannot replace "_s + name),
                                    QMessageBox::Close);
    });
}

inline void clickPlan(Program &program)
{
    showBins(program);
    ui::click(*program.subWindow(), "btnBinPlan");
    ui::activate(program.window());
}

} // namespace planned
