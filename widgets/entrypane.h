// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QStringList>

class FindRows;
class MultiSelection;
class QAbstractButton;
class QListWidget;
class QListWidgetItem;

/// The list of a tab, the field above it that finds rows, and the buttons that act on it: which row is
/// current, which rows are chosen in multiple selection, which buttons that enables. Buttons act on rows in
/// sight only. It knows rows, not products; the form owns the widgets.
class EntryPane
{
public:
    struct Parts
    {
        QListWidget *list;
        QAbstractButton *edit;
        QAbstractButton *duplicate;
        QAbstractButton *remove;
        QAbstractButton *multiSelection;
        QString findName; ///< the object name of the field
    };

    explicit EntryPane(const Parts &parts);
    Q_DISABLE_COPY_MOVE(EntryPane)

    /// The current row, -1 for none.
    [[nodiscard]] int currentRow() const { return m_row; }
    void setCurrentRow(int row) { m_row = row; }
    void setCurrentRow(const QListWidgetItem *item);

    void focusList() const;
    /// Makes a row current as a click on it does, but for the check marks of multiple selection.
    void goTo(int row) const;

    /// Refills the list with numbered rows; the current row and the check marks stay. Rows stay hidden as
    /// before; where the current row would be, Find is emptied.
    void showNames(const QStringList &names);
    /// Enables the buttons that have something to act on.
    void updateButtons();
    /// Takes over what the user chose in the list.
    void followSelection();

    [[nodiscard]] bool isMultiSelecting() const;
    void setMultiSelecting(bool multiSelecting);
    /// What Delete acts on: the chosen rows in sight in multiple selection, else the current one; in
    /// ascending order.
    [[nodiscard]] QList<int> rowsToDelete() const;

private:
    [[nodiscard]] bool isAnyCheckedInSight() const;

    Parts m_parts;
    MultiSelection *m_multiSelection; ///< the list owns it
    FindRows *m_find;                 ///< the list owns it
    int m_row = -1;
};
