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
        const auto tell = [this] {
            if (m_toldEmpty == isEmpty())
                return;
            m_toldEmpty = isEmpty();
            m_list->setAccessibleDescription(m_toldEmpty ? m_hint : QString());
        };
        connect(list->model(), &QAbstractItemModel::rowsInserted, this, tell);
        connect(list->model(), &QAbstractItemModel::rowsRemoved, this, tell);
        connect(list->model(), &QAbstractItemModel::modelReset, this, tell);
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
