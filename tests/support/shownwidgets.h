// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QList>
#include <QString>
#include <QWidget>

/// What a person sees of a window.
namespace shown {

/// Calls `look` once, or once for each page of the window's tabs with that page shown.
void forEachPage(QWidget &window, const std::function<void()> &look);

/// The visible widgets of a window, itself included, in the order in which they were made.
[[nodiscard]] QList<QWidget *> widgets(QWidget &window);
/// The visible widgets that the Tab key visits, in its order; disabled ones count.
[[nodiscard]] QList<QWidget *> tabOrder(QWidget &window);

/// "QLabel lblName "Name"", to tell a widget in a message.
[[nodiscard]] QString describe(const QWidget &widget);

/// Every text that is visible in the window or told about it: titles, labels, menus, lists, tool tips,
/// accessible names. What a user can type is none.
struct Text
{
    QString text;
    QString where;
};
[[nodiscard]] QList<Text> texts(QWidget &window);

} // namespace shown
