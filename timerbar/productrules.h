// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "model/temperature.h"

/// What a product may hold when it is entered; files may bring more. Its times are in model/timelimits.h.
namespace timerbar {

/// The cabinet shows English letters and digits; a name may hold blanks too. Both return an empty text, or
/// the message of a character that cannot be taken. An empty name passes.
[[nodiscard]] QString nameFault(QStringView name);
[[nodiscard]] QString shortNameFault(QStringView shortName);

/// In the unit that the user enters.
[[nodiscard]] TemperatureRange productTemperatureRange(int unit);

/// Whether a stored temperature (°F) is one that a product may have in a menu of this unit.
[[nodiscard]] bool isProductTemperature(int fahrenheit, int unit);

/// What the user is to know of these temperatures (°F); empty for nothing.
[[nodiscard]] QString temperatureNotice(int upper, int lower);

} // namespace timerbar
