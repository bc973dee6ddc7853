// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/menu.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace timerbar {

Menu::Menu()
{
    for (DaypartCells &cells : dayparts) {
        for (auto &row : cells)
            row.values.fill(emptyCell);
    }
}

bool Menu::isFull() const
{
    return products.size() >= maxProducts;
}

int Menu::nextFreeId() const
{
    return ::nextFreeId({&products}, 0);
}

ProductInfo *Menu::product(int id) const
{
    return findEntry(products, id);
}

bool Menu::removeFromDayparts(int id)
{
    bool removed = false;
    for (DaypartCells &cells : dayparts)
        removed = replaceInBins(cells, id, emptyCell) || removed;
    return removed;
}

bool Menu::hasFilledBins(int daypart) const
{
    const QList<Bin> bins = shape().allBins();
    return std::any_of(bins.begin(), bins.end(),
                       [this, daypart](Bin bin) { return dayparts[daypart][bin] != emptyCell; });
}

void Menu::copyBins(int from, int to)
{
    const QList<Bin> bins = shape().allBins();
    for (const Bin bin : bins)
        dayparts[to][bin] = dayparts[from][bin];
}

} // namespace timerbar
