// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/mainwindow.h"
#include "app/selectproductline.h"
#include "holding/configuration.h"
#include "holding/menufile.h"
#include "tests/support/modalanswers.h"
#include "tests/support/uidriver.h"

/// The main window with holding-cabinet menus in it. What comes up while a menu opens, apart from the
/// dialogs that always do, has to be in the answers before.
class ProgramWindow
{
public:
    ProgramWindow() { ui::show(m_window); }

    void open(ModalAnswers &answers, const QString &path)
    {
        expectOpenDialog(answers, path);
        openNow();
    }
    void openNow()
    {
        ui::clickMenu(m_window, "menuFile", "actionOpen");
        activate();
    }
    static void expectOpenDialog(ModalAnswers &answers, const QString &path)
    {
        answers.expectOpenDialog(path);
    }

    /// A new menu with the configuration that is first offered.
    void newMenu(ModalAnswers &answers)
    {
        answers.expect<SelectProductLine>([](SelectProductLine &dialog) { ui::click(dialog, "btnAccept"); });
        answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
        ui::clickMenu(m_window, "menuFile", "actionNew");
        activate();
    }

    void save() { ui::clickMenu(m_window, "menuFile", "action_Save"); }

    [[nodiscard]] QMdiArea &area() { return ui::get<QMdiArea>(m_window, "mdiArea"); }
    [[nodiscard]] qsizetype menuCount() { return area().subWindowList().size(); }
    /// The sub-window that was opened last, or null.
    [[nodiscard]] QMdiSubWindow *subWindow()
    {
        const QList<QMdiSubWindow *> subWindows = area().subWindowList();
        return subWindows.isEmpty() ? nullptr : subWindows.constLast();
    }
    /// The editor in it, or null.
    [[nodiscard]] MenuFile *editor()
    {
        return subWindow() ? qobject_cast<MenuFile *>(subWindow()->widget()) : nullptr;
    }

    /// Gives the main window the keys back after a dialog was closed, as a window manager does.
    void activate() { ui::activate(m_window); }

private:
    MainWindow m_window;
};
