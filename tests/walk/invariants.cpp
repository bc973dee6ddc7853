// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/invariants.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include "app/mainwindow.h"
#include "tests/support/uidriver.h"
#include "tests/walk/editorchecks.h"
#include "tests/walk/editormemory.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

void checkSubWindow(const QMdiSubWindow &subWindow, const Journal &journal)
{
    const MenuEditor *editor = menuEditorIn(subWindow);
    journal.check(!subWindow.isHidden(), u"A sub-window is hidden: "_s + subWindow.windowTitle());
    journal.check(subWindow.isMinimized() || !editor->isHidden(), u"An editor is hidden in its sub-window"_s);
    journal.check(editor->windowTitle().contains("Menu File - "_L1) &&
                      subWindow.windowTitle() == editor->windowTitle(),
                  u"A sub-window has another title: "_s + subWindow.windowTitle());
}

void checkFileMenu(MainWindow &window, const Journal &journal)
{
    const auto &area = ui::get<QMdiArea>(window, "mdiArea");
    emit ui::get<QMenu>(window, "menuFile").aboutToShow();
    const bool canSave = !area.subWindowList().isEmpty() && area.activeSubWindow();
    for (const char *name : {"action_Save", "actionSaveAs"})
        journal.check(ui::get<QAction>(window, name).isEnabled() == canSave,
                      u"An entry of the File menu has the wrong state: "_s + QString::fromLatin1(name));
    for (const char *name : {"actionNew", "actionOpen", "actionExit"})
        journal.check(ui::get<QAction>(window, name).isEnabled(), u"The File menu lacks an entry"_s);
}

} // namespace

void lookAtEditors(MainWindow &window, Journal &journal)
{
    const QList<QMdiSubWindow *> subWindows = ui::get<QMdiArea>(window, "mdiArea").subWindowList();
    for (const QMdiSubWindow *subWindow : subWindows) {
        MenuEditor *editor = menuEditorIn(*subWindow);
        journal.check(editor, u"A sub-window has no editor: "_s + subWindow->windowTitle());
        if (!EditorMemory::isKnown(*editor)) {
            journal.check(editor->isMenuValid(), u"A menu was opened without being valid"_s);
            journal.count(u"open "_s + QString::fromLatin1(editor->metaObject()->className()));
        }
        EditorMemory::of(*editor).look();
    }
}

void checkProgram(MainWindow &window, const Journal &journal)
{
    checkFileMenu(window, journal);
    const QList<QMdiSubWindow *> subWindows = ui::get<QMdiArea>(window, "mdiArea").subWindowList();
    for (const QMdiSubWindow *subWindow : subWindows) {
        checkSubWindow(*subWindow, journal);
        MenuEditor &editor = *menuEditorIn(*subWindow);
        const EntryIds ids = idsOf(editor);
        journal.check(ids.products.size() + ids.groups.size() <= EditorMemory::of(editor).entriesAllowed(),
                      u"An editor has more than 100 entries"_s);
        checkEditor(editor, journal);
    }
}

} // namespace walk
