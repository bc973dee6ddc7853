// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/defaultproducts.h"

#include <array>

using namespace Qt::StringLiterals;

namespace timerbar {

namespace {

struct DefaultProduct
{
    QLatin1StringView name;
    QLatin1StringView shortName;
    int temperature = 0; ///< °F, upper and lower
    int holdSeconds = 0;
    int warningSeconds = 0;
};

// A product's id is its place here.
constexpr auto defaults = std::to_array<DefaultProduct>({
    {"Bacon"_L1, "BACN"_L1, 215, 3600, 600},
    {"Biscuits"_L1, "BSCT"_L1, 200, 3600, 1500},
    {"Hamburger Patties"_L1, "BURG"_L1, 200, 5400, 300},
    {"Chili"_L1, "CHIL"_L1, 190, 5400, 1500},
    {"Breaded Chicken Patties"_L1, "CKPT"_L1, 225, 3600, 600},
    {"Chicken Nuggets"_L1, "CNUG"_L1, 225, 3600, 600},
    {"Chicken Strips"_L1, "CSTR"_L1, 225, 3600, 300},
    {"Eggs / Egg Patties"_L1, "EGGS"_L1, 210, 5400, 300},
    {"Breaded Fish Fillets"_L1, "FISH"_L1, 225, 3600, 300},
    {"Fruit Compote"_L1, "FRUT"_L1, 190, 5400, 1500},
    {"French Toast"_L1, "FTOS"_L1, 215, 4500, 900},
    {"Grilled Chicken"_L1, "GCHK"_L1, 215, 5400, 600},
    {"Grilled Fish"_L1, "GFSH"_L1, 215, 5400, 300},
    {"Gravy"_L1, "GRVY"_L1, 190, 5400, 300},
    {"Grilled Steak"_L1, "GSTK"_L1, 215, 5400, 600},
    {"Ham Steak"_L1, "HAM"_L1, 215, 5400, 600},
    {"Hash Browns"_L1, "HASH"_L1, 225, 3600, 300},
    {"Hot Dogs"_L1, "HDOG"_L1, 225, 5400, 300},
    {"Mozzarella Sticks"_L1, "MOZZ"_L1, 225, 3600, 300},
    {"Meat Balls"_L1, "MTBL"_L1, 215, 5400, 1500},
    {"Meat Loaf"_L1, "MTLF"_L1, 215, 5400, 300},
    {"Fried Mushrooms"_L1, "MUSH"_L1, 225, 3600, 300},
    {"Pancakes"_L1, "PANC"_L1, 225, 3600, 300},
    {"Pasta"_L1, "PAST"_L1, 200, 5400, 1200},
    {"Poppers"_L1, "POPP"_L1, 225, 900, 600},
    {"Product 1"_L1, "PRD1"_L1, 160, 3600, 600},
    {"Product 2"_L1, "PRD2"_L1, 170, 4200, 600},
    {"Product 3"_L1, "PRD3"_L1, 180, 4800, 600},
    {"Sausage Patties"_L1, "SAUS"_L1, 215, 5400, 600},
    {"Scrambled Eggs"_L1, "SCEG"_L1, 210, 5400, 600},
    {"Sausage Crumbles"_L1, "SSCR"_L1, 215, 5400, 1500},
    {"Tater Tots"_L1, "TOTS"_L1, 225, 3600, 600},
    {"Vegetables"_L1, "VEGE"_L1, 200, 5400, 1800},
});

} // namespace

Entries defaultProducts()
{
    Entries products;
    products.reserve(defaults.size());
    for (const DefaultProduct &entry : defaults) {
        auto product = std::make_unique<ProductInfo>();
        product->set_productId(static_cast<int>(products.size()));
        product->set_productName({QString(entry.name)});
        product->set_productShortName(entry.shortName);
        product->set_upperTemp(entry.temperature);
        product->set_lowerTemp(entry.temperature);
        product->set_holdTime(entry.holdSeconds);
        product->set_warningTime(entry.warningSeconds);
        products.push_back(std::move(product));
    }
    return products;
}

} // namespace timerbar
