// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/multiselection.h"

#include <algorithm>

#include <QAbstractButton>
#include <QKeyEvent>
#include <QListWidget>

MultiSelection::MultiSelection(QListWidget *list, QAbstractButton *button)
    : QObject(list)
    , m_list(list)
    , m_button(button)
{
    list->installEventFilter(this);
    connect(list, &QListWidget::itemSelectionChanged, this, &MultiSelection::checkSelected);
    connect(list, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        if (m_active)
            item->setSelected(item->checkState() == Qt::Checked);
    });
}

void MultiSelection::setActive(bool active)
{
    m_active = false; // the clean-up below is no choice of the user's
    m_list->clearSelection();
    m_list->setCurrentRow(-1, QItemSelectionModel::NoUpdate);
    m_list->setSelectionMode(active ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
    m_button->setText(active ? tr("Cancel Selection") : tr("Multiple Selection"));
    for (int row = 0; row < m_list->count(); ++row)
        m_list->item(row)->setData(Qt::CheckStateRole, {});
    m_active = active;
    restoreChecks({});
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
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        const bool checked = std::binary_search(rows.begin(), rows.end(), row);
        // The view alone toggles a row: were the box checkable by itself, a click on it would count twice.
        item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
        item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        item->setSelected(checked);
    }
}

void MultiSelection::checkSelected()
{
    if (!m_active)
        return;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        item->setCheckState(item->isSelected() ? Qt::Checked : Qt::Unchecked);
    }
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
    const bool isCommand = press->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !press->text().isEmpty() && press->text().front().isPrint();
}
