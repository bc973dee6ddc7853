// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/focusinsight.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMdiArea>
#include <QScrollBar>

namespace {

// Of a list only the row with the focus: a whole one may be higher than the area.
QRect placeOfFocus(const QWidget &widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    if (!view)
        return widget.rect();
    const QPoint corner = view->viewport()->pos();
    const QModelIndex current = view->currentIndex();
    if (!current.isValid())
        return {corner, QSize(view->viewport()->width(), 1)};
    return view->visualRect(current).intersected(view->viewport()->rect()).translated(corner);
}

// What is too large shows its beginning.
void scroll(QScrollBar &bar, int begin, int end, int room)
{
    if (begin < 0 || end - begin > room)
        bar.setValue(bar.value() + begin);
    else if (end > room)
        bar.setValue(bar.value() + end - room);
}

class FocusInSight final : public QObject
{
public:
    explicit FocusInSight(QMdiArea *area)
        : QObject(area)
        , m_area(area)
    {
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { follow(now); });
    }

private:
    void follow(const QWidget *focus)
    {
        disconnect(m_row);
        if (!focus || !m_area->viewport()->isAncestorOf(focus))
            return;
        if (const auto *view = qobject_cast<const QAbstractItemView *>(focus))
            m_row = connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
                            [this] { showSoon(); });
        showSoon();
    }

    // After what is going on: a sub-window that has just come has no place yet.
    void showSoon()
    {
        QMetaObject::invokeMethod(
            this, [this] { show(QApplication::focusWidget()); }, Qt::QueuedConnection);
    }

    void show(const QWidget *focus) const
    {
        const QWidget *viewport = m_area->viewport();
        // A click is not carried away from under the pointer.
        const bool pressed = QGuiApplication::mouseButtons() != Qt::NoButton;
        if (!focus || pressed || !viewport->isAncestorOf(focus))
            return;
        const QRect place = placeOfFocus(*focus);
        const QRect shown(focus->mapTo(viewport, place.topLeft()), place.size());
        scroll(*m_area->horizontalScrollBar(), shown.left(), shown.left() + shown.width(), viewport->width());
        scroll(*m_area->verticalScrollBar(), shown.top(), shown.top() + shown.height(), viewport->height());
    }

    QMdiArea *m_area;
    QMetaObject::Connection m_row;
};

} // namespace

void keepFocusInSight(QMdiArea *area)
{
    new FocusInSight(area);
}
