// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/menu.h"
#include "holding/newentries.h"

/// A name that differs from language to language.
inline QStringList translatedNames(const QString &name)
{
    QStringList names;
    for (const QLatin1StringView language : nameLanguages)
        names.append(name + QLatin1Char(' ') + language);
    return names;
}

/// A menu as large as the editors let one become: 90 products and 10 groups, 10 day parts, every bin taken.
/// Every second product has its own name in each language, as an imported menu may. All entries fit where
/// they stand: two neighbours of a zone, and the members of a group, have the same temperatures.
inline holding::Menu bigMenu()
{
    constexpr int productCount = 90;
    constexpr int groupSize = 9;
    holding::Menu menu;
    menu.configuration = {
        QStringLiteral("QHX"), QStringLiteral("KTR54"), unitFahrenheit, true, true, true, true};
    for (int id = 1; id <= productCount; ++id) {
        auto product = holding::newProduct(id, 2);
        const QString name = QStringLiteral("Product %1").arg(id);
        product->set_productName(id % 2 == 0 ? translatedNames(name) : sameNameInAllLanguages(name));
        product->set_holdTime(600 + 60 * id);
        product->set_fanSpeed(60);
        product->set_upperTemp(150 + (id - 1) / (2 * groupSize));
        product->set_timerColor(QStringLiteral("#ffff00"));
        menu.products.push_back(std::move(product));
    }
    while (!menu.isFull()) {
        const int first = static_cast<int>(menu.groups.size()) * groupSize;
        const ProductInfo &settings = *menu.products[static_cast<std::size_t>(first)];
        auto group = holding::newGroup(menu.nextFreeId());
        group->set_productName(sameNameInAllLanguages(QStringLiteral("Group from %1").arg(first + 1)));
        group->set_upperTemp(settings.get_upperTemp());
        group->set_lowerTemp(settings.get_lowerTemp());
        group->set_zoneSplits(settings.get_zoneSplits());
        group->set_lidType(settings.get_lidType());
        group->set_fanSpeed(settings.get_fanSpeed());
        QList<int> members;
        for (int member = 0; member < groupSize; ++member)
            members.append(first + member + 1);
        group->set_productList(members);
        group->set_defaultIndex(groupSize / 2);
        menu.groups.push_back(std::move(group));
    }
    menu.daypartCount = holding::maxDayparts;
    int id = 0;
    for (holding::Daypart &daypart : menu.dayparts) {
        daypart.names = sameNameInAllLanguages(QStringLiteral("DAY PART %1").arg(id));
        daypart.inUse = true;
        for (auto &row : daypart.bins) {
            for (int &bin : row)
                bin = id++ % holding::maxEntries + 1;
        }
    }
    return menu;
}
