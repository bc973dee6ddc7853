// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QMainWindow>

#include "app/productlines.h"

namespace Ui {
class MainWindow;
}

class QLabel;

/// The main window: each open menu is a sub-window of its document area, and the File menu acts on the
/// active one. It knows the editors only as MenuEditor.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Opens a file, or a new menu for an empty path, in a sub-window of its own. Nothing is left of an
    /// editor that could not be set up.
    void openEditor(const ProductLine &line, const QString &path);

public slots:
    void updateMenuItems();
    /// Asks once for all open menus. The editors' own question is not asked.
    void closeEvent(QCloseEvent *event) override;
    void on_actionAbout_triggered();
    void on_actionExit_triggered();
    void on_actionNew_triggered();
    void on_actionOpen_triggered();
    void on_action_Save_triggered();
    void on_actionSaveAs_triggered();

protected:
    /// The pointer shows whether Open would open any of what is dragged; never while a dialog is open.
    void dragEnterEvent(QDragEnterEvent *event) override;
    /// Opens each file as if it had been chosen in Open.
    void dropEvent(QDropEvent *event) override;

private:
    void prepareStatusBar();
    void tell(const QString &message);
    /// Says for as long as it is so that the active menu's file would not be found again.
    void showSuffixNote();
    [[nodiscard]] MenuEditor *activeEditor() const; ///< null for none
    void saveUnderChosenName(MenuEditor &editor, SaveKind kind);
    /// False when the program is to stay open: a menu could not be saved, or the user gave it no name.
    [[nodiscard]] bool saveAll();
    [[nodiscard]] bool saveBeforeExit(QMdiSubWindow &subWindow, MenuEditor &editor);

    std::unique_ptr<Ui::MainWindow> m_ui;
    QLabel *m_told = nullptr; ///< what the last act came to
    QLabel *m_suffixNote = nullptr;
};
