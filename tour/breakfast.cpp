// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/breakfast.h"

#include <algorithm>

#include "holding/groupdraft.h"
#include "holding/menujson.h"
#include "holding/newentries.h"
#include "tests/support/require.h"
#include "timerbar/defaultproducts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView none{};

int idOf(const Entries &products, QLatin1StringView name)
{
    const auto found = std::find_if(products.begin(), products.end(), [name](const auto &product) {
        return product->get_productName().constFirst() == name;
    });
    REQUIRE(found != products.end(), name);
    return (*found)->get_productId();
}

struct ColoredProduct
{
    QLatin1StringView name;
    QLatin1StringView timerColor;
};

constexpr auto colors = std::to_array<ColoredProduct>({
    {"Bacon"_L1, "#ff0000"_L1},
    {"Sausage Patties"_L1, "#a05000"_L1},
    {"Scrambled Eggs"_L1, "#ffff00"_L1},
    {"Biscuits"_L1, "#00a000"_L1},
});

constexpr QLatin1StringView holdingRows[][4] = {
    {"Scrambled Eggs"_L1, "Eggs / Egg Patties"_L1, "Bacon"_L1, "Sausage Patties"_L1},
    {"Biscuits"_L1, "Biscuits"_L1, "Sausage Crumbles"_L1, "Ham Steak"_L1},
    {"Hash Browns"_L1, "Hash Browns"_L1, "Pancakes"_L1, "Tater Tots"_L1},
    {"Gravy"_L1, "Fruit Compote"_L1, "French Toast"_L1, none},
    {"Chicken Strips"_L1, "Breaded Chicken Patties"_L1, "Grilled Chicken"_L1, "Grilled Steak"_L1},
};

constexpr QLatin1StringView timerBarRows[][4] = {
    {"Scrambled Eggs"_L1, "Eggs / Egg Patties"_L1, "Bacon"_L1, "Sausage Patties"_L1},
    {"Biscuits"_L1, "Biscuits"_L1, "Ham Steak"_L1, none},
    {"Hash Browns"_L1, "Pancakes"_L1, "French Toast"_L1, "Sausage Crumbles"_L1},
};

template <typename Rows, typename Bins>
void fill(const Rows &rows, const Entries &products, Bins &bins)
{
    for (int row = 0; row < static_cast<int>(std::size(rows)); ++row) {
        for (int slot = 0; slot < static_cast<int>(std::size(rows[row])); ++slot) {
            if (const QLatin1StringView name = rows[row][slot]; name != none)
                bins[Bin{row, slot}] = idOf(products, name);
        }
    }
}

} // namespace

holding::Menu breakfastOfHolding()
{
    holding::Menu menu;
    menu.configuration.type = u"QHX"_s;
    menu.configuration.model = u"KTR54"_s;
    menu.configuration.timerColorEnabled = true;
    const QString fault = holding::readDefaultMenu(menu.shape().binsPerZone, menu);
    REQUIRE(fault.isEmpty(), fault);
    for (const ColoredProduct &colored : colors)
        menu.product(idOf(menu.products, colored.name))->set_timerColor(colored.timerColor);
    menu.dayparts[0].inUse = true;
    fill(holdingRows, menu.products, menu.dayparts[0].bins);
    return menu;
}

holding::Menu breakfastToLookAt()
{
    constexpr int missing = 99;
    holding::Menu menu = breakfastOfHolding();
    menu.product(idOf(menu.products, "Chili"_L1))->set_holdTime(9 * 60 * 60);
    auto sausages = holding::newGroup(menu.nextFreeId());
    holding::GroupDraft draft(*sausages, menu.configuration);
    for (const auto name : {"Sausage Patties"_L1, "Sausage Crumbles"_L1})
        draft.add(*menu.product(idOf(menu.products, name)));
    draft.writeTo(*sausages);
    sausages->set_productName(sameNameInAllLanguages(u"Sausage"_s));
    sausages->set_productList(sausages->get_productList() << missing);
    menu.groups.push_back(std::move(sausages));
    menu.dayparts[0].bins[Bin{3, 3}] = missing;
    return menu;
}

timerbar::Menu breakfastOfTimerBar()
{
    timerbar::Menu menu;
    menu.model = u"KTR34"_s;
    menu.products = timerbar::defaultProducts();
    fill(timerBarRows, menu.products, menu.dayparts[0]);
    return menu;
}
