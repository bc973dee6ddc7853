// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <vector>

#include <QWidget>

#include "holding/cabinet.h"
#include "tests/support/testfolder.h"

class MenuFile;

/// A kind of window that the rules for all windows are checked on. A new one is a line in everyWindow();
/// tst_everywindow tells of one that is missing.
struct WindowKind
{
    const char *name;
    const char *acceptingButton; ///< pressed by Enter; null where there is none
    holding::CabinetConfiguration cabinet;
    /// Makes the window beside an editor that has a menu open.
    std::unique_ptr<QWidget> (*make)(MenuFile &editor);
    bool isDialog = true; ///< Escape ends it and takes nothing over
};

[[nodiscard]] const std::vector<WindowKind> &everyWindow();

/// A test column "kind" with the places in everyWindow(), of all windows or of the dialogs alone.
void addWindowRows();
void addDialogRows();

/// A window of a kind, shown, with the editor that it belongs to.
class OpenWindow
{
public:
    explicit OpenWindow(const WindowKind &kind);
    ~OpenWindow();

    [[nodiscard]] QWidget &window() const { return *m_window; }
    [[nodiscard]] MenuFile &editor() const { return *m_editor; }
    /// What the editor would save now, and the Timer Bar editor that the window may belong to.
    [[nodiscard]] QByteArray menuBytes() const;

private:
    TestFolder m_folder;
    std::unique_ptr<MenuFile> m_editor;
    std::unique_ptr<QWidget> m_window;
};
