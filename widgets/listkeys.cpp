// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/listkeys.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>

#include "widgets/keypress.h"
#include "widgets/numberedrows.h"

using numberedrows::firstRowInSight;
using numberedrows::isSelectable;
using numberedrows::lastRowInSight;

namespace {

bool hasCheckBox(const QListWidgetItem &item)
{
    return item.flags().testFlag(Qt::ItemIsUserCheckable) && item.data(Qt::CheckStateRole).isValid();
}

bool isNumber(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.isDigit(); });
}

bool isOneKey(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [&](QChar character) { return character == text.front(); });
}

} // namespace

ListKeys::ListKeys(QListWidget *list, QAbstractButton *enterButton)
    : QObject(list)
    , m_list(list)
    , m_enterButton(enterButton)
{
    list->installEventFilter(this);
}

bool ListKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool taken = event->type() == QEvent::KeyPress && takeKey(*static_cast<QKeyEvent *>(event));
    return taken || QObject::eventFilter(watched, event);
}

bool ListKeys::takeKey(const QKeyEvent &press)
{
    if (keypress::isEnter(press)) {
        // A key that is held must not go on in the dialog that it has opened.
        if (m_enterButton && !press.isAutoRepeat())
            m_enterButton->click();
        return true;
    }
    if (press.key() == Qt::Key_Home || press.key() == Qt::Key_End)
        return takeEnd(press.key());
    if (m_list->selectionMode() != QAbstractItemView::SingleSelection)
        return false;
    if (press.key() == Qt::Key_Space)
        return keypress::isCommand(press) ? toggleCurrent() : takeSpace();
    if (keypress::isCommand(press))
        return false;
    return takeArrow(press.key()) || takeText(press);
}

// The view by itself goes to the first or the last row although it is hidden.
bool ListKeys::takeEnd(int key)
{
    const int row = key == Qt::Key_Home ? firstRowInSight(m_list) : lastRowInSight(m_list);
    if (row >= 0 && m_list->selectionMode() == QAbstractItemView::SingleSelection)
        goTo(row);
    else if (row >= 0)
        m_list->setCurrentRow(row, QItemSelectionModel::NoUpdate);
    return true;
}

bool ListKeys::takeArrow(int key)
{
    if ((key != Qt::Key_Up && key != Qt::Key_Down) || !m_list->selectedItems().isEmpty())
        return false;
    const int current = m_list->currentRow();
    const int row = current >= 0 ? current : firstRowInSight(m_list);
    // The view by itself moves on from a row that has the focus and cannot be selected.
    if (row < 0 || (row == current && !isSelectable(m_list, row)))
        return false;
    goTo(row);
    return true;
}

bool ListKeys::takeSpace()
{
    if (isTyping()) {
        m_typed += u' ';
        m_sinceTyped.start();
        return true;
    }
    const QListWidgetItem *item = m_list->currentItem();
    if (item && hasCheckBox(*item))
        return false; // it changes the check mark, and the view then looks for nothing
    if (item && isSelectable(m_list, m_list->currentRow()))
        goTo(m_list->currentRow());
    return true;
}

// The view would then go on to the next row that begins with a blank, which may be a hidden one.
bool ListKeys::toggleCurrent()
{
    const int row = m_list->currentRow();
    if (row < 0 || !isSelectable(m_list, row))
        return true;
    const bool selected = m_list->item(row)->isSelected();
    m_list->setCurrentRow(row, selected ? QItemSelectionModel::Clear : QItemSelectionModel::ClearAndSelect);
    return true;
}

bool ListKeys::takeText(const QKeyEvent &press)
{
    if (!keypress::isTyped(press))
        return false;
    const bool onward = isTyping();
    m_typed = onward ? m_typed + press.text() : press.text();
    m_sinceTyped.start();
    search(onward);
    return true;
}

bool ListKeys::isTyping() const
{
    return m_sinceTyped.isValid() && m_sinceTyped.elapsed() < QApplication::keyboardInputInterval();
}

// What is typed on stays on its row as long as that fits; one letter again and again goes from row to row.
void ListKeys::search(bool onward)
{
    const int current = m_list->currentRow();
    int row = foundRow(m_typed, onward ? std::max(current, 0) : current + 1);
    if (row < 0 && isOneKey(m_typed))
        row = foundRow(m_typed.first(1), current + 1);
    if (row >= 0)
        goTo(row);
}

void ListKeys::goTo(int row)
{
    m_list->setCurrentRow(row, isSelectable(m_list, row) ? QItemSelectionModel::ClearAndSelect
                                                         : QItemSelectionModel::Clear);
}

// A number is looked for before names that begin with it.
int ListKeys::foundRow(const QString &text, int from) const
{
    const int count = m_list->count();
    int named = -1;
    const bool number = isNumber(text);
    for (int i = 0; i < count; ++i) {
        const int row = (from + i) % count;
        if (m_list->isRowHidden(row))
            continue;
        const QString shown = m_list->item(row)->text();
        const numberedrows::RowText parts(shown);
        if (number && parts.digits == text)
            return row;
        if (named < 0 && parts.name.startsWith(text, Qt::CaseInsensitive))
            named = row;
        if (named >= 0 && !number)
            break;
    }
    return named;
}
