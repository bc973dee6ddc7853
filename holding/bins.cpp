// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/bins.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

template <typename Row>
auto &at(Row &row, int slot)
{
    return row[static_cast<std::size_t>(slot)];
}

bool isZoneOfHalves(const RowContent &row, const Zone &zone)
{
    const auto first = row.begin() + zone.first;
    return std::any_of(first, first + zone.count,
                       [](const SlotContent &content) { return content.hasSplits("1/2"_L1); });
}

QStringList zoneSplitsForRun(int binsPerZone, int run)
{
    // By the free run, counted from 1.
    static const QList<QStringList> ofTwo{{u"1/2"_s}, {u"1/1"_s, u"1/2"_s}};
    static const QList<QStringList> ofThree{
        {u"1/3"_s}, {u"2/3"_s, u"1/3"_s}, {u"1/1"_s, u"1/2"_s, u"2/3"_s, u"1/3"_s}};
    static const QList<QStringList> ofFour{{u"1/4"_s},
                                           {u"1/2"_s, u"1/4"_s},
                                           {u"3/4"_s, u"1/2"_s, u"1/4"_s},
                                           {u"1/1"_s, u"3/4"_s, u"1/2"_s, u"1/4"_s}};
    switch (binsPerZone) {
    case 2:
        return ofTwo.value(run - 1);
    case 3:
        return ofThree.value(run - 1);
    case 4:
        return ofFour.value(run - 1);
    default:
        return {};
    }
}

Zone firstZone(const CabinetShape &shape)
{
    return {0, shape.binsPerZone};
}

Zone secondZone(const CabinetShape &shape)
{
    return {shape.binsPerZone, shape.singleBinSecondZone ? 1 : shape.binsPerZone};
}

// Two halves of a zone of three bins: its third button goes, the other two share the width.
void showHalves(const CabinetShape &shape, std::array<BinLook, maxSlots> &looks)
{
    at(looks, 2).visible = false;
    at(looks, 0).minimumWidth = at(looks, 1).minimumWidth = binButtonWidth(shape, u"1/2"_s);
}

void hideCoveredBins(const CabinetShape &shape, const Zone &zone, const RowContent &row, int slot,
                     std::array<BinLook, maxSlots> &looks)
{
    const SlotContent &content = at(row, slot);
    const int last = zone.first + zone.count - 1;
    const bool ofThree = shape.binsPerZone == 3;
    if (content.hasSplits("1/1"_L1)) {
        for (int covered = slot + 1; covered <= last; ++covered)
            at(looks, covered).visible = false;
    } else if (ofThree && content.hasSplits("1/2"_L1) && slot < last) {
        showHalves(shape, looks);
    } else if (ofThree && content.hasSplits("2/3"_L1) && slot < last && !at(row, slot + 1).filled) {
        // A filled neighbour stays in sight: nothing that is assigned is concealed.
        at(looks, slot + 1).visible = false;
    }
}

} // namespace

bool SlotContent::hasSplits(QLatin1StringView zoneSplits) const
{
    return entry && entry->get_zoneSplits() == zoneSplits;
}

Zone zoneOfSlot(const CabinetShape &shape, int slot)
{
    return shape.zones == 2 && slot >= shape.binsPerZone ? secondZone(shape) : firstZone(shape);
}

RowContent rowContent(const Menu &menu, const Daypart &daypart, int row)
{
    RowContent content;
    const auto &ids = at(daypart.bins, row);
    std::transform(ids.begin(), ids.end(), content.begin(), [&menu](int id) {
        return SlotContent{id != emptyBin, id == emptyBin ? nullptr : menu.entry(id)};
    });
    return content;
}

BinLimits zoneLimits(const RowContent &row, const Zone &zone, int slot, bool fanSpeedEnabled)
{
    for (int other = zone.first; other < zone.first + zone.count; ++other) {
        const ProductInfo *entry = at(row, other).entry;
        if (other != slot && entry)
            return {entry->get_upperTemp(), entry->get_lowerTemp(),
                    fanSpeedEnabled ? entry->get_fanSpeed() : 0};
    }
    return {};
}

