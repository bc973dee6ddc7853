// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include "holding/cabinet.h"
#include "model/bin.h"
#include "model/entries.h"
#include "model/names.h"

/// The menu of a holding cabinet as plain data, and what can be done with it without a window.
namespace holding {

inline constexpr int maxEntries = 100; ///< products and groups together
inline constexpr int maxDayparts = 10;
inline constexpr int emptyBin = 0;

/// A named part of the day and what it puts into each bin.
struct Daypart
{
    QStringList names = sameNameInAllLanguages({});
    bool inUse = false;
    /// The id of a product or group. An id need not belong to any entry.
    BinTable<int, maxRows, maxSlots> bins;

    friend bool operator==(const Daypart &, const Daypart &) = default;
};

/// Products and groups share one id space in which 0 is no entry. Files may bring negative or repeated ids;
/// they are kept, and a look-up takes the first product, then the first group.
struct Menu
{
    Menu();

    CabinetConfiguration configuration;
    Entries products;
    Entries groups;
    FixedList<Daypart, maxDayparts> dayparts; ///< the places from daypartCount on are vacant
    int daypartCount = 2;

    [[nodiscard]] CabinetShape shape() const;
    [[nodiscard]] bool isFull() const;
    /// The smallest id from 1 upward that no entry carries.
    [[nodiscard]] int nextFreeId() const;
    /// The product with this id, or null.
    [[nodiscard]] ProductInfo *product(int id) const;
    /// The product or else the group with this id, or null.
    [[nodiscard]] ProductInfo *entry(int id) const;
    /// What entry() gives for each id, for looking up many.
    [[nodiscard]] EntryIndex entriesById() const;

    /// Takes a product out of every group; a group that loses a member falls back to its first one as the
    /// default. True when any group had it.
    bool removeFromGroups(int id);
    /// Empties every bin with this id, in vacant day parts and beyond the cabinet's shape too. True when any
    /// bin had it.
    bool removeFromDayparts(int id);
    /// Takes the next vacant place, of which there must be one.
    void addDaypart(Daypart daypart);
    /// Moves the later day parts down; the place that becomes vacant is as if it had never been used.
    void removeDaypart(int index);
    /// Empties every bin of every day part; names and in-use flags stay.
    void clearBins();
};

} // namespace holding
