// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/binplan.h"

#include <algorithm>
#include <unordered_map>

#include "holding/binlabel.h"
#include "holding/dayparttitle.h"
#include "holding/groupdraft.h"
#include "holding/rowdescription.h"
#include "holding/rowlook.h"
#include "holding/timercolors.h"
#include "model/shortened.h"
#include "model/times.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

// A file may give a group millions of members, and a member a name of megabytes.
constexpr qsizetype mostMembers = maxEntries;
constexpr qsizetype longestMember = 60;

/// The menu and what is looked up in it over and over.
struct Planned
{
    const Menu &menu;
    EntryIndex products;
    std::unordered_map<int, binplan::Content> contents; ///< of the ids that were asked for before
};

/// As the group editor shows it.
int defaultMember(const ProductInfo &group, const EntryIndex &products)
{
    const QList<int> ids = group.get_productList();
    return settledDefault(group.get_defaultIndex(), static_cast<int>(ids.size()),
                          [&](int position) { return findEntry(products, ids[position]) != nullptr; });
}

QString settingsText(const ProductInfo &entry, const ProductInfo *timed,
                     const CabinetConfiguration &configuration)
{
    const QString temperatures = shortTemperaturesText(entry, configuration);
    return timed ? temperatures + u"  "_s + timeText(timed->get_holdTime()) : temperatures;
}

/// The default member first, then the others in the group's order.
QString membersText(const QList<int> &ids, qsizetype defaultMember, const EntryIndex &products)
{
    QStringList names;
    for (qsizetype i = 0; i < std::min(ids.size(), mostMembers); ++i) {
        const int id = ids[i == 0 ? defaultMember : i <= defaultMember ? i - 1 : i];
        const SlotContent member{true, findEntry(products, id)};
        names.append(shortened(binLabel(member, id).name, longestMember));
    }
    if (names.size() < ids.size())
        names.append(u"…"_s);
    return names.join(u" · "_s);
}

void addColor(binplan::Content &content, const ProductInfo &product)
{
    const TimerColor &color = timerColorByName(product.get_timerColor());
    if (color.isNone())
        return;
    content.colorName = shadeName(color);
    content.color = color.color;
}

binplan::Content contentOf(const Planned &planned, const SlotContent &slot, int id)
{
    binplan::Content content;
    content.name = binLabel(slot, id).name;
    if (!slot.entry)
        return content;
    const ProductInfo *timed = slot.entry; // whose time and colour count
    if (slot.entry->get_isGroup()) {
        const QList<int> ids = slot.entry->get_productList();
        const int first = defaultMember(*slot.entry, planned.products);
        content.members = membersText(ids, first, planned.products);
        timed = ids.isEmpty() ? nullptr : findEntry(planned.products, ids[first]);
    }
    content.settings = settingsText(*slot.entry, timed, planned.menu.configuration);
    if (timed && planned.menu.configuration.timerColorEnabled)
        addColor(content, *timed);
    return content;
}

const binplan::Content &knownContent(Planned &planned, const SlotContent &slot, int id)
{
    const auto [found, isNew] = planned.contents.try_emplace(id);
    if (isNew)
        found->second = contentOf(planned, slot, id);
    return found->second;
}

binplan::Span spanOf(const CabinetShape &shape, int slot)
{
    const int rightWidth = shape.zones == 2 ? zoneWidth(shape, 1) : 0;
    return binplan::zoneSpan(zoneWidth(shape, 0), rightWidth, slot >= shape.binsPerZone);
}

QList<binplan::GridBin> binsOf(Planned &planned, const Daypart &daypart, int row)
{
    const CabinetShape shape = planned.menu.shape();
    const RowContent content = rowContent(planned.menu, daypart, row);
    const RowSpans spans = rowSpans(shape, rowLook(shape, content));
    QList<binplan::GridBin> bins;
    for (int slot = 0; slot < shape.binsPerRow(); ++slot) {
        const BinSpan &span = spans[slot];
        if (span.count == 0)
            continue;
        const binplan::Span zone = spanOf(shape, slot);
        const qreal part = zone.width / span.parts;
        bins.append({row, zone.left + span.first * part, zone.left + (span.first + span.count) * part,
                     knownContent(planned, content[slot], daypart.bins[row][slot])});
    }
    return bins;
}

} // namespace

binplan::Cabinet plannedCabinet(const Menu &menu)
{
    const CabinetShape shape = menu.shape();
    const CabinetConfiguration &configuration = menu.configuration;
    binplan::Cabinet cabinet{.model = configuration.type + u' ' + configuration.model,
                             .rows = shape.rows,
                             .columns = shape.binsPerRow(),
                             .dayparts = {}};
    Planned planned{menu, indexById(pointersTo(menu.products)), {}};
    for (int i = 0; i < menu.daypartCount && shape.isKnown(); ++i) {
        const Daypart &daypart = menu.dayparts[i];
        if (!daypart.inUse)
            continue;
        cabinet.dayparts.append({daypartTitle(daypart, i), {}});
        for (int row = 0; row < shape.rows; ++row)
            cabinet.dayparts.last().bins += binsOf(planned, daypart, row);
    }
    return cabinet;
}

} // namespace holding
