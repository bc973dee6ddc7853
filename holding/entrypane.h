// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/menu.h"

class MultiSelection;
class ProductDetails;
class QAbstractButton;
class QListWidget;
class QListWidgetItem;

/// One tab of the editor: the list of products or of groups, its buttons and the details of the current
/// entry. The form owns the widgets, the menu the entries; both outlive the pane.
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
        ProductDetails *details;
    };

    EntryPane(const holding::Entries &entries, const Parts &parts);

    /// The current row, -1 for none.
    [[nodiscard]] int currentRow() const { return m_row; }
    void setCurrentRow(int row) { m_row = row; }
    /// The entry of the current row, or null.
    [[nodiscard]] ProductInfo *current() const;
    [[nodiscard]] int rowOf(const QListWidgetItem *item) const;

    /// Refills the list; the current row and the check marks stay.
    void loadList();
    /// Shows the current entry and enables the buttons that act on it.
    void loadDetails(const holding::CabinetConfiguration &configuration);
    /// Takes over what the user chose in the list.
    void followSelection();

    [[nodiscard]] bool isMultiSelecting() const;
    void setMultiSelecting(bool multiSelecting);
    /// What Delete acts on: the checked rows in multiple selection, else the current one; in ascending order.
    [[nodiscard]] QList<int> rowsToDelete() const;
    /// Enables Delete by the check marks of a multiple selection.
    void followChecks();

private:
    const holding::Entries &m_entries;
    Parts m_parts;
    MultiSelection *m_multiSelection; ///< the list owns it
    int m_row = -1;
};