int freeRun(const RowContent &row, const Zone &zone, int slot)
{
    int next = slot + 1;
    while (next < zone.first + zone.count && !at(row, next).filled)
        ++next;
    return next - slot;
}

QStringList allowedZoneSplits(const CabinetShape &shape, const RowContent &row, int slot)
{
    const Zone zone = zoneOfSlot(shape, slot);
    if (zone.count == 1 || (shape.binsPerZone == 3 && isZoneOfHalves(row, zone)))
        return {u"1/2"_s};
    return zoneSplitsForRun(shape.binsPerZone, freeRun(row, zone, slot));
}

bool fitsBin(const ProductInfo &entry, const BinLimits &limits, const QStringList &zoneSplits,
             bool fanSpeedEnabled)
{
    return (limits.upperTemp == 0 || limits.upperTemp == entry.get_upperTemp()) &&
           (limits.lowerTemp == 0 || limits.lowerTemp == entry.get_lowerTemp()) &&
           zoneSplits.contains(entry.get_zoneSplits()) &&
           (!fanSpeedEnabled || limits.fanSpeed == 0 || limits.fanSpeed == entry.get_fanSpeed());
}

int binButtonWidth(const CabinetShape &shape, const QString &zoneSplits)
{
    struct Width
    {
        int zones = 0;
        int binsPerZone = 0;
        QLatin1StringView zoneSplits;
        int pixels = 0;
    };
    // What is not listed is as wide as an empty bin.
    static constexpr std::array<Width, 7> widths{{
        {1, 2, "1/2"_L1, 194},
        {1, 2, "1/1"_L1, 394},
        {1, 3, "1/3"_L1, 127},
        {1, 3, "1/2"_L1, 194},
        {1, 3, "2/3"_L1, 265},
        {1, 3, "1/1"_L1, 394},
        {2, 2, "1/1"_L1, 230},
    }};
    const auto *found = std::find_if(widths.begin(), widths.end(), [&](const Width &width) {
        return width.zones == shape.zones && width.binsPerZone == shape.binsPerZone &&
               width.zoneSplits == zoneSplits;
    });
    return found == widths.end() ? emptyBinButtonWidth : found->pixels;
}

std::array<BinLook, maxSlots> rowLook(const CabinetShape &shape, const RowContent &row)
{
    std::array<BinLook, maxSlots> looks;
    QList<Zone> zones{firstZone(shape)};
    if (shape.zones == 2)
        zones.append(secondZone(shape));
    for (const Zone &zone : std::as_const(zones)) {
        for (int slot = zone.first; slot < zone.first + zone.count; ++slot) {
            at(looks, slot).visible = true;
            if (const ProductInfo *entry = at(row, slot).entry)
                at(looks, slot).minimumWidth = binButtonWidth(shape, entry->get_zoneSplits());
        }
        for (int slot = zone.first; slot < zone.first + zone.count; ++slot) {
            if (at(looks, slot).visible)
                hideCoveredBins(shape, zone, row, slot, looks);
        }
    }
    return looks;
}

void fitIntoZone(std::array<BinLook, maxSlots> &looks, const Zone &zone, int zoneWidth, int gap)
{
    int excess = -gap - zoneWidth;
    for (int slot = zone.first; slot < zone.first + zone.count; ++slot)
        excess += at(looks, slot).visible ? at(looks, slot).minimumWidth + gap : 0;
    for (int slot = zone.first + zone.count - 1; slot >= zone.first && excess > 0; --slot) {
        BinLook &look = at(looks, slot);
        const int cut = look.visible ? std::min(excess, look.minimumWidth - emptyBinButtonWidth) : 0;
        look.minimumWidth -= cut;
        excess -= cut;
    }
}

bool isShowableRowCount(int rows)
{
    return (rows >= 2 && rows <= 6) || rows == 8;
}

} // namespace holding
