// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>

#include "model/productinfo.h"
#include "model/temperature.h"

/// What a product may be given in its dialog.
namespace holding {

/// The temperatures that can be entered, in the menu's unit.
[[nodiscard]] TemperatureRange productTemperatureRange(int unit);
/// Whether a product may keep having no temperature: a stored 0 means that none is set. In Celsius it can, so
/// that opening and saving does not make one up; in Fahrenheit the lowest temperature takes its place.
[[nodiscard]] bool mayHaveNoTemperature(int unit, int storedFahrenheit);

/// Whether a stored temperature (°F) is one that a product may have in a menu of this unit.
[[nodiscard]] bool isProductTemperature(int fahrenheit, int unit);

/// RPM; the least is 0.
inline constexpr int maxFanSpeed = 10000;
[[nodiscard]] bool isProductFanSpeed(int fanSpeed);

/// The id that a box stands for. A menu's hundredth entry and products of a file may have an id outside the
/// box's range: as long as the box shows what it made of that id, it stands for the id itself.
[[nodiscard]] int enteredId(int boxValue, int lowest, int highest, int ownId);

/// Whether another product has this id. `ownIndex` is the product's place among the menu's products; for a
/// new one any place that no product has.
[[nodiscard]] bool isIdTaken(const QList<ProductInfo *> &products, int ownIndex, int id);

} // namespace holding
