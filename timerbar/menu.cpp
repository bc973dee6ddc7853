// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/menu.h"

#include <algorithm>
#include <unordered_set>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace timerbar {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarMenuFile)
};

struct Model
{
    QLatin1StringView name;
    CabinetShape shape;
};

constexpr std::array<Model, 6> models{{
    {"KTR22"_L1, {2, 1, false}},
    {"KTR23"_L1, {2, 2, true}},
    {"KTR24"_L1, {2, 2, false}},
    {"KTR32"_L1, {3, 1, false}},
    {"KTR34"_L1, {3, 2, false}},
    {"KTR42"_L1, {4, 1, false}},
}};

struct DefaultProduct
{
    QLatin1StringView name;
    QLatin1StringView shortName;
    int temperature = 0; ///< °F, upper and lower
    int holdSeconds = 0;
    int warningSeconds = 0;
};

// Their ids are their places here.
constexpr std::array<DefaultProduct, 33> defaults{{
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
}};

} // namespace

QStringList cabinetModels()
{
    QStringList names;
    for (const Model &model : models)
        names.append(model.name);
    return names;
}

CabinetShape cabinetShape(const QString &model)
{
    const auto *found = std::find_if(models.begin(), models.end(),
                                     [&](const Model &candidate) { return candidate.name == model; });
    return found == models.end() ? CabinetShape{} : found->shape;
}

QString modelOfShape(int rows, int columns)
{
    const auto *found = std::find_if(models.begin(), models.end(), [=](const Model &candidate) {
        return candidate.shape.rows == rows && candidate.shape.columns() == columns;
    });
    return found == models.end() ? QString() : QString(found->name);
}

Menu::Menu()
{
    for (DaypartCells &cells : dayparts) {
        for (auto &row : cells)
            row.fill(emptyCell);
    }
}

bool Menu::isFull() const
{
    return products.size() >= static_cast<std::size_t>(maxProducts);
}

int Menu::nextFreeId() const
{
    std::unordered_set<int> used;
    for (const auto &entry : products)
        used.insert(entry->get_productId());
    int id = 0;
    while (used.contains(id))
        ++id;
    return id;
}

ProductInfo *Menu::product(int id) const
{
    const auto found = std::find_if(products.begin(), products.end(),
                                    [id](const auto &entry) { return entry->get_productId() == id; });
    return found == products.end() ? nullptr : found->get();
}

bool Menu::removeFromDayparts(int id)
{
    bool removed = false;
    for (DaypartCells &cells : dayparts) {
        for (auto &row : cells) {
            removed = removed || std::find(row.begin(), row.end(), id) != row.end();
            std::replace(row.begin(), row.end(), id, emptyCell);
        }
    }
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
    copy->set_productId(id);
    copy->set_productLocked(source.get_productLocked());
    copy->set_productName(source.get_productName());
    copy->set_productShortName(source.get_productShortName());
    copy->set_upperTemp(source.get_upperTemp());
    copy->set_lowerTemp(source.get_lowerTemp());
    copy->set_holdTime(source.get_holdTime());
    copy->set_warningTime(source.get_warningTime());
    copy->set_zoneSplits(source.get_zoneSplits());
    copy->set_lidType(source.get_lidType());
    copy->set_bottomType(source.get_bottomType());
    copy->set_fanSpeed(source.get_fanSpeed());
    copy->set_resetTime(source.get_resetTime());
    copy->set_timerColor(source.get_timerColor());
    return copy;
}

Products defaultProducts()
{
    Products products;
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

ReferenceTemperatures neighbourTemperatures(const Menu &menu, int daypart, int row, int column)
{
    const bool secondPair = menu.shape().columnLayout == 2 && column >= 2;
    const auto &cells = menu.dayparts[static_cast<std::size_t>(daypart)][static_cast<std::size_t>(row)];
    const int first = secondPair ? 2 : 0;
    for (int other = first; other < first + 2; ++other) {
        const int id = cells[static_cast<std::size_t>(other)];
        const ProductInfo *product = other == column || id == emptyCell ? nullptr : menu.product(id);
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

QStringList daypartNames()
{
    return {Text::tr("Breakfast"),    Text::tr("ChangeOver 1"), Text::tr("Lunch"),
            Text::tr("ChangeOver 2"), Text::tr("Dinner"),       Text::tr("ChangeOver 3")};
}

} // namespace timerbar
