// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tests/walk/chance.h"
#include "tests/walk/journal.h"

class QAbstractButton;
class QAbstractSpinBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QTabBar;
class QWidget;

namespace walk {

/// One thing that a person without a plan does in a window: any of its widgets, in any way that it takes.
class Gestures
{
public:
    Gestures(Chance &chance, Journal &journal)
        : m_chance(chance)
        , m_journal(journal)
    {}

    /// Works one of the enabled widgets that can be seen in the window, or presses a key.
    void act(QWidget &window);
    /// A key for whoever has the focus in the window.
    void pressAnyKey(QWidget &window);
    /// A key for an open menu or list of a combo box.
    void workPopup(QWidget &popup);

private:
    void work(QWidget &widget);
    void work(QAbstractButton &button);
    void work(QComboBox &combo);
    void work(QListWidget &list);
    void work(QAbstractSpinBox &box);
    void work(QLineEdit &line);
    void work(QTabBar &tabs);
    void enter(QWidget &input, const QString &text);
    void wheel(QWidget &widget);
    void press(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void note(const QString &what, const QWidget &widget);

    Chance &m_chance;
    Journal &m_journal;
};

/// The class and the name of a widget, for the journal.
[[nodiscard]] QString nameOf(const QWidget &widget);

} // namespace walk
