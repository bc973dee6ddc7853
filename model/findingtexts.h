// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "model/findings.h"
#include "model/temperature.h"

/// What is wrong with a product's upper or lower temperature (°F), in the menu's unit; its dialog takes this
/// range of it.
[[nodiscard]] QString unfitTemperatureText(FindingKind kind, int fahrenheit, int unit,
                                           const TemperatureRange &range);
