// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QLayout;
class QWidget;

/// The layout that places the widget, however deep in the layouts of its parent; null for none.
[[nodiscard]] QLayout *layoutOf(QWidget *widget);
