// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>

#include "app/mainwindow.h"
#include "app/selectproductline.h"
#include "tests/support/modalanswers.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbarmenufile.h"

/// The main window with Timer Bar menus in it, and a folder for their files.
class TimerBarMenus
{
public:
    TimerBarMenus() { ui::show(m_window); }

    [[nodiscard]] MainWindow &window() { return m_window; }
    [[nodiscard]] const TestFolder &folder() const { return m_folder; }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.path(name); }

    /// File, New with the third product line; `configure` is the button of the configuration to press.
    void newMenu(ModalAnswers &answers, const char *configure = "btnAccept")
    {
        answers.expect<SelectProductLine>([](SelectProductLine &dialog) {
            ui::choose(dialog, "comboProductLineSelect", QStringLiteral("Timer Bar Cabinet"));
            ui::click(dialog, "btnAccept");
        });
        answers.expect<TimerBarConfig>([configure](TimerBarConfig &dialog) { ui::click(dialog, configure); });
        choose("actionNew");
    }
    /// Writes a file and opens it.
    void open(ModalAnswers &answers, const QString &name, const QByteArray &bytes)
    {
        m_folder.make(name, bytes);
        expectOpenDialog(answers, path(name));
        choose("actionOpen");
    }
    static void expectOpenDialog(ModalAnswers &answers, const QString &path)
    {
        answers.expectFileDialog(QStringLiteral("Open JSON Menu"),
                                 QStringLiteral("Varno Menu Files (*.json *.qhx *.txt *.cbr);;"
                                                "QHX Json Menu Files (*.json);;Savorix Menu Files (*.txt);;"
                                                "TimerBar Menu Files (*.cbr)"),
                                 path);
    }
    /// The dialog of the main window's Save and Save As; closing an editor asks under another caption.
    static void expectSaveDialog(ModalAnswers &answers, const QString &path,
                                 const QString &caption = QStringLiteral("Save TimerBar Menu"))
    {
        answers.expectFileDialog(caption, QStringLiteral("TimerBar Menu Files (*.cbr)"), path,
                                 QStringLiteral(""));
    }
    /// An entry of the File menu.
    void choose(const char *action)
    {
        ui::clickMenu(m_window, "menuFile", action);
        ui::activate(m_window);
    }

    [[nodiscard]] qsizetype menuCount() { return area().subWindowList().size(); }
    /// The sub-window that was opened last, or null.
    [[nodiscard]] QMdiSubWindow *subWindow()
    {
        const QList<QMdiSubWindow *> subWindows = area().subWindowList();
        return subWindows.isEmpty() ? nullptr : subWindows.constLast();
    }
    /// The editor in it, or null.
    [[nodiscard]] TimerBarMenuFile *editor()
    {
        return subWindow() ? qobject_cast<TimerBarMenuFile *>(subWindow()->widget()) : nullptr;
    }

private:
    [[nodiscard]] QMdiArea &area() { return ui::get<QMdiArea>(m_window, "mdiArea"); }

    TestFolder m_folder;
    MainWindow m_window;
};

/// Turns to the day parts and holds the first bin of a two-row cabinet's lower row, which has to be filled.
inline void enterRemovalMode(TimerBarMenuFile &editor)
{
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(1);
    auto &bin = ui::get<QPushButton>(editor, "btnDaypartSelect1_0");
    QTest::mousePress(&bin, Qt::LeftButton);
    QTRY_VERIFY(bin.isChecked());
    QTest::mouseRelease(&bin, Qt::LeftButton);
}
