// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/bins.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

bool isZoneOfHalves(const RowContent &row, const Zone &zone)
{
    const auto first = row.begin() + zone.first;
    return std::any_of(first, first + zone.count,
                       [](const SlotContent &content) { return content.hasSplits("1/2"_L1); });
}

template <typename Find>
RowContent contentOf(const Daypart &daypart, int row, const Find &find)
{
    RowContent content;
    const auto &ids = daypart.bins[row];
    std::transform(ids.begin(), ids.end(), content.begin(), [&find](int id) {
        return SlotContent{id != emptyBin, id == emptyBin ? nullptr : find(id)};
    });
    return content;
}

} // namespace

bool SlotContent::hasSplits(QLatin1StringView zoneSplits) const
{
    return entry && entry->get_zoneSplits() == zoneSplits;
}

RowContent rowContent(const Menu &menu, const Daypart &daypart, int row)
{
    return contentOf(daypart, row, [&menu](int id) { return menu.entry(id); });
}

RowContent rowContent(const EntryIndex &entries, const Daypart &daypart, int row)
{
    return contentOf(daypart, row, [&entries](int id) { return findEntry(entries, id); });
}

BinLimits zoneLimits(const RowContent &row, const Zone &zone, int slot, bool fanSpeedEnabled)
{
    for (int other = zone.first; other < zone.end(); ++other) {
        const ProductInfo *entry = row[other].entry;
        if (other != slot && entry)
            return {entry->get_upperTemp(), entry->get_lowerTemp(),
                    fanSpeedEnabled ? entry->get_fanSpeed() : 0};
    }
    return {};
}

BinLimits limitsOfStanding(const RowContent &row, const Zone &zone, int slot, bool fanSpeedEnabled)
{
    const BinLimits limits = zoneLimits(row, zone, slot, fanSpeedEnabled);
    const ProductInfo &entry = *row[slot].entry;
    const auto unlessOpen = [](int limit, int own) { return own == 0 ? 0 : limit; };
    return {unlessOpen(limits.upperTemp, entry.get_upperTemp()),
            unlessOpen(limits.lowerTemp, entry.get_lowerTemp()),
            unlessOpen(limits.fanSpeed, entry.get_fanSpeed())};
}

int freeRun(const RowContent &row, const Zone &zone, int slot)
{
    int next = slot + 1;
    while (next < zone.end() && !row[next].filled)
        ++next;
    return next - slot;
}

QStringList allowedZoneSplits(const CabinetShape &shape, const RowContent &row, int slot)
{
    const Zone zone = shape.zoneOfSlot(slot);
    if (zone.count == 1 || (shape.binsPerZone == 3 && isZoneOfHalves(row, zone)))
        return {u"1/2"_s};
    return zoneSplitsForRun(shape.binsPerZone, freeRun(row, zone, slot));
}

bool isBehindHalves(const CabinetShape &shape, const RowContent &row, int slot)
{
    if (shape.binsPerZone != 3)
        return false;
    const Zone zone = shape.zoneOfSlot(slot);
    return slot == zone.end() - 1 && !row[zone.first].hasSplits("1/1"_L1) &&
           isZoneOfHalves(row, {zone.first, zone.count - 1});
}

Misfit binMisfit(const ProductInfo &entry, const BinLimits &limits, const QStringList &zoneSplits,
                 bool fanSpeedEnabled)
{
    if ((limits.upperTemp != 0 && limits.upperTemp != entry.get_upperTemp()) ||
        (limits.lowerTemp != 0 && limits.lowerTemp != entry.get_lowerTemp()))
        return Misfit::Temperatures;
    if (!zoneSplits.contains(entry.get_zoneSplits()))
        return Misfit::ZoneSplits;
    if (fanSpeedEnabled && limits.fanSpeed != 0 && limits.fanSpeed != entry.get_fanSpeed())
        return Misfit::FanSpeed;
    return Misfit::None;
}

bool fitsBin(const ProductInfo &entry, const BinLimits &limits, const QStringList &zoneSplits,
             bool fanSpeedEnabled)
{
    return binMisfit(entry, limits, zoneSplits, fanSpeedEnabled) == Misfit::None;
}

} // namespace holding
