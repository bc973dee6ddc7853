// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menu.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace holding {

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
    return ::nextFreeId({&products, &groups}, 1);
}

ProductInfo *Menu::product(int id) const
{
    return findEntry(products, id);
}

ProductInfo *Menu::entry(int id) const
{
    ProductInfo *found = product(id);
    return found ? found : findEntry(groups, id);
}

EntryIndex Menu::entriesById() const
{
    return indexById(pointersTo(products) + pointersTo(groups));
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
    for (Daypart &daypart : dayparts)
        removed = replaceInBins(daypart.bins, id, emptyBin) || removed;
    return removed;
}

void Menu::addDaypart(Daypart daypart)
{
    dayparts[daypartCount++] = std::move(daypart);
}

void Menu::removeDaypart(int index)
{
    auto *const removed = dayparts.begin() + index;
    std::move(removed + 1, dayparts.begin() + daypartCount, removed);
    dayparts[--daypartCount] = {};
}

void Menu::clearBins()
{
    for (Daypart &daypart : dayparts)
        daypart.bins = {};
}

} // namespace holding
