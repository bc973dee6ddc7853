// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/menu.h"
#include "timerbar/menu.h"

/// A KTR54 whose bins hold a breakfast that a kitchen could serve: what stands in one zone is held alike.
[[nodiscard]] holding::Menu breakfastOfHolding();

/// The same with three things to look at: a product, a group and a bin.
[[nodiscard]] holding::Menu breakfastToLookAt();

/// The same for a KTR34.
[[nodiscard]] timerbar::Menu breakfastOfTimerBar();
