// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windowmenu.h"

#include "holding/menujson.h"
#include "holding/newentries.h"

using namespace Qt::StringLiterals;

namespace windowmenu {

const QString longName = u"Grilled Chicken Breast Fillet, Large"_s;

holding::CabinetConfiguration fullCabinet()
{
    return {.type = u"QHX"_s,
            .model = u"KTR34"_s,
            .fanSpeedEnabled = true,
            .resetTimeEnabled = true,
            .productIdEnabled = true,
            .timerColorEnabled = true};
}

holding::CabinetConfiguration plainCabinet()
{
    return {.type = u"ZPV"_s, .model = u"ZPV43"_s};
}

holding::Menu menu(const holding::CabinetConfiguration &configuration)
{
    holding::Menu menu;
    menu.configuration = configuration;
    const QString fault = holding::readDefaultMenu(menu.shape().binsPerZone, menu);
    Q_ASSERT(fault.isEmpty());
    ProductInfo &first = *menu.products[0];
    first.set_productName(sameNameInAllLanguages(longName));
    if (configuration.timerColorEnabled)
        first.set_timerColor(u"#a05000"_s);
    // They stand in its zone and in its group.
    for (ProductInfo *beside : {menu.products[1].get(), menu.products[2].get()}) {
        beside->set_upperTemp(first.get_upperTemp());
        beside->set_lowerTemp(first.get_lowerTemp());
    }
    auto group = holding::newGroup(menu.nextFreeId());
    group->set_productName(sameNameInAllLanguages(u"Breakfast Sandwiches, Cold and Warm"_s));
    group->set_zoneSplits(first.get_zoneSplits());
    group->set_upperTemp(first.get_upperTemp());
    group->set_lowerTemp(first.get_lowerTemp());
    group->set_lidType(first.get_lidType());
    group->set_fanSpeed(configuration.fanSpeedEnabled ? first.get_fanSpeed() : 0);
    group->set_productList({first.get_productId(), menu.products[1]->get_productId()});
    menu.dayparts[0].bins[0] = {first.get_productId(), group->get_productId(),
                                menu.products[2]->get_productId(), holding::emptyBin};
    menu.groups.push_back(std::move(group));
    return menu;
}

QByteArray bytes(const holding::CabinetConfiguration &configuration)
{
    return holding::writeMenu(menu(configuration));
}

} // namespace windowmenu
