// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/binplan.h"

#include <algorithm>

#include "holding/binlabel.h"
#include "holding/rowdescription.h"
#include "holding/rowlook.h"
#include "holding/timercolors.h"
#include "model/times.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

constexpr int zoneGap = 12; ///< beside what zoneWidth() tells
// A file may give a group millions of members, and a member a name of megabytes.
constexpr qsizetype mostMembers = maxEntries;
constexpr qsizetype longestMember = 60;

/// The menu and what is looked up in it over and over.
struct Planned
{
    const Menu &menu;
    EntryIndex products;
};

/// The place of the member that the cabinet starts with; of the first one where a file holds a wrong place.
qsizetype defaultMember(const ProductInfo &group)
{
    const qsizetype place = group.get_defaultIndex();
    return place >= 0 && place < group.get_productList().size() ? place : 0;
}

/// Where a bin's settings that a group has not of its own come from: the product itself, or the member that
/// the cabinet starts with. Null where that is missing.
const ProductInfo *timedProduct(const ProductInfo &entry, const EntryIndex &products)
{
    if (!entry.get_isGroup())
        return &entry;
    const QList<int> members = entry.get_productList();
    return members.isEmpty() ? nullptr : findEntry(products, members[defaultMember(entry)]);
}

QString settingsText(const ProductInfo &entry, const ProductInfo *timed,
                     const CabinetConfiguration &configuration)
{
    const QString temperatures = shortTemperaturesText(entry, configuration);
    return timed ? temperatures + u"  "_s + timeText(timed->get_holdTime()) : temperatures;
}

QString membersText(const ProductInfo &group, const EntryIndex &products)
{
    const QList<int> ids = group.get_productList();
    QStringList names;
    const auto append = [&](qsizetype place) {
        const SlotContent member{true, findEntry(products, ids[place])};
        names.append(binLabel(member, ids[place]).name.left(longestMember));
    };
    if (!ids.isEmpty())
        append(defaultMember(group));
    for (qsizetype i = 0; i < ids.size() && names.size() < mostMembers; ++i) {
        if (i != defaultMember(group))
            append(i);
    }
    if (names.size() < ids.size())
        names.append(u"…"_s);
    return names.join(u" · "_s);
}

binplan::Content contentOf(const Planned &planned, const SlotContent &slot, int id)
{
    binplan::Content content{binLabel(slot, id).name, {}, {}, 0, {}};
    if (!slot.entry)
        return content;
    const CabinetConfiguration &configuration = planned.menu.configuration;
    const ProductInfo *timed = timedProduct(*slot.entry, planned.products);
    content.settings = settingsText(*slot.entry, timed, configuration);
    const TimerColor &color = timerColorByName(timed ? timed->get_timerColor() : QString());
    if (configuration.timerColorEnabled && !color.isNone()) {
        content.colorName = shadeName(color);
        content.color = color.color;
    }
    if (slot.entry->get_isGroup())
        content.members = membersText(*slot.entry, planned.products);
    return content;
}

/// Where a zone stands in the width of the grid, which is 1.
struct ZonePlace
{
    qreal left = 0;
    qreal width = 1;
};

ZonePlace placeOf(const CabinetShape &shape, int zone)
{
    const int first = zoneWidth(shape, 0);
    if (shape.zones < 2)
        return {};
    const qreal all = first + zoneGap + zoneWidth(shape, 1);
    return zone == 0 ? ZonePlace{0, first / all}
                     : ZonePlace{(first + zoneGap) / all, zoneWidth(shape, 1) / all};
}

QList<binplan::GridBin> binsOf(const Planned &planned, const Daypart &daypart, int row)
{
    const CabinetShape shape = planned.menu.shape();
    const RowContent content = rowContent(planned.menu, daypart, row);
    const RowSpans spans = rowSpans(shape, rowLook(shape, content));
    QList<binplan::GridBin> bins;
    for (int slot = 0; slot < shape.binsPerRow(); ++slot) {
        const BinSpan &span = spans[slot];
        if (span.count == 0)
            continue;
        const ZonePlace zone = placeOf(shape, slot < shape.binsPerZone ? 0 : 1);
        const qreal part = zone.width / span.parts;
        bins.append({row, zone.left + span.first * part, zone.left + (span.first + span.count) * part,
                     contentOf(planned, content[slot], daypart.bins[row][slot])});
    }
    return bins;
}

} // namespace

binplan::Cabinet plannedCabinet(const Menu &menu, const QString &fileName)
{
    const CabinetShape shape = menu.shape();
    const CabinetConfiguration &configuration = menu.configuration;
    binplan::Cabinet cabinet{
        fileName, configuration.type + u' ' + configuration.model, shape.rows, shape.binsPerRow(), {}};
    const Planned planned{menu, indexById(pointersTo(menu.products))};
    for (int i = 0; i < menu.daypartCount && shape.isKnown(); ++i) {
        const Daypart &daypart = menu.dayparts[i];
        if (!daypart.inUse)
            continue;
        cabinet.dayparts.append({shownName(daypart.names), {}});
        for (int row = 0; row < shape.rows; ++row)
            cabinet.dayparts.last().bins += binsOf(planned, daypart, row);
    }
    return cabinet;
}

} // namespace holding
