// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/announce.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>

#include "widgets/longtext.h"

namespace announce {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Announce)
};

void send(QObject *about, QAccessible::Event what)
{
    QAccessibleEvent event(about, what);
    QAccessible::updateAccessibility(&event);
}

// Readers on Linux are passed the changed name, others the alert.
template <typename Widget>
void tell(Widget *widget, const QString &text)
{
    const bool isSame = widget->text() == text;
    widget->setText(text); // tells of another name by itself
    if (!widget->isVisible())
        return;
    if (isSame)
        send(widget, QAccessible::NameChanged);
    send(widget, QAccessible::Alert);
}

template <typename Widget>
void showLine(Widget *widget, const QString &text)
{
    widget->setHidden(text.isEmpty());
    if (text != widget->text())
        tell(widget, text);
}

} // namespace

void news(QLabel *label, const QString &text)
{
    tell(label, text);
}

void line(QLabel *label, const QString &text)
{
    showLine(label, text);
}

void line(QAbstractButton *button, const QString &text)
{
    showLine(button, text);
}

void checkMark(QListWidget *list, int row)
{
    if (!QAccessible::isActive() || !list->isVisible())
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(list, changed);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void pair(const QLabel *label, QLabel *value)
{
    pair(label, value, value->text());
}

void pair(const QLabel *label, QLabel *value, const QString &told)
{
    const QString name = told.isEmpty() ? QString() : Text::tr("%1 %2").arg(label->text(), beginningOf(told));
    if (name != value->accessibleName())
        value->setAccessibleName(name);
}

void description(QWidget *widget, const QString &text)
{
    if (text != widget->accessibleDescription())
        widget->setAccessibleDescription(text);
}

} // namespace announce
