// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <QStringList>

#include "tests/support/require.h"

/// What a screen reader is told while this lives, of objects that are shown, and any alert: "name lblSaved:
/// Saved", "check listWidgetProducts/1: on". There may be one at a time.
class Heard
{
public:
    Heard()
    {
        REQUIRE_SOON(QAccessible::isActive());
        texts().clear();
        m_before = QAccessible::installUpdateHandler(note);
    }
    ~Heard() { QAccessible::installUpdateHandler(m_before); }
    Q_DISABLE_COPY_MOVE(Heard)

    /// What was told since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(texts(), {}); }
    [[nodiscard]] static int countOf(const QStringList &told, const QString &text)
    {
        return int(told.count(text));
    }

private:
    [[nodiscard]] static QStringList &texts()
    {
        static QStringList all;
        return all;
    }

    static void note(QAccessibleEvent *event)
    {
        const auto *widget = qobject_cast<QWidget *>(event->object());
        // An alert of what nobody sees is never right.
        if (!widget || (!widget->isVisible() && event->type() != QAccessible::Alert))
            return;
        const QString what = textOf(*event);
        if (!what.isEmpty())
            texts().append(what);
    }

    [[nodiscard]] static QString textOf(const QAccessibleEvent &event)
    {
        const QAccessibleInterface *about = event.accessibleInterface();
        if (!about)
            return {};
        QString place = event.object()->objectName();
        if (event.child() >= 0)
            place += u'/' + QString::number(event.child());
        switch (event.type()) {
        case QAccessible::NameChanged:
            return QStringLiteral("name %1: %2").arg(place, about->text(QAccessible::Name));
        case QAccessible::DescriptionChanged:
            return QStringLiteral("description %1: %2").arg(place, about->text(QAccessible::Description));
        case QAccessible::Alert:
            return QStringLiteral("alert %1: %2").arg(place, about->text(QAccessible::Name));
        case QAccessible::ValueChanged:
            return QStringLiteral("value %1: %2").arg(place, about->text(QAccessible::Value));
        case QAccessible::StateChanged:
            return stateText(event, *about, place);
        default:
            return {};
        }
    }

    [[nodiscard]] static QString stateText(const QAccessibleEvent &event, const QAccessibleInterface &about,
                                           const QString &place)
    {
        if (!static_cast<const QAccessibleStateChangeEvent &>(event).changedStates().checked)
            return {};
        return QStringLiteral("check %1: %2")
            .arg(place, QLatin1StringView(about.state().checked ? "on" : "off"));
    }

    QAccessible::UpdateHandler m_before = nullptr;
};

/// The name and the description that a screen reader reads.
inline QString spokenName(QWidget &widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}
inline QString spokenDescription(QWidget &list, int row)
{
    return QAccessible::queryAccessibleInterface(&list)->child(row)->text(QAccessible::Description);
}
