// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/bins.h"

#include <QCoreApplication>

namespace timerbar {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarMenuFile)
};

} // namespace

QStringList daypartNames()
{
    return {Text::tr("Breakfast"),    Text::tr("ChangeOver 1"), Text::tr("Lunch"),
            Text::tr("ChangeOver 2"), Text::tr("Dinner"),       Text::tr("ChangeOver 3")};
}

ReferenceTemperatures neighbourTemperatures(const Menu &menu, int daypart, Bin bin)
{
    const int first = menu.shape().columnLayout == 2 && bin.slot >= 2 ? 2 : 0;
    for (int other = first; other < first + 2; ++other) {
        const int id = menu.dayparts[daypart][bin.row][other];
        const ProductInfo *product = other == bin.slot || id == emptyCell ? nullptr : menu.product(id);
        if (product)
            return {product->get_upperTemp(), product->get_lowerTemp()};
    }
    return {};
}

bool fitsNeighbour(const ProductInfo &product, const ReferenceTemperatures &reference)
{
    return reference.upper == 0 ||
           (product.get_upperTemp() == reference.lower && product.get_lowerTemp() == reference.lower);
}

} // namespace timerbar
