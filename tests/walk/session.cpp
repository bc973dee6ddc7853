// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/session.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QTimerEvent>

#include "tests/support/uidriver.h"
#include "tests/walk/editorchecks.h"
#include "tests/walk/invariants.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

// As a window manager does: before that, keys and the focus still belong to another window.
void activate(QWidget &window)
{
    if (window.isActiveWindow())
        return;
    window.activateWindow();
    QCoreApplication::processEvents();
}

} // namespace

Session::Session(quint32 seed, Journal &journal)
    : m_chance(seed)
    , m_journal(journal)
    , m_files(m_chance)
    , m_gestures(m_chance, journal)
    , m_dialogs(m_chance, journal, m_gestures, m_files)
{
    m_journal.setFolder(m_files.folder());
}

Session::~Session() = default;

void Session::start()
{
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_journal.remark(u"the program starts"_s);
}

void Session::run()
{
    m_timer = startTimer(0);
    while (!m_journal.isOver()) {
        if (!m_window || !m_window->isVisible())
            start();
        QApplication::exec(); // it ends with the last step, or where the program would
    }
    checkEverything();
    m_window.reset();
}

// A timer does not fire again while its event is worked, so that each loop gets a new one.
void Session::timerEvent(QTimerEvent * /*event*/)
{
    killTimer(m_timer);
    m_timer = startTimer(0);
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *onTop = popup ? popup : QApplication::activeModalWidget();
    if (m_inStep && m_onTop == onTop)
        return; // a step lets other events through
    const QScopedValueRollback inStep(m_inStep, true);
    const QScopedValueRollback<QPointer<QWidget>> top(m_onTop, onTop);
    step(onTop);
}

void Session::step(QWidget *onTop)
{
    activate(onTop ? *onTop : *m_window);
    if (!onTop && m_journal.isOver())
        QApplication::exit();
    else if (!onTop)
        stepInWindow();
    else if (!onTop->windowFlags().testFlag(Qt::Popup) || onTop->isModal())
        m_dialogs.step(*onTop);
    else
        m_gestures.workPopup(*onTop);
}

QMdiArea &Session::area() const
{
    return ui::get<QMdiArea>(*m_window, "mdiArea");
}

QList<QMdiSubWindow *> Session::subWindows() const
{
    return area().subWindowList();
}

MenuEditor *Session::activeEditor() const
{
    const QMdiSubWindow *subWindow = area().activeSubWindow();
    return subWindow ? menuEditorIn(*subWindow) : nullptr;
}

void Session::stepInWindow()
{
    const QList<Choice> all = choices();
    int weight = 0;
    for (const Choice &choice : all)
        weight += choice.weight;
    int drawn = m_chance.below(weight);
    for (const Choice &choice : all) {
        drawn -= choice.weight;
        if (drawn < 0) {
            choice.act();
            break;
        }
    }
    if (!m_window->isVisible())
        return;
    lookAtEditors(*m_window, m_journal);
    if (m_chance.oneIn(3))
        checkEverything();
}

QList<Session::Choice> Session::choices()
{
    constexpr int plentyOfMenus = 5;
    const auto count = static_cast<int>(subWindows().size());
    const bool active = activeEditor() != nullptr;
    const int workWeight = active ? 1 : 0;
    return {
        {count == 0 ? 200 : (count < plentyOfMenus ? 8 : 1), [this] { openOrNew(); }},
        {200 * workWeight, [this] { workEditor(); }},
        {12 * workWeight, [this] { holdBin(); }},
        {8 * workWeight, [this] { saveInMenu("action_Save"); }},
        {4 * workWeight, [this] { saveInMenu("actionSaveAs"); }},
        {6 * workWeight, [this] { save(*activeEditor()); }},
        {3 * workWeight, [this] { readAgain(); }},
        {1 * workWeight, [this] { importOld(); }},
        {count > 1 ? 8 : 0, [this] { activateAnother(); }},
        {2 * workWeight, [this] { minimize(); }},
        {count < plentyOfMenus ? workWeight : 8 * workWeight, [this] { closeSubWindow(); }},
        {4, [this] { m_gestures.pressAnyKey(*m_window); }},
        {1, [this] { clickMenu("menuHelp", "actionAbout"); }},
        {count > 1 ? 1 : 0, [this] { closeWindow(); }},
    };
}

} // namespace walk
