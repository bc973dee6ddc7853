// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/emptyarea.h"

#include <QCoreApplication>
#include <QEvent>
#include <QIcon>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

constexpr int iconSize = 64; // in pixels
constexpr int gap = 16;
constexpr QColor textColor(0x20, 0x20, 0x20); // on the area's grey, which no palette changes

QString howToBegin()
{
    return Text::tr("File > New starts a menu, File > Open opens one, or drop a file here");
}

void paintHowToBegin(QPainter &painter, const QRect &area, const QIcon &windowIcon)
{
    QRect place(0, 0, area.width(), iconSize + gap + 2 * painter.fontMetrics().lineSpacing());
    place.moveCenter(area.center());
    const QRect icon(place.center().x() - iconSize / 2, place.top(), iconSize, iconSize);
    windowIcon.paint(&painter, icon);
    painter.setPen(textColor);
    painter.drawText(place.adjusted(gap, iconSize + gap, -gap, 0),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, howToBegin());
}

class EmptyAreaPainter final : public QObject
{
public:
    explicit EmptyAreaPainter(QMdiArea *area)
        : QObject(area)
        , m_area(area)
    {
        area->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *viewport = qobject_cast<QWidget *>(watched);
        if (!viewport)
            return false;
        if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved)
            viewport->update(); // else the text would stay where it was beside the first menu
        if (event->type() != QEvent::Paint || !m_area->subWindowList().isEmpty())
            return false;
        QPainter painter(viewport);
        painter.fillRect(viewport->rect(), m_area->background());
        paintHowToBegin(painter, viewport->rect(), m_area->window()->windowIcon());
        return true;
    }

private:
    QMdiArea *m_area;
};

} // namespace

void showHowToBegin(QMdiArea *area)
{
    new EmptyAreaPainter(area);
    const auto describe = [area] {
        area->setAccessibleDescription(area->subWindowList().isEmpty() ? howToBegin() : QString());
    };
    describe();
    QObject::connect(area, &QMdiArea::subWindowActivated, area, describe);
}
