// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// The menus' temperature units. Files may hold other numbers; all of them count as Fahrenheit.
inline constexpr int unitFahrenheit = 0;
inline constexpr int unitCelsius = 1;

/// Whole °F to whole °C, computed in single precision, halves rounded away from zero.
/// 0 means that no temperature is set and stays 0, in either direction.
[[nodiscard]] int celsiusFromFahrenheit(int fahrenheit);
[[nodiscard]] int fahrenheitFromCelsius(int celsius);

/// A stored temperature (°F) as a number of the given unit, and what is entered in that unit in °F.
[[nodiscard]] int shownTemperature(int fahrenheit, int unit);
[[nodiscard]] int storedTemperature(int shown, int unit);
/// The temperature to store (°F) after an edit: what the box holds now, but the stored one to the degree
/// while the box still shows what it was filled with. Otherwise 200 °F, shown as 93 °C, would become 199 °F
/// by saving it untouched. `boxValue` is what the box really shows, also where its range moved it.
[[nodiscard]] int enteredTemperature(int boxValue, int storedFahrenheit, int unit);

/// What a box for temperatures takes, in the unit that it shows.
struct TemperatureRange
{
    int lowest = 0;
    int highest = 0;

    [[nodiscard]] constexpr bool contains(int shown) const { return shown >= lowest && shown <= highest; }

    friend bool operator==(const TemperatureRange &, const TemperatureRange &) = default;
};

/// "°C" for Celsius, else "°F".
[[nodiscard]] QString unitText(int unit);
/// A stored temperature (°F) with its unit, for example "215°F".
[[nodiscard]] QString temperatureText(int fahrenheit, int unit);
/// An entry's stored temperatures (°F) where room is short: "225/215°F", or "215°F" where they are equal.
[[nodiscard]] QString shortTemperatures(int upper, int lower, int unit);
