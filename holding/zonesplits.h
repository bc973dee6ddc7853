// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QString>
#include <QStringList>

#include "holding/cabinet.h"

/// How much of its zone an entry can take.
namespace holding {

/// The width of a bin's button, in pixels, where no entry asks for more.
inline constexpr int emptyBinButtonWidth = 112;

struct ZoneSplit
{
    int binsPerZone = 0;
    QLatin1StringView text; ///< as entries store it
    int slotsNeeded = 0;    ///< from the entry's own bin on; halves of three bins need all three
    /// The least width of the button in pixels, where a row has one zone and where it has two.
    int width = emptyBinButtonWidth;
    int widthBesideZone = emptyBinButtonWidth;
};

/// By bins a zone, in the order in which they are offered; the first one is what a new product starts with.
inline constexpr auto allZoneSplits = std::to_array<ZoneSplit>({
    {2, QLatin1StringView("1/2"), 1, 194},
    {2, QLatin1StringView("1/1"), 2, 394, 230},
    {3, QLatin1StringView("1/3"), 1, 127},
    {3, QLatin1StringView("1/2"), 3, 194},
    {3, QLatin1StringView("2/3"), 2, 265},
    {3, QLatin1StringView("1/1"), 3, 394},
    {4, QLatin1StringView("1/4"), 1},
    {4, QLatin1StringView("1/2"), 2},
    {4, QLatin1StringView("3/4"), 3},
    {4, QLatin1StringView("1/1"), 4},
});

/// The zone splits that a product of a cabinet may have. Empty for a number of bins that no zone has.
[[nodiscard]] QStringList offeredZoneSplits(int binsPerZone);
/// The zone split that a new product starts with; "1/2" where none is offered.
[[nodiscard]] QString defaultZoneSplits(int binsPerZone);
/// The zone splits with room in a number of free slots: those that need more slots come first, of equal ones
/// the one that is offered later.
[[nodiscard]] QStringList zoneSplitsForRun(int binsPerZone, int freeSlots);
/// The least width in pixels of the button of a bin with an entry of this split.
[[nodiscard]] int binButtonWidth(const CabinetShape &shape, const QString &zoneSplits);

} // namespace holding
