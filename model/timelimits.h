// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// Which times a product may have, in whole seconds. Each check returns an empty text, or the message of the
/// first limit that is not kept.

/// A product is held for 6 minutes to 8 hours.
[[nodiscard]] QString holdTimeFault(int holdSeconds);
/// More of it is called for before that time is over.
[[nodiscard]] QString alertTimeFault(int holdSeconds, int alertSeconds);

/// A timer is reset within less than an hour.
[[nodiscard]] QString resetTimeFault(int resetSeconds);
