// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QTimeEdit;

/// A stored time in a box for a time of day.
///
/// A file can hold times of a day and more; the box shows such a time wrapped into a day. The stored seconds
/// stand until somebody edits the box, so that a save does not shorten them unseen. Once it is edited, also
/// when the same digits are typed again, what the box shows counts. Of a time below zero it always does.
class TimeEntry final : public QObject
{
    Q_OBJECT

public:
    /// `edit` has to outlive this and is filled by show() only.
    explicit TimeEntry(QTimeEdit *edit);

    void show(int storedSeconds);
    [[nodiscard]] int seconds() const;

private:
    QTimeEdit *m_edit;
    int m_storedSeconds = 0;
    bool m_edited = false;
};
