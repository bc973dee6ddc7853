// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>

#include "holding/menu.h"
#include "holding/newentries.h"
#include "model/findings.h"

/// A menu in which nothing has to be looked at, until a test spoils it.
namespace menutolookat {

using Change = void (*)(holding::Menu &menu);

inline void addProduct(holding::Menu &menu, const QString &name, int id)
{
    auto product = holding::newProduct(id, 2);
    product->set_productName({name});
    menu.products.push_back(std::move(product));
}

/// As many products as that, in no group and no bin.
inline void addProducts(holding::Menu &menu, int count)
{
    int id = 1000 + static_cast<int>(menu.products.size());
    while (menu.products.size() < static_cast<std::size_t>(count))
        addProduct(menu, QStringLiteral("Extra"), id++);
}

inline void setTemperatures(ProductInfo &entry, int upper, int lower)
{
    entry.set_upperTemp(upper);
    entry.set_lowerTemp(lower);
}

/// Products 1 "Bacon", 2 "Ham" and the hotter 3 "Chili", the group 4 "Meats" of the first two, on a KTR34
/// with all switches on. Bacon and the group stand side by side in the first day part.
[[nodiscard]] inline holding::Menu menu()
{
    holding::Menu menu;
    menu.configuration = {.type = QStringLiteral("QHX"),
                          .model = QStringLiteral("KTR34"),
                          .fanSpeedEnabled = true,
                          .resetTimeEnabled = true,
                          .productIdEnabled = true,
                          .timerColorEnabled = true};
    for (const QString &name : {QStringLiteral("Bacon"), QStringLiteral("Ham"), QStringLiteral("Chili")})
        addProduct(menu, name, menu.nextFreeId());
    menu.products[2]->set_upperTemp(215);
    auto group = holding::newGroup(4);
    group->set_productName({QStringLiteral("Meats")});
    setTemperatures(*group, 200, 200);
    group->set_zoneSplits(QStringLiteral("1/2"));
    group->set_lidType(QStringLiteral("None"));
    group->set_productList({1, 2});
    group->set_defaultIndex(1);
    menu.groups.push_back(std::move(group));
    menu.dayparts[0].bins[0] = {1, 4, 0, 0};
    return menu;
}

/// The same products and group, all with one temperature, in a cabinet that has one: a ZPV with three bins in
/// a zone. Its bins are empty.
inline void makeZpv(holding::Menu &menu, int unit = unitFahrenheit)
{
    menu.configuration.type = QStringLiteral("ZPV");
    menu.configuration.model = QStringLiteral("ZPV43");
    menu.configuration.temperatureUnit = unit;
    menu.products[2]->set_lowerTemp(menu.products[2]->get_upperTemp());
    menu.clearBins();
}

/// The same in a cabinet with three bins in a zone; all are empty but those of a row in the second day part.
inline void makeKtr33(holding::Menu &menu, const QList<int> &thirdRow)
{
    menu.configuration.model = QStringLiteral("KTR33");
    menu.clearBins();
    std::copy(thirdRow.begin(), thirdRow.end(), menu.dayparts[1].bins[2].begin());
}

} // namespace menutolookat

Q_DECLARE_METATYPE(menutolookat::Change)
Q_DECLARE_METATYPE(Finding)
