// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/emptyhint.h"

#include <QEvent>
#include <QListWidget>
#include <QPainter>

namespace {

constexpr int margin = 16; // in pixels

// A list that is destroyed clears its model when it is half gone: this one goes with the viewport, which is
// before that.
class EmptyListPainter final : public QObject
{
public:
    EmptyListPainter(QListWidget *list, const QString &hint)
        : QObject(list->viewport())
        , m_list(list)
        , m_hint(hint)
    {
        list->viewport()->installEventFilter(this);
        connect(list->model(), &QAbstractItemModel::rowsInserted, this, &EmptyListPainter::tell);
        // A list that is filled anew is empty for a moment, which is not to be told.
        const auto tellSoon = [this] {
            QMetaObject::invokeMethod(this, &EmptyListPainter::tell, Qt::QueuedConnection);
        };
        connect(list->model(), &QAbstractItemModel::rowsRemoved, this, tellSoon);
        connect(list->model(), &QAbstractItemModel::modelReset, this, tellSoon);
        tell();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *viewport = qobject_cast<QWidget *>(watched);
        if (viewport && event->type() == QEvent::Paint && isEmpty()) {
            QPainter painter(viewport);
            paintEmptyHint(painter, *viewport, viewport->rect(), m_hint);
        }
        return false;
    }

private:
    [[nodiscard]] bool isEmpty() const { return m_list->count() == 0; }

    void tell()
    {
        if (m_toldEmpty == isEmpty())
            return;
        m_toldEmpty = isEmpty();
        m_list->setAccessibleDescription(m_toldEmpty ? m_hint : QString());
    }

    QListWidget *m_list;
    QString m_hint;
    bool m_toldEmpty = false;
};

} // namespace

void showWhenEmpty(QListWidget *list, const QString &hint)
{
    new EmptyListPainter(list, hint);
}

void paintEmptyHint(QPainter &painter, const QWidget &widget, const QRect &place, const QString &hint)
{
    painter.setFont(widget.font());
    painter.setPen(widget.palette().color(QPalette::PlaceholderText));
    painter.drawText(place.adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap,
                     hint);
}
