// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QList>

#include "holding/cabinet.h"
#include "holding/settings.h"

namespace holding {

/// A group while it is edited: its members, which of them is the default, and the settings that all members
/// share. The first member fixes the settings; without a member any product may join. The record changes with
/// writeTo() only.
class GroupDraft
{
public:
    /// Starts from what the group holds. Of its settings those count that the cabinet uses; what a group
    /// without members still stores fixes nothing.
    GroupDraft(const ProductInfo &group, const CabinetConfiguration &configuration);

    /// Product ids in the group's order.
    [[nodiscard]] const QList<int> &members() const { return m_members; }
    /// The default member's position in members(). A file may bring any number.
    [[nodiscard]] int defaultPosition() const { return m_defaultPosition; }
    [[nodiscard]] const HoldingSettings &settings() const { return m_settings; }

    [[nodiscard]] bool fits(const ProductInfo &product) const;
    /// Appends a product that fits, unless it is a member already. The only member fixes the settings.
    void add(const ProductInfo &product);
    /// The default stays the same product; where that one goes, the next member takes its place. Call
    /// settleDefault() afterwards, as the last member has none behind it.
    void remove(int position);

    void setDefault(int position) { m_defaultPosition = position; }
    /// Takes settledDefault() of these ascending positions as the default.
    void settleDefault(const QList<int> &listedPositions);

    /// Stores all but the name.
    void writeTo(ProductInfo &group) const;

private:
    void fixSettings(const ProductInfo &entry);

    bool m_fanSpeedEnabled;
    bool m_hasLids;
    QList<int> m_members;
    int m_defaultPosition;
    HoldingSettings m_settings;
};

/// The position of a group's default member, as its dialog takes it: the stored one, or where that is not
/// listed the next one that is, or else the last one. A file may name a default that does not exist or whose
/// product is missing. Where none of `count` members is listed, the nearest position that there is, or 0.
[[nodiscard]] int settledDefault(int stored, int count, const std::function<bool(int)> &isListed);

} // namespace holding
