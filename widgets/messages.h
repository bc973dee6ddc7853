// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

/// The message boxes of the program. Each waits until the user has answered it. An error is told apart by
/// where it comes from: a file's box has no parent and says "Error" as its text, a dialog's box says it in
/// its title.
namespace messages {

/// An error in reading or writing a file.
void fileFault(const QString &message);

/// What is wrong with the entries of a dialog.
void entryFault(QWidget *parent, const QString &message);

/// What is wrong, and the input that it is entered in; neither where nothing is wrong.
struct WrongEntry
{
    QString message;
    QWidget *input = nullptr;
};
/// The same, and then gives the input the focus with its content selected.
void entryFault(QWidget *parent, const WrongEntry &wrong);

/// What a dialog or an editor cannot do at all: the same with a warning icon.
void refusal(QWidget *parent, const QString &message);

/// What the user should know of an act, such as data that was removed with it. `button` closes the box.
void warning(QWidget *parent, const QString &message, QMessageBox::StandardButton button = QMessageBox::Ok);

/// What an accepted configuration did to the menu.
void reconfigured(QWidget *parent, const QString &message);

/// Asks before something is lost; No is the default.
[[nodiscard]] bool confirm(QWidget *parent, const QString &title, const QString &question);
[[nodiscard]] bool confirmDelete(QWidget *parent, const QString &question);

/// "Save changes before exit?": Yes, No or Cancel, the latter also when the box is closed otherwise.
[[nodiscard]] QMessageBox::StandardButton askSaveChanges();

} // namespace messages
