// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menu.h"

#include <algorithm>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

ProductInfo *find(const Entries &entries, int id)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [id](const auto &entry) { return entry->get_productId() == id; });
    return found == entries.end() ? nullptr : found->get();
}

} // namespace

Menu::Menu()
{
    dayparts[0].names = sameNameInAllLanguages(u"BREAKFAST"_s);
    dayparts[0].inUse = true;
    dayparts[1].names = sameNameInAllLanguages(u"LUNCH/DINNER"_s);
    dayparts[1].inUse = true;
}

CabinetShape Menu::shape() const
{
    return cabinetShape(configuration.type, configuration.model);
}

bool Menu::isFull() const
{
    return products.size() + groups.size() >= static_cast<std::size_t>(maxEntries);
}

int Menu::nextFreeId() const
{
    std::unordered_set<int> used;
    for (const Entries *entries : {&products, &groups}) {
        for (const auto &entry : *entries)
            used.insert(entry->get_productId());
    }
    int id = 1;
    while (used.contains(id))
        ++id;
    return id;
}

ProductInfo *Menu::product(int id) const
{
    return find(products, id);
}

ProductInfo *Menu::entry(int id) const
{
    ProductInfo *found = product(id);
    return found ? found : find(groups, id);
}

bool Menu::removeFromGroups(int id)
{
    bool removed = false;
    for (const auto &group : groups) {
        QList<int> members = group->get_productList();
        if (members.removeAll(id) == 0)
            continue;
        group->set_productList(members);
        group->set_defaultIndex(0);
        removed = true;
    }
    return removed;
}

bool Menu::removeFromDayparts(int id)
{
    if (id == emptyBin)
        return false;
    bool removed = false;
    for (Daypart &daypart : dayparts) {
        for (auto &row : daypart.bins) {
            removed = removed || std::find(row.begin(), row.end(), id) != row.end();
            std::replace(row.begin(), row.end(), id, emptyBin);
        }
    }
    return removed;
}

void Menu::addDaypart(const QStringList &names)
{
    Daypart &daypart = dayparts[static_cast<std::size_t>(daypartCount++)];
    daypart = {};
    daypart.names = names;
}

void Menu::removeDaypart(int index)
{
    const auto removed = dayparts.begin() + index;
    std::move(removed + 1, dayparts.begin() + daypartCount, removed);
    dayparts[static_cast<std::size_t>(--daypartCount)] = {};
}

void Menu::clearBins()
{
    for (Daypart &daypart : dayparts)
        daypart.bins = {};
}

QStringList namesOf(const Entries &entries)
{
    QStringList names;
    for (const auto &entry : entries)
        names.append(shownName(entry->get_productName()));
    return names;
}

QString defaultZoneSplits(int binsPerZone)
{
    switch (binsPerZone) {
    case 3:
        return u"1/3"_s;
    case 4:
        return u"1/4"_s;
    default:
        return u"1/2"_s;
    }
}

QStringList offeredZoneSplits(int binsPerZone)
{
    switch (binsPerZone) {
    case 2:
        return {u"1/2"_s, u"1/1"_s};
    case 3:
        return {u"1/3"_s, u"1/2"_s, u"2/3"_s, u"1/1"_s};
    case 4:
        return {u"1/4"_s, u"1/2"_s, u"3/4"_s, u"1/1"_s};
    default:
        return {};
    }
}

std::unique_ptr<ProductInfo> newProduct(int id, int binsPerZone)
{
    auto product = std::make_unique<ProductInfo>();
    product->set_productId(id);
    product->set_productName(sameNameInAllLanguages({}));
    product->set_upperTemp(200);
    product->set_lowerTemp(200);
    product->set_holdTime(1800);
    product->set_warningTime(300);
    product->set_resetTime(300);
    product->set_lidType(u"None"_s);
    product->set_bottomType(u"Normal"_s);
    product->set_zoneSplits(defaultZoneSplits(binsPerZone));
    return product;
}

std::unique_ptr<ProductInfo> newGroup(int id)
{
    auto group = std::make_unique<ProductInfo>();
    group->set_isGroup(true);
    group->set_productId(id);
    group->set_productName(sameNameInAllLanguages({}));
    return group;
}

std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id)
{
    auto copy = std::make_unique<ProductInfo>();
    copy->set_productId(id);
    copy->set_isGroup(source.get_isGroup());
    copy->set_productName(source.get_productName());
    copy->set_upperTemp(source.get_upperTemp());
    copy->set_lowerTemp(source.get_lowerTemp());
    copy->set_holdTime(source.get_holdTime());
    copy->set_warningTime(source.get_warningTime());
    copy->set_resetTime(source.get_resetTime());
    copy->set_fanSpeed(source.get_fanSpeed());
    copy->set_lidType(source.get_lidType());
    copy->set_bottomType(source.get_bottomType());
    copy->set_zoneSplits(source.get_zoneSplits());
    copy->set_timerColor(source.get_timerColor());
    copy->set_productList(source.get_productList());
    copy->set_defaultIndex(source.get_defaultIndex());
    return copy;
}

HoldingSettings holdingSettings(const ProductInfo &entry, bool fanSpeedEnabled)
{
    return {entry.get_lidType(), entry.get_zoneSplits(), entry.get_upperTemp(), entry.get_lowerTemp(),
            fanSpeedEnabled ? entry.get_fanSpeed() : 0};
}

bool fitsGroup(const ProductInfo &product, const HoldingSettings &group, bool fanSpeedEnabled)
{
    const HoldingSettings own = holdingSettings(product, fanSpeedEnabled);
    return (group.lidType.isEmpty() || group.lidType == own.lidType) &&
           (group.zoneSplits.isEmpty() || group.zoneSplits == own.zoneSplits) &&
           (group.upperTemp == 0 || group.upperTemp == own.upperTemp) &&
           (group.lowerTemp == 0 || group.lowerTemp == own.lowerTemp) &&
           (!fanSpeedEnabled || group.fanSpeed == 0 || group.fanSpeed == own.fanSpeed);
}

} // namespace holding
