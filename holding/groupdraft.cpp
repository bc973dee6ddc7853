// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/groupdraft.h"

#include <algorithm>

namespace holding {

GroupDraft::GroupDraft(const ProductInfo &group, const CabinetConfiguration &configuration)
    : m_fanSpeedEnabled(configuration.fanSpeedEnabled)
    , m_hasLids(!isZpv(configuration.type))
    , m_members(group.get_productList())
    , m_defaultPosition(group.get_defaultIndex())
{
    if (!m_members.isEmpty())
        fixSettings(group);
}

void GroupDraft::fixSettings(const ProductInfo &entry)
{
    m_settings =
        m_hasLids ? holdingSettings(entry, m_fanSpeedEnabled) : groupBinSettings(entry, m_fanSpeedEnabled);
}

bool GroupDraft::fits(const ProductInfo &product) const
{
    return fitsGroup(product, m_settings, m_fanSpeedEnabled);
}

void GroupDraft::add(const ProductInfo &product)
{
    if (!m_members.contains(product.get_productId()))
        m_members.append(product.get_productId());
    if (m_members.size() == 1)
        fixSettings(product);
}

void GroupDraft::remove(int position)
{
    m_members.removeAt(position);
    if (m_defaultPosition > position)
        --m_defaultPosition;
    if (m_members.isEmpty())
        m_settings = {};
}

void GroupDraft::settleDefault(const QList<int> &listedPositions)
{
    m_defaultPosition =
        settledDefault(m_defaultPosition, static_cast<int>(m_members.size()), [&](int position) {
            return std::binary_search(listedPositions.begin(), listedPositions.end(), position);
        });
}

void GroupDraft::writeTo(ProductInfo &group) const
{
    group.set_upperTemp(m_settings.upperTemp);
    group.set_lowerTemp(m_settings.lowerTemp);
    group.set_zoneSplits(m_settings.zoneSplits);
    group.set_lidType(m_settings.lidType);
    group.set_fanSpeed(m_settings.fanSpeed);
    group.set_productList(m_members);
    group.set_defaultIndex(m_defaultPosition);
}

int settledDefault(int stored, int count, const std::function<bool(int)> &isListed)
{
    const int nearest = std::clamp(stored, 0, std::max(0, count - 1));
    for (int position = nearest; position < count; ++position) {
        if (isListed(position))
            return position;
    }
    for (int position = nearest - 1; position >= 0; --position) {
        if (isListed(position))
            return position;
    }
    return nearest;
}

} // namespace holding
