// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QListWidget;
class QPainter;
class QRect;
class QWidget;

/// Paints into a list that has no rows what to do about it; the hint is the list's accessible description for
/// as long. To be called once a list.
void showWhenEmpty(QListWidget *list, const QString &hint);

/// Paints a hint into the middle of a place that has nothing to show, in the greyed colour of the widget.
void paintEmptyHint(QPainter &painter, const QWidget &widget, const QRect &place, const QString &hint);
