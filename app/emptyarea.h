// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QMdiArea;

/// Paints the program's icon and how to begin into a document area while no menu is open in it, and tells
/// screen readers so. To be called once; it goes with the area.
void showHowToBegin(QMdiArea *area);
