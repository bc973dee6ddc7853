// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class ProductInfo;

namespace timerbar {

/// What a list tells of a product besides its name: "215°F / 200°F, Holding Time: 01:00". Empty for null.
[[nodiscard]] QString rowDescription(const ProductInfo *product, int temperatureUnit);

} // namespace timerbar
