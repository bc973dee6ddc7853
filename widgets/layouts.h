// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QLayout;
class QWidget;

/// The layout that places the widget, however deep in the layouts of its parent; null for none.
[[nodiscard]] QLayout *layoutOf(QWidget *widget);

/// Lets screen readers come to a widget just before or just behind another one of the same parent. They go
/// through a window in the order in which its widgets lie on each other.
void readBefore(QWidget *widget, QWidget *other);
void readBehind(QWidget *widget, QWidget *other);
