// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>
#include <vector>

#include <QStringList>

#include "holding/cabinet.h"
#include "model/names.h"
#include "model/productinfo.h"

/// The menu of a holding cabinet as plain data, and the rules that need no window.
namespace holding {

inline constexpr int maxEntries = 100; ///< products and groups together
inline constexpr int maxDayparts = 10;
inline constexpr int maxRows = 8;
inline constexpr int maxSlots = 4; ///< places in a row
inline constexpr int emptyBin = 0;

using Entries = std::vector<std::unique_ptr<ProductInfo>>;

/// A named part of the day and what it puts into each bin.
struct Daypart
{
    QStringList names = sameNameInAllLanguages({});
    bool inUse = false;
    /// [row from the top][slot]: the id of a product or group. An id need not belong to any entry.
    std::array<std::array<int, maxSlots>, maxRows> bins{};
};

/// Products and groups share one id space in which 0 is no entry. Files may bring negative or repeated ids;
/// they are kept, and a look-up takes the first product, then the first group.
struct Menu
{
    Menu();

    CabinetConfiguration configuration;
    Entries products;
    Entries groups;
    std::array<Daypart, maxDayparts> dayparts; ///< the places from daypartCount on are vacant
    int daypartCount = 2;

    [[nodiscard]] CabinetShape shape() const;
    [[nodiscard]] bool isFull() const;
    /// The smallest id from 1 upward that no entry carries.
    [[nodiscard]] int nextFreeId() const;
    /// The product with this id, or null.
    [[nodiscard]] ProductInfo *product(int id) const;
    /// The product or else the group with this id, or null.
    [[nodiscard]] ProductInfo *entry(int id) const;

    /// Takes a product out of every group; a group that loses a member falls back to its first one as the
    /// default. True when any group had it.
    bool removeFromGroups(int id);
    /// Empties every bin with this id, in vacant day parts and beyond the cabinet's shape too. True when any
    /// bin had it.
    bool removeFromDayparts(int id);
    /// Takes the next vacant place, of which there must be one: no bin filled, and not in use until the user
    /// says so.
    void addDaypart(const QStringList &names);
    /// Moves the later day parts down; the place that becomes vacant is as if it had never been used.
    void removeDaypart(int index);
    /// Empties every bin of every day part; names and in-use flags stay.
    void clearBins();
};

/// The names that are shown for the entries, in their order.
[[nodiscard]] QStringList namesOf(const Entries &entries);

/// The zone split that a new product starts with.
[[nodiscard]] QString defaultZoneSplits(int binsPerZone);
/// The zone splits that a product of a cabinet may have, in the order in which they are offered. Empty for a
/// number of bins that no cabinet has.
[[nodiscard]] QStringList offeredZoneSplits(int binsPerZone);

/// A new entry as the editors first offer it.
[[nodiscard]] std::unique_ptr<ProductInfo> newProduct(int id, int binsPerZone);
[[nodiscard]] std::unique_ptr<ProductInfo> newGroup(int id);
/// A copy under another id. It is never locked, so that the user can change what he just made.
[[nodiscard]] std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id);

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

/// Whether a product may join a group with these settings. An empty text or 0 is not fixed yet and fits any
/// product.
[[nodiscard]] bool fitsGroup(const ProductInfo &product, const HoldingSettings &group, bool fanSpeedEnabled);

} // namespace holding
