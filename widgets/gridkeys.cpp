// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/gridkeys.h"

#include <algorithm>

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWidget>

#include "widgets/keypress.h"

namespace {

// Whether it is shown whenever the grid is: on a page that is not in front nothing is visible.
bool isUsable(const QWidget &widget)
{
    return !widget.isHidden() && widget.isEnabled();
}

// Space presses buttons.
bool typesOnButton(const QKeyEvent &press)
{
    return keypress::isTyped(press) && !press.isAutoRepeat() && !press.text().front().isSpace();
}

} // namespace

GridKeys::GridKeys(TabStops stops, QObject *parent)
    : QObject(parent)
    , m_stops(stops)
{}

void GridKeys::clear()
{
    for (const Place &place : std::as_const(m_places))
        place.widget->removeEventFilter(this);
    m_places.clear();
    m_rows = 0;
    m_last = nullptr;
    m_column = 0;
    m_stop = nullptr;
}

void GridKeys::add(QWidget *widget, int row, int column)
{
    m_places.append({widget, row, column});
    m_rows = std::max(m_rows, row + 1);
    widget->installEventFilter(this);
    if (m_stops == TabStops::One)
        widget->setFocusPolicy(Qt::ClickFocus);
    settleStop();
}

QWidget *GridKeys::stop() const
{
    return m_stops == TabStops::One ? m_stop.data() : m_last;
}

const GridKeys::Place *GridKeys::placeOf(const QObject *widget) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [widget](const Place &place) { return place.widget == widget; });
    return found == m_places.end() ? nullptr : &*found;
}

const GridKeys::Place *GridKeys::usableAt(int row, int column) const
{
    const Place *covering = nullptr;
    for (const Place &place : m_places) {
        if (place.row == row && isUsable(*place.widget) && (place.column <= column || !covering))
            covering = &place;
    }
    return covering;
}

const GridKeys::Place *GridKeys::beside(const Place &from, int step) const
{
    const Place *nearest = nullptr;
    for (const Place &place : m_places) {
        const int distance = (place.column - from.column) * step;
        if (place.row != from.row || distance <= 0 || !isUsable(*place.widget))
            continue;
        if (!nearest || distance < (nearest->column - from.column) * step)
            nearest = &place;
    }
    return nearest;
}

const GridKeys::Place *GridKeys::inNextRow(const Place &from, int step) const
{
    for (int row = from.row + step; row >= 0 && row < m_rows; row += step) {
        if (const Place *place = usableAt(row, m_column))
            return place;
    }
    return nullptr;
}

bool GridKeys::eventFilter(QObject *watched, QEvent *event)
{
    const Place *place = placeOf(watched);
    if (!place)
        return false;
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto *press = static_cast<QKeyEvent *>(event);
        if (typesOnButton(*press)) {
            emit typed(place->widget, press->text());
            return false;
        }
        return keypress::isUnmodified(*press) && takeKey(*place, press->key());
    }
    case QEvent::FocusIn:
        noteFocus(*place);
        break;
    case QEvent::HideToParent:
    case QEvent::ShowToParent:
    case QEvent::EnabledChange:
        settleStop();
        break;
    default:
        break;
    }
    return false;
}

bool GridKeys::takeKey(const Place &from, int key)
{
    const int right = from.widget->layoutDirection() == Qt::RightToLeft ? -1 : 1;
    const Place *to = nullptr;
    switch (key) {
    case Qt::Key_Left:
        to = beside(from, -right);
        break;
    case Qt::Key_Right:
        to = beside(from, right);
        break;
    case Qt::Key_Up:
        to = inNextRow(from, -1);
        break;
    case Qt::Key_Down:
        to = inNextRow(from, 1);
        break;
    default:
        return false;
    }
    const QScopedValueRollback movingByRow(m_movingByRow, key == Qt::Key_Up || key == Qt::Key_Down);
    if (to)
        to->widget->setFocus(Qt::OtherFocusReason);
    return true; // at the edge the focus stays
}

void GridKeys::noteFocus(const Place &place)
{
    m_last = place.widget;
    if (!m_movingByRow)
        m_column = place.column;
    settleStop();
}

// A bin that last had the focus may be covered or disabled for a while: the nearest one then stands for it.
void GridKeys::settleStop()
{
    if (m_stops == TabStops::Each || m_places.isEmpty())
        return;
    const Place *last = m_last ? placeOf(m_last) : &m_places.constFirst();
    const Place *found = isUsable(*last->widget) ? last : usableAt(last->row, last->column);
    for (int row = 0; row < m_rows && !found; ++row)
        found = usableAt(row, 0);
    QWidget *stop = found ? found->widget : nullptr;
    if (stop == m_stop)
        return;
    if (m_stop)
        m_stop->setFocusPolicy(Qt::ClickFocus);
    if (stop)
        stop->setFocusPolicy(Qt::StrongFocus);
    m_stop = stop;
}
