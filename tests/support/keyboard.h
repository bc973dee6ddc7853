// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QMessageBox>
#include <QString>

class QDialog;
class QWidget;

/// A person without a mouse: every key goes to the window that has the focus, and where that leads is looked
/// at. After each key what has the focus has to be in sight, else the test program ends.
namespace keyboard {

/// What has the focus now.
[[nodiscard]] QWidget &focused();

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void pressOften(Qt::Key key, int times);
void type(const QString &text);
/// Holds Space down until `done` is true.
void holdSpace(const std::function<bool()> &done);

/// Holds Ctrl down for as long as a program may wait, presses the key so often, and lets Ctrl go.
void pressWhileCtrlIsHeld(Qt::Key key, int times);

/// Presses Tab until the widget of this name has the focus; a full round without it ends the test program.
void tabTo(const QString &name);
/// The same by Shift+Tab.
void tabBackTo(const QString &name);

/// Goes to a button or a check box and presses Space.
void pushButton(const QString &name);
/// Goes to an input and types in place of what it holds.
void enter(const QString &name, const QString &text);
/// Goes to a combo box and to its entry.
void choose(const QString &comboBox, const QString &text);
/// Goes to a list and types what its row is called, which has to select it.
void find(const QString &list, const QString &text);
/// Goes to the tabs of an editor and turns to a page.
void showPage(const QString &text);
/// Opens a menu and one of its entries, by their underlined letters.
void menu(Qt::Key menu, Qt::Key entry);

/// Answers a message box.
void answer(QMessageBox &box, QMessageBox::StandardButton button);
/// Types a path over the proposed name, and Enter.
void answerFileName(QDialog &dialog, const QString &path);

} // namespace keyboard
