// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QTest>
#include <QTime>
#include <QWidget>

class QComboBox;
class QListWidget;
class QMainWindow;

/// Finds widgets by object name and acts on them as a person does. What cannot be found, or is hidden or
/// disabled, ends the test program.
namespace ui {

[[noreturn]] void noWidget(const char *type, const char *name);

/// The widget with this name and type.
template <typename Widget>
Widget &get(const QObject &parent, const char *name)
{
    auto *widget = parent.findChild<Widget *>(QString::fromLatin1(name));
    if (!widget)
        noWidget(Widget::staticMetaObject.className(), name);
    return *widget;
}

/// Clicks a widget in its middle.
void click(QWidget &widget);
void click(const QObject &parent, const char *name);

/// Replaces the text of an input by typing.
void type(QWidget &input, const QString &text);
void type(const QObject &parent, const char *name, const QString &text);

/// Enters a time into a time edit by typing its digits, from the hours on.
void enterTime(const QObject &parent, const char *timeEdit, const QTime &time);

/// Chooses an item of a combo box with the keyboard.
void choose(const QObject &parent, const char *comboBox, const QString &text);

/// The texts of the rows.
[[nodiscard]] QStringList textsOf(const QListWidget &list);
[[nodiscard]] QStringList textsOf(const QComboBox &combo);

void clickRow(QListWidget &list, int row, Qt::KeyboardModifiers modifiers = {});
/// Clicks the check box of a row.
void clickRowBox(QListWidget &list, int row);
void doubleClickRow(QListWidget &list, int row, Qt::KeyboardModifiers modifiers = {});

/// Opens a menu of the menu bar and clicks one of its entries.
void clickMenu(QMainWindow &window, const char *menu, const char *action);

/// Shows a window and waits until it is active.
void show(QWidget &window);
/// Makes a shown window the active one: without a window manager nobody does so after a dialog was closed.
void activate(QWidget &window);
/// Waits until the widget has the focus; false where it does not come.
[[nodiscard]] bool hasFocus(const QWidget &widget);

} // namespace ui
