// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/bins.h"

/// How a row of the grid looks with what stands in its bins. All widths are in pixels.
namespace holding {

/// Between two bins of a zone; in the form too. 265 and 127 leave no more in the only zone.
inline constexpr int binGap = 2;

/// How a bin's button shows.
struct BinLook
{
    bool visible = false;
    int minimumWidth = emptyBinButtonWidth;
    int parts = 1; ///< equal ones that its zone has

    friend bool operator==(const BinLook &, const BinLook &) = default;
};
using RowLook = FixedList<BinLook, maxSlots>;

/// A row's buttons. An entry that takes more than its own bin hides the bins that it covers.
[[nodiscard]] RowLook rowLook(const CabinetShape &shape, const RowContent &row);

/// Zones keep their width whatever stands in them, so that filling a bin never moves another one. Zones are
/// counted from 0.
[[nodiscard]] int zoneWidth(const CabinetShape &shape, int zone);

/// The part of its zone that a bin takes: `count` of `parts` equal ones from `first` on, counted from 0. None
/// for a bin that does not show.
struct BinSpan
{
    int first = 0;
    int count = 0;
    int parts = 1;

    friend bool operator==(const BinSpan &, const BinSpan &) = default;
};
using RowSpans = FixedList<BinSpan, maxSlots>;

/// A bin takes its own part and those of the bins that it covers.
[[nodiscard]] RowSpans rowSpans(const CabinetShape &shape, const RowLook &looks);

/// What a file holds, or another cabinet left, may ask for more than a zone has: the last bins then give way,
/// down to the width of an empty one.
void fitIntoZone(RowLook &looks, const Zone &zone, int zoneWidth);

} // namespace holding
