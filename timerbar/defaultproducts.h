// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/entries.h"

namespace timerbar {

/// The products that a new menu starts with.
[[nodiscard]] Entries defaultProducts();

} // namespace timerbar
