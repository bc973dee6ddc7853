// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/layouts.h"

#include <QLayout>
#include <QWidget>

namespace {

QLayout *layoutIn(QLayout *layout, QWidget *widget)
{
    if (layout->indexOf(widget) >= 0)
        return layout;
    for (int i = 0; i < layout->count(); ++i) {
        QLayout *inner = layout->itemAt(i)->layout();
        if (QLayout *found = inner ? layoutIn(inner, widget) : nullptr)
            return found;
    }
    return nullptr;
}

} // namespace

QLayout *layoutOf(QWidget *widget)
{
    return layoutIn(widget->parentWidget()->layout(), widget);
}

void readBefore(QWidget *widget, QWidget *other)
{
    widget->stackUnder(other);
}

void readBehind(QWidget *widget, QWidget *other)
{
    widget->stackUnder(other);
    other->stackUnder(widget);
}
