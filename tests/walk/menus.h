// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include "tests/walk/chance.h"

namespace walk {

/// Menus with contents by chance, as the bytes of their files: holding cabinets of every model, some with
/// more entries than an editor adds, with values that no dialog takes and ids that no entry has.
[[nodiscard]] QByteArray holdingMenu(Chance &chance);
[[nodiscard]] QByteArray oldHoldingMenu(Chance &chance);
[[nodiscard]] QByteArray laneConfiguration(Chance &chance);
[[nodiscard]] QByteArray timerBarMenu(Chance &chance);

} // namespace walk
