// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/settings.h"

/// Gives a product these settings.
inline void holdAs(ProductInfo &product, const holding::HoldingSettings &settings)
{
    product.set_lidType(settings.lidType);
    product.set_zoneSplits(settings.zoneSplits);
    product.set_upperTemp(settings.upperTemp);
    product.set_lowerTemp(settings.lowerTemp);
    product.set_fanSpeed(settings.fanSpeed);
}
