// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/listkeys.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>

namespace {

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// A row's text, "  1 Bacon", in its two parts. One without a number is all name.
struct RowText
{
    explicit RowText(const QString &text)
    {
        const auto isBlank = [](QChar character) { return character == u' '; };
        const auto isDigit = [](QChar character) { return character.isDigit(); };
        const auto number = std::find_if_not(text.begin(), text.end(), isBlank);
        const auto end = std::find_if_not(number, text.end(), isDigit);
        digits = QStringView(number, end);
        const auto separated = digits.isEmpty() || end == text.end() ? end : end + 1;
        name = QStringView(separated, text.end());
    }

    QStringView digits;
    QStringView name;
};

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
    if (isEnter(press.key())) {
        // A key that is held must not go on in the dialog that it has opened.
        if (m_enterButton && !press.isAutoRepeat())
            m_enterButton->click();
        return true;
    }
    const bool plain = !(press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (!plain || m_list->selectionMode() != QAbstractItemView::SingleSelection)
        return false;
    if (press.key() == Qt::Key_Space)
        return takeSpace();
    return takeArrow(press.key()) || takeText(press);
}

bool ListKeys::takeArrow(int key)
{
    const int last = m_list->count() - 1;
    if (last < 0 || !m_list->selectedItems().isEmpty())
        return false;
    const int current = m_list->currentRow();
    int row = -1;
    if (key == Qt::Key_Up || key == Qt::Key_Down)
        row = std::max(current, 0);
    else if (key == Qt::Key_Home)
        row = 0;
    else if (key == Qt::Key_End)
        row = last;
    // The view by itself moves on from a row that has the focus and cannot be selected.
    if (row < 0 || (row == current && !isSelectable(row)))
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
    if (item && isSelectable(m_list->currentRow()))
        goTo(m_list->currentRow());
    return true;
}

bool ListKeys::takeText(const QKeyEvent &press)
{
    const QString text = press.text();
    if (text.isEmpty() || !text.front().isPrint())
        return false;
    const bool onward = isTyping();
    m_typed = onward ? m_typed + text : text;
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

bool ListKeys::isSelectable(int row) const
{
    return m_list->item(row)->flags().testFlag(Qt::ItemIsSelectable);
}

void ListKeys::goTo(int row)
{
    m_list->setCurrentRow(row, isSelectable(row) ? QItemSelectionModel::ClearAndSelect
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
        const QString shown = m_list->item(row)->text();
        const RowText parts(shown);
        if (number && parts.digits == text)
            return row;
        if (named < 0 && parts.name.startsWith(text, Qt::CaseInsensitive))
            named = row;
        if (named >= 0 && !number)
            break;
    }
    return named;
}
