// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "model/productinfo.h"

namespace holding {

/// The settings that decide which bins and groups an entry may be in.
struct HoldingSettings
{
    QString lidType;
    QString zoneSplits;
    int upperTemp = 0; ///< °F
    int lowerTemp = 0; ///< °F
    int fanSpeed = 0;  ///< RPM

    friend bool operator==(const HoldingSettings &, const HoldingSettings &) = default;
};

/// The fan speed counts as 0 while the cabinet does not use it, whatever the entry holds.
[[nodiscard]] HoldingSettings holdingSettings(const ProductInfo &entry, bool fanSpeedEnabled);

/// The settings of a group that decide which bins it fits: its lid is none of them and left empty.
[[nodiscard]] HoldingSettings groupBinSettings(const ProductInfo &group, bool fanSpeedEnabled);

/// What keeps an entry out of a bin or a group: the first thing in the order of the rule.
enum class Misfit { None, Temperatures, ZoneSplits, FanSpeed, LidType };

/// What keeps a product out of a group with these settings. An empty text or 0 is not fixed yet and fits any
/// product.
[[nodiscard]] Misfit groupMisfit(const ProductInfo &product, const HoldingSettings &group,
                                 bool fanSpeedEnabled);
[[nodiscard]] bool fitsGroup(const ProductInfo &product, const HoldingSettings &group, bool fanSpeedEnabled);

} // namespace holding
