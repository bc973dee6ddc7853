// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/multiselection.h"

#include <algorithm>

#include <QAbstractButton>
#include <QItemSelection>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>

#include "widgets/announce.h"
#include "widgets/keypress.h"

namespace {

// Rows that follow each other are one range: selecting rows one by one takes longer with every row that is
// selected already.
QItemSelection rangesOf(const QAbstractItemModel &model, const QList<int> &rows)
{
    QItemSelection ranges;
    for (qsizetype first = 0, last = 0; first < rows.size(); first = ++last) {
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        ranges.append(QItemSelectionRange(model.index(rows[first], 0), model.index(rows[last], 0)));
    }
    return ranges;
}

} // namespace

MultiSelection::MultiSelection(QListWidget *list, QAbstractButton *button)
    : QObject(list)
    , m_list(list)
    , m_button(button)
{
    list->installEventFilter(this);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection &selected, const QItemSelection &deselected) {
                check(selected, Qt::Checked);
                check(deselected, Qt::Unchecked);
            });
    connect(list, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        const bool checked = item->checkState() == Qt::Checked;
        if (m_active && item->isSelected() != checked)
            item->setSelected(checked);
    });
}

void MultiSelection::setActive(bool active)
{
    m_active = false; // the clean-up below is no choice of the user's
    const QSignalBlocker blocker(m_list);
    m_list->clearSelection();
    m_list->setCurrentRow(-1, QItemSelectionModel::NoUpdate);
    m_list->setSelectionMode(active ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
    m_button->setText(active ? tr("Cancel Selection") : tr("Multiple Selection"));
    for (int row = 0; row < m_list->count(); ++row)
        m_list->item(row)->setData(Qt::CheckStateRole, {});
    m_active = active;
    restoreChecks({});
    tellMode();
}

void MultiSelection::tellMode()
{
    const QString hint = tr("Multiple selection: Space marks rows.");
    if (m_active && m_list->count() > 0)
        describe(hint);
    else if (m_list->accessibleDescription() == hint) // one that is empty may tell what to do about that
        describe({});
}

void MultiSelection::describe(const QString &text)
{
    if (m_list->accessibleDescription() != text)
        m_list->setAccessibleDescription(text);
}

bool MultiSelection::isAnyChecked() const
{
    return m_active && m_list->selectionModel()->hasSelection();
}

QList<int> MultiSelection::checkedRows() const
{
    QList<int> rows;
    for (int row = 0; m_active && row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked)
            rows.append(row);
    }
    return rows;
}

void MultiSelection::restoreChecks(const QList<int> &rows)
{
    if (!m_active)
        return;
    const QSignalBlocker blocker(m_list);
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        const bool checked = std::binary_search(rows.begin(), rows.end(), row);
        // The view alone toggles a row: a click on a box that could be checked by itself would not make it
        // current.
        item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
        item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
    m_list->selectionModel()->select(rangesOf(*m_list->model(), rows), QItemSelectionModel::ClearAndSelect);
    tellMode(); // a list that was empty for a moment has forgotten it
}

void MultiSelection::check(const QItemSelection &rows, Qt::CheckState state)
{
    if (!m_active)
        return;
    const QModelIndexList indexes = rows.indexes();
    for (const QModelIndex &index : indexes) {
        m_list->item(index.row())->setCheckState(state);
        announce::checkMark(m_list, index.row());
    }
}

// The view by itself would also select rows that are hidden.
void MultiSelection::selectAllInSight()
{
    QList<int> rows;
    for (int row = 0; row < m_list->count(); ++row) {
        if (!m_list->isRowHidden(row))
            rows.append(row);
    }
    m_list->selectionModel()->select(rangesOf(*m_list->model(), rows), QItemSelectionModel::Select);
}

// Left to itself the view also searches for what is typed, a blank included, and toggles the row it finds.
bool MultiSelection::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_active || event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    if (press->key() == Qt::Key_Space) {
        if (QListWidgetItem *item = m_list->currentItem())
            item->setSelected(!item->isSelected());
        return true;
    }
    if (press->matches(QKeySequence::SelectAll)) {
        selectAllInSight();
        return true;
    }
    return keypress::isTyped(*press);
}
