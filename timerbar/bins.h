// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include "timerbar/menu.h"

namespace timerbar {

/// Names of the six day parts in the order of their indices, as the user sees them.
[[nodiscard]] QStringList daypartNames();

/// °F; 0 for both where the bin has no neighbour.
struct ReferenceTemperatures
{
    int upper = 0;
    int lower = 0;

    friend bool operator==(const ReferenceTemperatures &, const ReferenceTemperatures &) = default;
};

/// The temperatures of the product in the other bin of the same pair.
[[nodiscard]] ReferenceTemperatures neighbourTemperatures(const Menu &menu, int daypart, Bin bin);

/// What a product demands of its neighbour; where that changes it can stay in no bin.
[[nodiscard]] ReferenceTemperatures temperaturesOf(const ProductInfo &product);

/// Whether a product may stand beside one with these temperatures. The upper one only says that there is a
/// neighbour: both of the product's temperatures are compared with the lower one.
[[nodiscard]] bool fitsNeighbour(const ReferenceTemperatures &product,
                                 const ReferenceTemperatures &reference);
[[nodiscard]] bool fitsNeighbour(const ProductInfo &product, const ReferenceTemperatures &reference);

/// Why a product cannot stand there, in the menu's unit; empty exactly where fitsNeighbour() says that it
/// can.
[[nodiscard]] QString misfitText(const ProductInfo &product, const ReferenceTemperatures &reference,
                                 int temperatureUnit);
/// What the neighbour demands of a product.
[[nodiscard]] QString demandText(const ReferenceTemperatures &reference, int temperatureUnit);

} // namespace timerbar
