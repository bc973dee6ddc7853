// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QString>
#include <QStringList>

#include "holding/menu.h"

/// Which entry may stand in which bin, and how a row of bins looks with what stands in it.
namespace holding {

/// Neighbouring slots of a row that share their settings.
struct Zone
{
    int first = 0;
    int count = 0; ///< 1 only for the second zone of a cabinet whose second zone has one bin

    friend bool operator==(const Zone &, const Zone &) = default;
};

[[nodiscard]] Zone zoneOfSlot(const CabinetShape &shape, int slot);

/// What a slot holds. An id without an entry fills its bin, but says nothing of it.
struct SlotContent
{
    bool filled = false;
    const ProductInfo *entry = nullptr;

    [[nodiscard]] bool hasSplits(QLatin1StringView zoneSplits) const;
};
using RowContent = std::array<SlotContent, maxSlots>;

[[nodiscard]] RowContent rowContent(const Menu &menu, const Daypart &daypart, int row);

/// What every entry of a zone must share; 0 is no limit.
struct BinLimits
{
    int upperTemp = 0; ///< °F
    int lowerTemp = 0; ///< °F
    int fanSpeed = 0;  ///< RPM; always 0 while the cabinet does not use it

    friend bool operator==(const BinLimits &, const BinLimits &) = default;
};

/// The limits that the zone's other slots set for a slot: those of the first one with an entry.
[[nodiscard]] BinLimits zoneLimits(const RowContent &row, const Zone &zone, int slot, bool fanSpeedEnabled);

/// How many slots from this one on an entry can take: the slot itself and the empty ones behind it in its
/// zone.
[[nodiscard]] int freeRun(const RowContent &row, const Zone &zone, int slot);

/// The zone splits that an entry for the slot may have, the largest first.
[[nodiscard]] QStringList allowedZoneSplits(const CabinetShape &shape, const RowContent &row, int slot);

/// Whether an entry may stand in a bin with these limits and splits.
[[nodiscard]] bool fitsBin(const ProductInfo &entry, const BinLimits &limits, const QStringList &zoneSplits,
                           bool fanSpeedEnabled);

/// The least width in pixels of the button of a bin with an entry of this split, or of an empty bin.
[[nodiscard]] int binButtonWidth(const CabinetShape &shape, const QString &zoneSplits);
inline constexpr int emptyBinButtonWidth = 112;

/// How a bin's button shows.
struct BinLook
{
    bool visible = false;
    int minimumWidth = emptyBinButtonWidth;

    friend bool operator==(const BinLook &, const BinLook &) = default;
};

/// A row's buttons. An entry that takes more than its own bin hides the bins that it covers.
[[nodiscard]] std::array<BinLook, maxSlots> rowLook(const CabinetShape &shape, const RowContent &row);

/// What a file holds, or another cabinet left, may ask for more than a zone has: the last bins then give way,
/// down to the width of an empty one. Both widths are in pixels, `gap` between two bins.
void fitIntoZone(std::array<BinLook, maxSlots> &looks, const Zone &zone, int zoneWidth, int gap);

/// The rows of a cabinet that the grid can show.
[[nodiscard]] bool isShowableRowCount(int rows);

} // namespace holding
