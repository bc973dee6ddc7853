// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QTest>
#include <QTime>
#include <QWidget>

class QListWidget;
class QMainWindow;

/// Finds widgets by object name and acts on them as a person does.
namespace ui {

/// The widget with this name and type; aborts the test program with its name where there is none.
template <typename Widget>
Widget &get(const QObject &parent, const char *name)
{
    auto *widget = parent.findChild<Widget *>(QString::fromLatin1(name));
    if (!widget)
        qFatal("There is no %s named %s", Widget::staticMetaObject.className(), name);
    return *widget;
}

/// Clicks a visible, enabled widget in its middle; anything else fails the test.
void click(QWidget &widget);
void click(const QObject &parent, const char *name);

/// Replaces the text of an input by typing.
void type(QWidget &input, const QString &text);
void type(const QObject &parent, const char *name, const QString &text);

/// Enters a time into a time edit by typing its digits, from the hours on.
void enterTime(const QObject &parent, const char *timeEdit, const QTime &time);

/// Chooses an item of a combo box with the keyboard.
void choose(const QObject &parent, const char *comboBox, const QString &text);

void clickRow(QListWidget &list, int row, Qt::KeyboardModifiers modifiers = {});
/// Clicks the check box of a row.
void clickRowBox(QListWidget &list, int row);
void doubleClickRow(QListWidget &list, int row);

/// Opens a menu of the menu bar and clicks one of its entries.
void clickMenu(QMainWindow &window, const char *menu, const char *action);

/// Shows a window and waits until it is active.
void show(QWidget &window);
/// Makes a shown window the active one: without a window manager nobody does so after a dialog was closed.
void activate(QWidget &window);

} // namespace ui
