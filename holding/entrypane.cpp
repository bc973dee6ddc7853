// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/entrypane.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QSignalBlocker>

#include "holding/productdetails.h"
#include "widgets/multiselection.h"
#include "widgets/numberedrows.h"

EntryPane::EntryPane(const holding::Entries &entries, const Parts &parts)
    : m_entries(entries)
    , m_parts(parts)
    , m_multiSelection(new MultiSelection(parts.list, parts.multiSelection))
{
    numberedrows::preparePlainList(parts.list);
}

ProductInfo *EntryPane::current() const
{
    const auto row = static_cast<std::size_t>(m_row);
    return m_row >= 0 && row < m_entries.size() ? m_entries[row].get() : nullptr;
}

int EntryPane::rowOf(const QListWidgetItem *item) const
{
    return m_parts.list->row(item);
}

void EntryPane::loadList()
{
    const QSignalBlocker blocker(m_parts.list);
    const QList<int> checked = m_multiSelection->checkedRows();
    m_parts.list->clear();
    for (const auto &entry : m_entries)
        numberedrows::append(m_parts.list, shownName(entry->get_productName()));
    m_multiSelection->restoreChecks(checked);
    m_parts.list->setCurrentRow(m_row, m_multiSelection->isActive() ? QItemSelectionModel::NoUpdate
                                                                    : QItemSelectionModel::ClearAndSelect);
}

void EntryPane::loadDetails(const holding::CabinetConfiguration &configuration)
{
    const bool single = current() && !m_multiSelection->isActive();
    m_parts.details->showEntry(current(), configuration);
    m_parts.edit->setEnabled(single);
    m_parts.duplicate->setEnabled(single);
    m_parts.remove->setEnabled(single || !m_multiSelection->checkedRows().isEmpty());
}

void EntryPane::followSelection()
{
    const bool chosen = m_multiSelection->isActive() || !m_parts.list->selectedItems().isEmpty();
    m_row = chosen ? m_parts.list->currentRow() : -1;
}

bool EntryPane::isMultiSelecting() const
{
    return m_multiSelection->isActive();
}

void EntryPane::setMultiSelecting(bool multiSelecting)
{
    m_multiSelection->setActive(multiSelecting);
    m_row = -1;
}

QList<int> EntryPane::rowsToDelete() const
{
    if (m_multiSelection->isActive())
        return m_multiSelection->checkedRows();
    return current() ? QList<int>{m_row} : QList<int>{};
}

void EntryPane::followChecks()
{
    if (m_multiSelection->isActive())
        m_parts.remove->setEnabled(!m_multiSelection->checkedRows().isEmpty());
}
