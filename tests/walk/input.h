// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QString>

class QMainWindow;
class QWidget;

/// What a hand does to a widget. Nothing waits for a time, and no other event comes in between: a session of
/// one seed is always the same. The widget may be gone afterwards.
namespace walk::input {

void press(QWidget &widget, QPoint at);
void release(QWidget &widget, QPoint at);
void click(QWidget &widget, QPoint at, Qt::KeyboardModifiers modifiers = {});
void doubleClick(QWidget &widget, QPoint at);
/// Positive notches turn away from the hand.
void wheel(QWidget &widget, QPoint at, int notches);
void key(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void type(QWidget &widget, const QString &text);
/// From the clipboard.
void paste(QWidget &widget, const QString &text);
/// Opens a menu of the menu bar and clicks one of its entries, if it is enabled.
void clickMenu(QMainWindow &window, const char *menu, const char *action);

} // namespace walk::input
