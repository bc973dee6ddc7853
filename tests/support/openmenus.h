// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QTemporaryDir>

#include "app/mainwindow.h"

class QMdiArea;
class QMdiSubWindow;

/// A main window with menus in it, as a person opens them.
class OpenMenus
{
public:
    OpenMenus();

    [[nodiscard]] MainWindow &window() { return m_window; }
    [[nodiscard]] QMdiArea &area() const;
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /// So that nothing can be saved in it any more.
    void removeFolder();

    /// File, Open with a name; null when no sub-window came of it.
    QMdiSubWindow *open(const QString &path);
    /// Writes the sample menu under a name and opens it.
    QMdiSubWindow *openSample(const QString &name);
    /// File, New with the default configuration.
    QMdiSubWindow *openNew();
    /// Closes a sub-window and answers No.
    void closeUnsaved(QMdiSubWindow &subWindow);
    /// Changes the menu that is open in a sub-window, so that saving it changes its file.
    void change(QMdiSubWindow &subWindow);

    static const QString saveFilter;

private:
    [[nodiscard]] QMdiSubWindow *newestSince(qsizetype count) const;

    QTemporaryDir m_folder;
    MainWindow m_window;
};
