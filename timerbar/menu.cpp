// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/menu.h"

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

std::unique_ptr<ProductInfo> newProduct(int id)
{
    auto product = std::make_unique<ProductInfo>();
    product->set_productId(id);
    product->set_upperTemp(200);
    product->set_lowerTemp(200);
    product->set_holdTime(1800);
    product->set_warningTime(300);
    product->set_zoneSplits(u"1/2"_s);
    return product;
}

std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id)
{
    auto copy = std::make_unique<ProductInfo>();
    copyFields(source, *copy);
    copy->set_productId(id);
    return copy;
}

} // namespace timerbar
