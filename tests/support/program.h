// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QString>

#include "app/mainwindow.h"
#include "tests/support/modalanswers.h"
#include "tests/support/testfolder.h"

/// The product lines, in the order of the chooser.
enum class Line { Holding, Lanes, TimerBar };
Q_DECLARE_METATYPE(Line)
inline constexpr std::array allLines{Line::Holding, Line::Lanes, Line::TimerBar};

/// What asks for the name of a file.
enum class Asking { Save, SaveAs, Closing };

/// A kind of file that a line opens.
struct LineFile
{
    QString suffix;
    QByteArray (*sample)(); ///< one that can be opened
};

/// What a line's menus are called in the main window.
struct LineNames
{
    QString chooser;
    QString editorClass;
    QString subWindow;     ///< the object name
    QString newTitle;      ///< of a menu without a file
    QList<LineFile> files; ///< the kind that it saves comes first
};
[[nodiscard]] const LineNames &namesOf(Line line);

/// Test columns "line", with a row for each of allLines.
void addLineRows();

/// The running program: its main window, shown, a folder for its files, and the answers to the dialogs that
/// come up. Everything is done as a person does it, through the File menu; a dialog that nobody expected ends
/// the test.
class Program
{
public:
    Program();

    [[nodiscard]] MainWindow &window() { return m_window; }
    [[nodiscard]] ModalAnswers &answers() { return m_answers; }
    [[nodiscard]] TestFolder &folder() { return m_folder; }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.path(name); }
    [[nodiscard]] QByteArray content(const QString &name) const { return m_folder.content(name); }

    /// Each returns the sub-window that came of it, or null. `configure` is the button to press in the line's
    /// configuration, for the lines that have one.
    QMdiSubWindow *newMenu(Line line, const char *configure = "btnAccept");
    /// Writes a file and opens it. Where more than the file dialog comes up, expect that and then the rest,
    /// and call openNow().
    QMdiSubWindow *open(const QString &name, const QByteArray &bytes);
    QMdiSubWindow *open(const QString &name);
    /// Enters the name, or cancels for an empty one.
    void expectOpenDialog(const QString &name);
    QMdiSubWindow *openNow();

    void save() { choose("action_Save"); }
    void saveAs() { choose("actionSaveAs"); }
    /// Enters the path, or cancels for an empty one. `start` is the proposed name, by default that of a menu
    /// without a file.
    void expectSaveDialog(Line line, Asking asking, const QString &path, const QString &start = {});
    /// The question whether to save before something is closed.
    void expectSaveQuestion(QMessageBox::StandardButton answer);
    /// An entry of the File menu.
    void choose(const char *action);

    [[nodiscard]] QMdiArea &area();
    [[nodiscard]] qsizetype menuCount() { return area().subWindowList().size(); }
    /// The sub-window that was opened last, or null.
    [[nodiscard]] QMdiSubWindow *subWindow();
    /// The editor in it, or null.
    template <typename Editor>
    [[nodiscard]] Editor *editor()
    {
        return subWindow() ? qobject_cast<Editor *>(subWindow()->widget()) : nullptr;
    }

private:
    TestFolder m_folder;
    MainWindow m_window;
    ModalAnswers m_answers;
};
