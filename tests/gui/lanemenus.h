// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/mainwindow.h"
#include "app/selectproductline.h"
#include "lanes/svrxmenufile.h"
#include "tests/support/modalanswers.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"

/// The main window with lane configurations in it, and a folder for their files.
class LaneMenus
{
public:
    LaneMenus() { ui::show(m_window); }

    [[nodiscard]] MainWindow &window() { return m_window; }
    [[nodiscard]] const TestFolder &folder() const { return m_folder; }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.path(name); }

    /// File, New with the second product line.
    void newMenu(ModalAnswers &answers)
    {
        answers.expect<SelectProductLine>([](SelectProductLine &dialog) {
            ui::choose(dialog, "comboProductLineSelect", QStringLiteral("Savorix"));
            ui::click(dialog, "btnAccept");
        });
        ui::clickMenu(m_window, "menuFile", "actionNew");
        ui::activate(m_window);
    }
    /// Writes a file and opens it. Where a box comes up, expect it between the open dialog and openNow().
    void open(ModalAnswers &answers, const QString &name, const QByteArray &text)
    {
        m_folder.make(name, text);
        answers.expectOpenDialog(path(name));
        openNow();
    }
    void openNow()
    {
        ui::clickMenu(m_window, "menuFile", "actionOpen");
        ui::activate(m_window);
    }
    static void expectSaveDialog(ModalAnswers &answers, const QString &path, const QString &start)
    {
        answers.expectFileDialog(QStringLiteral("Save Savorix Menu"),
                                 QStringLiteral("Savorix Menu Files (*.txt)"), path, start);
    }
    void save() { ui::clickMenu(m_window, "menuFile", "action_Save"); }
    void saveAs() { ui::clickMenu(m_window, "menuFile", "actionSaveAs"); }

    [[nodiscard]] qsizetype menuCount() { return area().subWindowList().size(); }
    /// The sub-window that was opened last, or null.
    [[nodiscard]] QMdiSubWindow *subWindow()
    {
        const QList<QMdiSubWindow *> subWindows = area().subWindowList();
        return subWindows.isEmpty() ? nullptr : subWindows.constLast();
    }
    /// The editor in it, or null.
    [[nodiscard]] SvrxMenuFile *editor()
    {
        return subWindow() ? qobject_cast<SvrxMenuFile *>(subWindow()->widget()) : nullptr;
    }

private:
    [[nodiscard]] QMdiArea &area() { return ui::get<QMdiArea>(m_window, "mdiArea"); }

    TestFolder m_folder;
    MainWindow m_window;
};
