// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QMdiArea;

/// From now on the area scrolls to what gets the focus in its sub-windows, and to the row of a list that has
/// it, where the area is too small to show a whole sub-window.
void keepFocusInSight(QMdiArea *area);
