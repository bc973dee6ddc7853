// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "holding/menu.h"

namespace holding {

/// What a day part is called where it has to be called something: its name, or "Day part 2" of one that has
/// none. `index` is its place among the menu's day parts.
[[nodiscard]] QString daypartTitle(const Daypart &daypart, int index);

} // namespace holding
