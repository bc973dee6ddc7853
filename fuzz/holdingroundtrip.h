// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/menu.h"

namespace fuzzing {

/// Demands that a menu comes back from its JSON document as it was, and is written the same again. The
/// document keeps no value of a field that the configuration switches off: `menu` loses it too.
void demandRoundTrip(holding::Menu &menu);

} // namespace fuzzing
