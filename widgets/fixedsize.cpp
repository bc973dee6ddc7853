// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/fixedsize.h"

#include <memory>

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace {

void move(QBoxLayout &from, QBoxLayout &to)
{
    const int stretch = from.stretch(0);
    std::unique_ptr<QLayoutItem> item(from.takeAt(0));
    if (QWidget *widget = item->widget()) {
        to.addWidget(widget, stretch, item->alignment());
    } else if (QLayout *layout = item->layout()) {
        layout->setParent(nullptr);
        to.addLayout(layout, stretch);
        item.release(); // a layout is its own item
    } else {
        to.addItem(item.release());
    }
}

// Moved rows keep their place for the Tab key; a field that gets the focus is scrolled into view.
void letMiddleScroll(QDialog *dialog, QBoxLayout &rows, int widest)
{
    auto *area = new QScrollArea(dialog);
    auto *middle = new QWidget(area);
    auto *inner = new QVBoxLayout(middle);
    inner->setContentsMargins({});
    inner->setSpacing(rows.spacing());
    while (rows.count() > 1)
        move(rows, *inner);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(middle);
    const int width = middle->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width();
    area->setMinimumWidth(qMin(width, widest));
    rows.insertWidget(0, area, 1);
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget *, QWidget *now) {
        if (now && area->isAncestorOf(now))
            area->ensureWidgetVisible(now);
    });
}

// Lists may become smaller than they would like to be, wrapped labels may not.
bool fits(QLayout &rows, int designedWidth, const QSize &room)
{
    const QSize least = rows.totalMinimumSize();
    const int width = qMax(designedWidth, rows.totalSizeHint().width());
    const int height = rows.hasHeightForWidth() ? rows.totalMinimumHeightForWidth(width) : least.height();
    return least.width() <= room.width() && height <= room.height();
}

} // namespace

void fixSizeOnScreen(QDialog *dialog)
{
    const QWidget *opener = dialog->parentWidget();
    fixSizeOnScreen(dialog, (opener ? opener : dialog)->screen()->availableSize());
}

void fixSizeOnScreen(QDialog *dialog, const QSize &available)
{
    const QSize room = available - frameRoom;
    auto *rows = qobject_cast<QBoxLayout *>(dialog->layout());
    if (rows && rows->count() > 1 && !fits(*rows, dialog->width(), room)) {
        const QMargins margins = rows->contentsMargins();
        letMiddleScroll(dialog, *rows, room.width() - margins.left() - margins.right());
    }
    dialog->setFixedSize(dialog->size().expandedTo(dialog->layout()->totalSizeHint()).boundedTo(room));
}
