// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>

#include "model/fixedlist.h"

/// The place of a bin in a cabinet: rows are counted from the top, slots of a row from the left, both from 0.
struct Bin
{
    int row = 0;
    int slot = 0;

    friend constexpr bool operator==(const Bin &, const Bin &) = default;
};

/// A value for each bin of the largest cabinet of a line.
template <typename T, int rowCount, int slotCount>
struct BinTable : FixedList<FixedList<T, slotCount>, rowCount>
{
    using FixedList<FixedList<T, slotCount>, rowCount>::operator[];
    [[nodiscard]] constexpr T &operator[](Bin bin) { return (*this)[bin.row][bin.slot]; }
    [[nodiscard]] constexpr const T &operator[](Bin bin) const { return (*this)[bin.row][bin.slot]; }
};

/// Puts `replacement` into every bin that holds `value`; true where there was one.
template <typename T, int rowCount, int slotCount>
bool replaceInBins(BinTable<T, rowCount, slotCount> &bins, const T &value, const T &replacement)
{
    bool found = false;
    for (auto &row : bins) {
        found = found || std::find(row.begin(), row.end(), value) != row.end();
        std::replace(row.begin(), row.end(), value, replacement);
    }
    return found;
}
