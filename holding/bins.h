// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include "holding/menu.h"
#include "holding/settings.h"
#include "holding/zonesplits.h"

/// Which entry may stand in which bin.
namespace holding {

/// What a slot holds. An id without an entry fills its bin, but says nothing of it.
struct SlotContent
{
    bool filled = false;
    const ProductInfo *entry = nullptr;

    [[nodiscard]] bool hasSplits(QLatin1StringView zoneSplits) const;
};
using RowContent = FixedList<SlotContent, maxSlots>;

[[nodiscard]] RowContent rowContent(const Menu &menu, const Daypart &daypart, int row);
/// The same, for many rows.
[[nodiscard]] RowContent rowContent(const EntryIndex &entries, const Daypart &daypart, int row);

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

/// The same for the entry that stands in the slot. What it leaves open itself sets no limit, as the entries
/// beside it may have come after it.
[[nodiscard]] BinLimits limitsOfStanding(const RowContent &row, const Zone &zone, int slot,
                                         bool fanSpeedEnabled);

/// How many slots from this one on an entry can take: the slot itself and the empty ones behind it in its
/// zone.
[[nodiscard]] int freeRun(const RowContent &row, const Zone &zone, int slot);

/// The zone splits that an entry for the slot may have, in the order of zoneSplitsForRun().
[[nodiscard]] QStringList allowedZoneSplits(const CabinetShape &shape, const RowContent &row, int slot);

/// Whether a bin has no place of its own: a half in one of the first two bins of three makes two halves of
/// their zone, which leave no third bin. Whatever a file puts there is not shown.
[[nodiscard]] bool isBehindHalves(const CabinetShape &shape, const RowContent &row, int slot);

/// What keeps an entry out of a bin with these limits and splits.
[[nodiscard]] Misfit binMisfit(const ProductInfo &entry, const BinLimits &limits,
                               const QStringList &zoneSplits, bool fanSpeedEnabled);
[[nodiscard]] bool fitsBin(const ProductInfo &entry, const BinLimits &limits, const QStringList &zoneSplits,
                           bool fanSpeedEnabled);

} // namespace holding
