// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/settings.h"

namespace holding {

HoldingSettings holdingSettings(const ProductInfo &entry, bool fanSpeedEnabled)
{
    return {entry.get_lidType(), entry.get_zoneSplits(), entry.get_upperTemp(), entry.get_lowerTemp(),
            fanSpeedEnabled ? entry.get_fanSpeed() : 0};
}

HoldingSettings groupBinSettings(const ProductInfo &group, bool fanSpeedEnabled)
{
    HoldingSettings settings = holdingSettings(group, fanSpeedEnabled);
    settings.lidType.clear();
    return settings;
}

Misfit groupMisfit(const ProductInfo &product, const HoldingSettings &group, bool fanSpeedEnabled)
{
    const HoldingSettings own = holdingSettings(product, fanSpeedEnabled);
    if (!group.lidType.isEmpty() && group.lidType != own.lidType)
        return Misfit::LidType;
    if (!group.zoneSplits.isEmpty() && group.zoneSplits != own.zoneSplits)
        return Misfit::ZoneSplits;
    if ((group.upperTemp != 0 && group.upperTemp != own.upperTemp) ||
        (group.lowerTemp != 0 && group.lowerTemp != own.lowerTemp))
        return Misfit::Temperatures;
    if (fanSpeedEnabled && group.fanSpeed != 0 && group.fanSpeed != own.fanSpeed)
        return Misfit::FanSpeed;
    return Misfit::None;
}

bool fitsGroup(const ProductInfo &product, const HoldingSettings &group, bool fanSpeedEnabled)
{
    return groupMisfit(product, group, fanSpeedEnabled) == Misfit::None;
}

} // namespace holding
