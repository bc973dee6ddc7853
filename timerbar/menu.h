// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>
#include <vector>

#include <QString>
#include <QStringList>

#include "model/productinfo.h"
#include "model/temperature.h"

/// The menu of a Timer Bar cabinet as plain data, and the rules that need no window.
namespace timerbar {

inline constexpr int maxProducts = 100;
inline constexpr int daypartCount = 6;
inline constexpr int maxRows = 4;
inline constexpr int maxColumns = 4;
/// What a cell without a product holds; ids run from 0 to 99.
inline constexpr int emptyCell = 100;

/// How a model's bins are arranged. All 0 for an unknown model.
struct CabinetShape
{
    int rows = 0;
    int columnLayout = 0;      ///< 1: one pair of bins a row, 2: two pairs
    bool threeColumns = false; ///< the second pair has one bin only

    [[nodiscard]] int columns() const { return 2 * columnLayout - (threeColumns ? 1 : 0); }
    [[nodiscard]] int bins() const { return rows * columns(); }

    friend bool operator==(const CabinetShape &, const CabinetShape &) = default;
};

[[nodiscard]] QStringList cabinetModels();
/// Names are compared exactly.
[[nodiscard]] CabinetShape cabinetShape(const QString &model);
/// The model with these numbers of rows and columns; empty when there is none.
[[nodiscard]] QString modelOfShape(int rows, int columns);

using Products = std::vector<std::unique_ptr<ProductInfo>>;
/// [row from the top][column]: a product's id, or emptyCell.
using DaypartCells = std::array<std::array<int, maxColumns>, maxRows>;

struct Menu
{
    Menu();

    QString model = QStringLiteral("KTR22");
    int temperatureUnit = unitFahrenheit; ///< only for showing; products are in °F
    Products products;
    /// Cells beyond the model keep what they hold, for when a larger model comes back.
    std::array<DaypartCells, daypartCount> dayparts{};

    [[nodiscard]] CabinetShape shape() const { return cabinetShape(model); }
    [[nodiscard]] bool isFull() const;
    /// The smallest id from 0 upward that no product has. Ids are never given anew, also not after a
    /// deletion.
    [[nodiscard]] int nextFreeId() const;
    /// The first product with this id, or null.
    [[nodiscard]] ProductInfo *product(int id) const;
    /// Empties every cell with this id; true when there was one.
    bool removeFromDayparts(int id);
};

/// A new product, and a copy of one under another id.
[[nodiscard]] std::unique_ptr<ProductInfo> newProduct(int id);
[[nodiscard]] std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id);

/// The products that a new menu starts with.
[[nodiscard]] Products defaultProducts();

/// °F; 0 for both where the bin has no neighbour.
struct ReferenceTemperatures
{
    int upper = 0;
    int lower = 0;

    friend bool operator==(const ReferenceTemperatures &, const ReferenceTemperatures &) = default;
};

/// The temperatures of the product in the other bin of the same pair.
[[nodiscard]] ReferenceTemperatures neighbourTemperatures(const Menu &menu, int daypart, int row, int column);

/// Whether a product may stand beside one with these temperatures. The upper one only says that there is a
/// neighbour: both of the product's temperatures are compared with the lower one.
[[nodiscard]] bool fitsNeighbour(const ProductInfo &product, const ReferenceTemperatures &reference);

/// Names of the six day parts in the order of their indices, as the user sees them.
[[nodiscard]] QStringList daypartNames();

} // namespace timerbar
