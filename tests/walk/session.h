// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QPointer>

#include "app/mainwindow.h"
#include "tests/walk/dialogdriver.h"

class QMdiArea;
class QMdiSubWindow;

namespace walk {

/// A person without a plan at the program, from its start to its end.
class Session : public QObject
{
    Q_OBJECT

public:
    Session(quint32 seed, Journal &journal);
    ~Session() override;

    /// Returns when all steps are done and held good.
    void run();

protected:
    /// The next step, also in the loops of dialogs that a step opened.
    void timerEvent(QTimerEvent *event) override;

private:
    struct Choice
    {
        int weight;
        std::function<void()> act;
    };
    void start();
    void step(QWidget *onTop);
    void stepInWindow();
    [[nodiscard]] QList<Choice> choices();
    void checkEverything();

    void clickMenu(const char *menu, const char *action);
    void openOrNew();
    void saveInMenu(const char *action);
    void save(MenuEditor &editor);
    void workEditor();
    void holdBin();
    void readAgain();
    void importOld();
    void activateAnother();
    void minimize();
    void closeSubWindow();
    void closeWindow();

    [[nodiscard]] QMdiArea &area() const;
    [[nodiscard]] QList<QMdiSubWindow *> subWindows() const;
    [[nodiscard]] MenuEditor *activeEditor() const; ///< null for none

    Chance m_chance;
    Journal &m_journal;
    MenuFiles m_files;
    Gestures m_gestures;
    DialogDriver m_dialogs;
    std::unique_ptr<MainWindow> m_window;
    bool m_inStep = false;
    QPointer<QWidget> m_onTop; ///< the dialog or menu that the present step works; null for the window
    int m_timer = 0;
};

} // namespace walk
