// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QFocusEvent;
class QKeyEvent;
class QLineEdit;
class QTimeEdit;

/// A stored time in a box for a time of day.
///
/// A file can hold times of a day and more; the box shows such a time wrapped into a day. The stored seconds
/// stand until somebody edits the box, so that a save does not shorten them unseen. Once it is edited, also
/// when the same digits are typed again, what the box shows counts. Of a time below zero it always does.
///
/// The time is entered as one value: what is typed over the whole of it, or beside it, starts from the hours
/// and leaves nothing of the old one. Within a section that was clicked into, the section is typed anew.
class TimeEntry final : public QObject
{
    Q_OBJECT

public:
    /// `edit` has to outlive this and is filled by show() only.
    explicit TimeEntry(QTimeEdit *edit);

    void show(int storedSeconds);
    [[nodiscard]] int seconds() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isWholeSelected() const;
    [[nodiscard]] bool isComplete() const;
    void takeFocus(QFocusEvent &event);
    [[nodiscard]] bool takeKey(const QKeyEvent &press);
    void startOver();

    QTimeEdit *m_edit;
    QLineEdit *m_line;
    int m_storedSeconds = 0;
    bool m_edited = false;
    bool m_afterDigit = false;
};
