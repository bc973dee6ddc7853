// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QListWidget>

#include "holding/productedit.h"
#include "tests/support/program.h"
#include "tests/support/uidriver.h"
#include "tests/support/windowmenu.h"

/// Holding-cabinet menus that are changed so that it shows in their files.
namespace changemenu {

using namespace Qt::StringLiterals;

inline QMdiSubWindow *openSample(Program &program, const QString &name)
{
    return program.open(name, windowmenu::bytes());
}

inline void change(Program &program, QMdiSubWindow &subWindow)
{
    program.area().setActiveSubWindow(&subWindow);
    program.answers().expect<ProductEdit>([](ProductEdit &dialog) {
        ui::type(dialog, "txtName", u"Changed"_s);
        ui::click(dialog, "btnSave");
    });
    ui::doubleClickRow(ui::get<QListWidget>(subWindow, "listWidgetProducts"), 0);
}

inline void openChanged(Program &program, const QString &name)
{
    change(program, *openSample(program, name));
}

/// Whether the change has been saved.
inline bool isChanged(const Program &program, const QString &name)
{
    return program.content(name).contains("\"Changed\"");
}

} // namespace changemenu
