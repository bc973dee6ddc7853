// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "timerbar/menu.h"
#include "timerbar/newentries.h"

/// A Timer Bar menu as large as the editor lets one become: 100 products with the longest names, on the
/// cabinet with the most bins, all of them taken in every day part.
inline timerbar::Menu fullTimerBarMenu()
{
    timerbar::Menu menu;
    menu.model = QStringLiteral("KTR34");
    while (!menu.isFull()) {
        const int id = menu.nextFreeId();
        auto product = timerbar::newProduct(id);
        product->set_productName({QStringLiteral("Product with a long name%1").arg(id).right(25)});
        product->set_productShortName(QStringLiteral("PR%1").arg(id, 2, 10, QLatin1Char('0')));
        product->set_holdTime(600 + 60 * id);
        menu.products.push_back(std::move(product));
    }
    int id = 0;
    for (timerbar::DaypartCells &cells : menu.dayparts) {
        for (auto &row : cells) {
            for (int &cell : row)
                cell = id++ % timerbar::maxProducts;
        }
    }
    return menu;
}
