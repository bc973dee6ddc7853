// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/binplan.h"
#include "timerbar/menu.h"

namespace timerbar {

/// What the bin plan tells of a menu: the day parts with a filled bin. None for a cabinet that is not known.
[[nodiscard]] binplan::Cabinet plannedCabinet(const Menu &menu);

} // namespace timerbar
