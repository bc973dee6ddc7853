// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include "app/mainwindow.h"
#include "tests/support/modalanswers.h"
#include "tour/album.h"

class QMdiSubWindow;

/// One product line's part of the tour. A chapter is run as a test object: its private slots are its steps,
/// in order. A step that fails ends the chapter, and the tour with it.
///
/// Every modal dialog is pictured when it comes up, under its title; what else is worth a picture a step
/// takes by itself.
class Chapter : public QObject
{
    Q_OBJECT

public:
    Chapter(MainWindow &window, Album &album);

protected:
    [[nodiscard]] MainWindow &window() const { return m_window; }
    [[nodiscard]] QString filePath(const QString &name) const { return m_album.filePath(name); }
    void shot(const QString &name) { m_album.shot(name); }
    void document(const QString &name, const QWidget &of) { m_album.document(name, of); }
    void page(const QString &name, const QString &pdf) { m_album.page(name, pdf); }

    /// Answers of a step that are pictured when they are given.
    class Answers : public ModalAnswers
    {
    public:
        explicit Answers(Chapter &chapter);
    };

    [[nodiscard]] QMdiSubWindow *activeSubWindow() const;
    /// The active sub-window's editor; null for none or another line's.
    template <typename Editor>
    [[nodiscard]] Editor *activeEditor() const
    {
        return qobject_cast<Editor *>(activeWidget());
    }
    /// Brings a tab of the active editor to the front.
    void clickTab(int index);
    /// Chooses a product line for a new menu; the line's own question has to be expected behind it.
    static void expectProductLine(Answers &answers, const QString &name);
    void openFile(const QString &path);
    void saveFileAs(const QString &caption, const QString &filter, const QString &path);
    /// Closes the active sub-window, answering its question.
    void closeEditor(QMessageBox::StandardButton answer);
    /// Holds the mouse on a button of the grid until removal mode is on.
    void holdBin(const char *button);
    /// The bytes of a file; one that cannot be read ends the tour.
    [[nodiscard]] static QByteArray contents(const QString &path);

protected slots:
    void init();

private slots:
    void cleanup();

private:
    [[nodiscard]] QWidget *activeWidget() const;

    MainWindow &m_window;
    Album &m_album;
    bool m_failed = false;
};
