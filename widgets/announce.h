// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QAbstractButton;
class QLabel;
class QListWidget;
class QString;
class QWidget;

/// What a screen reader is to hear where Qt by itself tells it nothing, or too little. Nothing costs time
/// while none is listening.
namespace announce {

/// Shows a text that is news, even where the label showed the same text before.
void news(QLabel *label, const QString &text);

/// A line of its own that is there only while it says something; told where that changes.
void line(QLabel *label, const QString &text);
/// The same for a line that can be pressed.
void line(QAbstractButton *button, const QString &text);

/// That the check mark of a row has changed.
void checkMark(QListWidget *list, int row);

/// Has a value read with its label: "Holding Time: 01:00:00". To be called after each change; an empty value
/// stays silent.
void pair(const QLabel *label, QLabel *value);
/// The same for a value that is shown by something else than its text.
void pair(const QLabel *label, QLabel *value, const QString &told);

/// What is painted in a widget while it is empty; told only where that changes.
void description(QWidget *widget, const QString &text);

} // namespace announce
