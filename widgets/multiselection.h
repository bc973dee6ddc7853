// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>

class QAbstractButton;
class QItemSelection;
class QListWidget;

/// The multiple-selection mode of one list, switched by a button whose text it keeps.
///
/// In the mode a row's check mark and its selection are one state, whichever of the two a click, a key or
/// the program changes. The object watches the list and lives as long as it; it never touches other buttons.
class MultiSelection : public QObject
{
    Q_OBJECT

public:
    MultiSelection(QListWidget *list, QAbstractButton *button);

    [[nodiscard]] bool isActive() const { return m_active; }
    /// Enters or leaves the mode; both clear the selection, the check marks and the current row.
    void setActive(bool active);

    /// Told without looking at the rows; false outside the mode.
    [[nodiscard]] bool isAnyChecked() const;
    /// The checked rows, hidden ones too, in ascending order; none outside the mode.
    [[nodiscard]] QList<int> checkedRows() const;
    /// Gives the rows of a refilled list their check boxes, with these rows, in ascending order, checked.
    /// Does nothing outside the mode.
    void restoreChecks(const QList<int> &rows);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void check(const QItemSelection &rows, Qt::CheckState state);
    void selectAllInSight();
    void tellMode();
    void describe(const QString &text);

    QListWidget *m_list;
    QAbstractButton *m_button;
    bool m_active = false;
};
