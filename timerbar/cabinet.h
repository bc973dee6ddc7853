// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <array>

#include <QList>
#include <QString>
#include <QStringList>

#include "model/bin.h"

namespace timerbar {

/// How a model's bins are arranged: rows of one or two pairs. All 0 for an unknown model.
struct CabinetShape
{
    int rows = 0;
    int columnLayout = 0;      ///< pairs of bins in a row
    bool threeColumns = false; ///< the second pair has one bin only

    [[nodiscard]] constexpr bool isKnown() const { return rows > 0; }
    [[nodiscard]] constexpr int columns() const { return 2 * columnLayout - (threeColumns ? 1 : 0); }
    [[nodiscard]] constexpr int bins() const { return rows * columns(); }
    [[nodiscard]] constexpr bool hasBin(Bin bin) const
    {
        return bin.row >= 0 && bin.row < rows && bin.slot >= 0 && bin.slot < columns();
    }

    [[nodiscard]] QList<Bin> allBins() const; ///< row by row

    friend constexpr bool operator==(const CabinetShape &, const CabinetShape &) = default;
};

struct CabinetModel
{
    QLatin1StringView name; ///< its digits are the rows and the columns
    CabinetShape shape;
};

/// In the order in which they are offered.
inline constexpr auto allModels = std::to_array<CabinetModel>({
    {QLatin1StringView("KTR22"), {2, 1, false}},
    {QLatin1StringView("KTR23"), {2, 2, true}},
    {QLatin1StringView("KTR24"), {2, 2, false}},
    {QLatin1StringView("KTR32"), {3, 1, false}},
    {QLatin1StringView("KTR34"), {3, 2, false}},
    {QLatin1StringView("KTR42"), {4, 1, false}},
});

/// The widths of a pair of bins and of one that has one bin only, in pixels. Pairs keep them whatever stands
/// in them, so that filling a bin never moves another one.
inline constexpr int pairWidth = 340;
inline constexpr int oneBinPairWidth = 177;

/// What a menu has room for.
inline constexpr int maxRows = 4;
inline constexpr int maxColumns = 4;

static_assert(std::all_of(allModels.begin(), allModels.end(),
                          [](const CabinetModel &model) {
                              return model.shape.rows <= maxRows && model.shape.columns() <= maxColumns;
                          }),
              "A model has more rows or columns than a menu has room for");

[[nodiscard]] QStringList cabinetModels();
/// Names are compared exactly.
[[nodiscard]] CabinetShape cabinetShape(const QString &model);
/// The model with these numbers of rows and columns; empty when there is none.
[[nodiscard]] QString modelOfShape(int rows, int columns);

} // namespace timerbar
