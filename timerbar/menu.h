// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QString>

#include "model/bin.h"
#include "model/entries.h"
#include "model/fixedlist.h"
#include "model/temperature.h"
#include "timerbar/cabinet.h"

/// The menu of a Timer Bar cabinet as plain data, and the rules that need no window.
namespace timerbar {

inline constexpr int maxProducts = 100;
inline constexpr int daypartCount = 6;
/// What a cell without a product holds.
inline constexpr int emptyCell = 100;
static_assert(maxProducts <= emptyCell, "The ids of a full menu run from 0 to maxProducts - 1");

/// A product's id for each bin, or emptyCell.
using DaypartCells = BinTable<int, maxRows, maxColumns>;

struct Menu
{
    Menu();

    QString model = allModels.front().name;
    int temperatureUnit = unitFahrenheit; ///< only for showing; products are in °F
    Entries products;
    /// Cells beyond the model keep what they hold, for when a larger model comes back.
    FixedList<DaypartCells, daypartCount> dayparts;

    [[nodiscard]] CabinetShape shape() const { return cabinetShape(model); }
    [[nodiscard]] bool isFull() const;
    /// The smallest id from 0 upward that no product has. The id of a deleted product is given again; a
    /// product never changes its own.
    [[nodiscard]] int nextFreeId() const;
    /// The first product with this id, or null.
    [[nodiscard]] ProductInfo *product(int id) const;
    /// Empties every cell with this id; true when there was one.
    bool removeFromDayparts(int id);
    /// Whether a bin that the cabinet has is filled.
    [[nodiscard]] bool hasFilledBins(int daypart) const;
    /// Takes over the bins that the cabinet has; cells beyond keep what they hold.
    void copyBins(int from, int to);
};

} // namespace timerbar
