// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/menu.h"
#include "model/binplan.h"

namespace holding {

/// What the bin plan tells of a menu: the day parts in use, with the bins that the editor's grid shows. None
/// for a cabinet that is not known.
[[nodiscard]] binplan::Cabinet plannedCabinet(const Menu &menu);

} // namespace holding
