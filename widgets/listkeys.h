// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QObject>

class QAbstractButton;
class QKeyEvent;
class QListWidget;

/// What the keyboard does in a list of numbered rows of which one can be selected.
///
/// With no row selected an arrow key selects the row that has the focus, or the first one, instead of passing
/// it. What is typed finds a row by its number or by the beginning of its name. Space selects the row that
/// has the focus and never moves; within a typed name it is a blank. Enter presses a button. While several
/// rows can be selected only Enter, Home and End differ from what the list does by itself. Rows that are
/// hidden are passed.
class ListKeys final : public QObject
{
    Q_OBJECT

public:
    /// The list owns it. A null button makes Enter do nothing, which keeps it from a dialog's default button.
    ListKeys(QListWidget *list, QAbstractButton *enterButton);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool takeKey(const QKeyEvent &press);
    [[nodiscard]] bool takeEnd(int key);
    [[nodiscard]] bool takeArrow(int key);
    [[nodiscard]] bool takeSpace();
    [[nodiscard]] bool toggleCurrent();
    [[nodiscard]] bool takeText(const QKeyEvent &press);
    [[nodiscard]] bool isTyping() const;
    void search(bool onward);
    void goTo(int row);
    [[nodiscard]] int foundRow(const QString &text, int from) const;

    QListWidget *m_list;
    QAbstractButton *m_enterButton;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};
