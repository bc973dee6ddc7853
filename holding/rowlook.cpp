// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/rowlook.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

// A zone of more bins than these have room for is as wide as its bins when all are empty.
constexpr int onlyZoneWidth = 394;
constexpr int besideZoneWidth = 340;
constexpr int oneBinZoneWidth = 177;

// Two halves of a zone of three bins: its third button goes, the other two share the width.
void showHalves(const CabinetShape &shape, const Zone &zone, RowLook &looks)
{
    looks[zone.first + 2].visible = false;
    for (const int slot : {zone.first, zone.first + 1}) {
        looks[slot].minimumWidth = binButtonWidth(shape, u"1/2"_s);
        looks[slot].parts = 2;
    }
}

void hideCoveredBins(const CabinetShape &shape, const Zone &zone, const RowContent &row, int slot,
                     RowLook &looks)
{
    const SlotContent &content = row[slot];
    const int last = zone.end() - 1;
    const bool ofThree = shape.binsPerZone == 3;
    if (content.hasSplits("1/1"_L1)) {
        for (int covered = slot + 1; covered <= last; ++covered)
            looks[covered].visible = false;
    } else if (ofThree && content.hasSplits("1/2"_L1) && slot < last) {
        showHalves(shape, zone, looks);
    } else if (ofThree && content.hasSplits("2/3"_L1) && slot < last && !row[slot + 1].filled) {
        // A filled neighbour stays in sight: nothing that is assigned is concealed.
        looks[slot + 1].visible = false;
    }
}

void showZone(const CabinetShape &shape, const Zone &zone, const RowContent &row, RowLook &looks)
{
    for (int slot = zone.first; slot < zone.end(); ++slot) {
        looks[slot].visible = true;
        looks[slot].parts = zone.count;
        if (const ProductInfo *entry = row[slot].entry)
            looks[slot].minimumWidth = binButtonWidth(shape, entry->get_zoneSplits());
    }
    for (int slot = zone.first; slot < zone.end(); ++slot) {
        if (looks[slot].visible)
            hideCoveredBins(shape, zone, row, slot, looks);
    }
}

} // namespace

RowLook rowLook(const CabinetShape &shape, const RowContent &row)
{
    RowLook looks;
    for (int zone = 0; zone < std::max<int>(shape.zones, 1); ++zone)
        showZone(shape, shape.zone(zone), row, looks);
    return looks;
}

namespace {

void spanZone(const Zone &zone, const RowLook &looks, RowSpans &spans)
{
    const int parts = looks[zone.first].parts;
    int covering = zone.first; // the first bin of a zone always shows
    for (int slot = zone.first; slot < zone.first + parts; ++slot) {
        if (looks[slot].visible) {
            covering = slot;
            spans[slot] = {slot - zone.first, 0, parts};
        }
        ++spans[covering].count;
    }
}

} // namespace

RowSpans rowSpans(const CabinetShape &shape, const RowLook &looks)
{
    RowSpans spans;
    for (int zone = 0; zone < shape.zones; ++zone)
        spanZone(shape.zone(zone), looks, spans);
    return spans;
}

int zoneWidth(const CabinetShape &shape, int zone)
{
    if (zone > 0 && shape.singleBinSecondZone)
        return oneBinZoneWidth;
    const int bins = shape.binsPerZone;
    const int emptyBins = bins * emptyBinButtonWidth + (bins - 1) * binGap;
    return std::max(zone > 0 || shape.zones == 2 ? besideZoneWidth : onlyZoneWidth, emptyBins);
}

void fitIntoZone(RowLook &looks, const Zone &zone, int zoneWidth)
{
    int excess = -binGap - zoneWidth;
    for (int slot = zone.first; slot < zone.end(); ++slot)
        excess += looks[slot].visible ? looks[slot].minimumWidth + binGap : 0;
    for (int slot = zone.end() - 1; slot >= zone.first && excess > 0; --slot) {
        BinLook &look = looks[slot];
        const int cut = look.visible ? std::min(excess, look.minimumWidth - emptyBinButtonWidth) : 0;
        look.minimumWidth -= cut;
        excess -= cut;
    }
}

} // namespace holding
