// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/entrypane.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QSignalBlocker>

#include "widgets/findrows.h"
#include "widgets/listkeys.h"
#include "widgets/multiselection.h"
#include "widgets/numberedrows.h"

EntryPane::EntryPane(const Parts &parts)
    : m_parts(parts)
    , m_multiSelection(new MultiSelection(parts.list, parts.multiSelection))
    , m_find(new FindRows(parts.list, parts.findName))
{
    numberedrows::preparePlainList(parts.list);
    new ListKeys(parts.list, parts.edit);
    QObject::connect(m_find, &FindRows::changed, m_find, [this] { updateButtons(); });
}

void EntryPane::setCurrentRow(const QListWidgetItem *item)
{
    m_row = m_parts.list->row(item);
}

void EntryPane::focusList() const
{
    m_parts.list->setFocus();
}

void EntryPane::goTo(int row) const
{
    m_find->refresh(row); // it may be hidden
    m_parts.list->setCurrentRow(row, m_multiSelection->isActive() ? QItemSelectionModel::NoUpdate
                                                                  : QItemSelectionModel::ClearAndSelect);
    focusList();
}

void EntryPane::showNames(const QStringList &names)
{
    const QSignalBlocker blocker(m_parts.list);
    const QList<int> checked = m_multiSelection->checkedRows();
    m_parts.list->clear();
    for (const QString &name : names)
        numberedrows::append(m_parts.list, name);
    m_multiSelection->restoreChecks(checked);
    if (m_multiSelection->isActive())
        m_parts.list->setCurrentRow(m_row, QItemSelectionModel::NoUpdate);
    else if (m_row >= 0)
        m_parts.list->setCurrentRow(m_row, QItemSelectionModel::ClearAndSelect);
    else
        m_parts.list->setCurrentIndex({}); // else the first row would become current with the focus
    m_find->refresh(m_row);
}

void EntryPane::updateButtons()
{
    const bool single = m_row >= 0 && !m_multiSelection->isActive();
    m_parts.edit->setEnabled(single);
    m_parts.duplicate->setEnabled(single);
    m_parts.remove->setEnabled(single || isAnyCheckedInSight());
}

// Asked for each row of thousands that are checked at once: the first one in sight mostly tells.
bool EntryPane::isAnyCheckedInSight() const
{
    if (!m_find->isHiding() || !m_multiSelection->isAnyChecked())
        return m_multiSelection->isAnyChecked();
    const QListWidget &list = *m_parts.list;
    for (int row = m_find->firstRow(); row >= 0 && row < list.count(); ++row) {
        if (!list.isRowHidden(row) && list.item(row)->checkState() == Qt::Checked)
            return true;
    }
    return false;
}

void EntryPane::followSelection()
{
    const bool chosen = m_multiSelection->isActive() || m_parts.list->selectionModel()->hasSelection();
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
    m_find->refresh();
}

QList<int> EntryPane::rowsToDelete() const
{
    if (m_multiSelection->isActive()) {
        QList<int> rows = m_multiSelection->checkedRows();
        rows.removeIf([this](int row) { return m_parts.list->isRowHidden(row); });
        return rows;
    }
    return m_row >= 0 ? QList<int>{m_row} : QList<int>{};
}
