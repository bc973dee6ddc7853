// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QString>
#include <QStringList>

#include "model/bin.h"
#include "model/temperature.h"

namespace holding {

/// What a menu says of the cabinet that it is written for.
struct CabinetConfiguration
{
    QString type;  ///< "QHX" or "ZPV"; empty before a menu is read
    QString model; ///< for example "KTR34"
    int temperatureUnit = unitFahrenheit;
    bool fanSpeedEnabled = false;
    bool resetTimeEnabled = false;
    bool productIdEnabled = false;
    bool timerColorEnabled = false;

    friend bool operator==(const CabinetConfiguration &, const CabinetConfiguration &) = default;
};

/// Neighbouring slots of a row that share their settings.
struct Zone
{
    int first = 0;
    int count = 0; ///< 1 only for the second zone of a cabinet whose second zone has one bin

    [[nodiscard]] constexpr int end() const { return first + count; }

    friend constexpr bool operator==(const Zone &, const Zone &) = default;
};

/// What the model makes of the grid. All 0 for an unknown cabinet.
struct CabinetShape
{
    quint8 rows = 0;
    quint8 binsPerZone = 0;
    quint8 zones = 0;
    bool singleBinSecondZone = false; ///< the second zone of each row has one bin only

    [[nodiscard]] constexpr bool isKnown() const { return rows > 0; }
    /// Places in a row, counting the missing second bin of a one-bin second zone: ids are stored so.
    [[nodiscard]] constexpr int binsPerRow() const { return zones > 1 ? binsPerZone * zones : binsPerZone; }
    /// Zones are counted from 0.
    [[nodiscard]] constexpr Zone zone(int number) const
    {
        return {number * binsPerZone, number > 0 && singleBinSecondZone ? 1 : binsPerZone};
    }
    [[nodiscard]] constexpr Zone zoneOfSlot(int slot) const
    {
        return zone(zones == 2 && slot >= binsPerZone ? 1 : 0);
    }
    /// False for what lies outside the grid and for the missing bin of a one-bin zone.
    [[nodiscard]] constexpr bool hasBin(Bin bin) const
    {
        return bin.row >= 0 && bin.row < rows && bin.slot >= 0 && bin.slot < binsPerRow() &&
               bin.slot < zoneOfSlot(bin.slot).end();
    }

    friend constexpr bool operator==(const CabinetShape &, const CabinetShape &) = default;
};

struct CabinetModel
{
    QLatin1StringView type;
    QLatin1StringView name;
    CabinetShape shape;
};

/// In the order in which they are offered: of the ZPV cabinets the larger one comes first.
inline constexpr auto allModels = std::to_array<CabinetModel>({
    {QLatin1StringView("QHX"), QLatin1StringView("KTR22"), {2, 2, 1, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR23"), {2, 2, 2, true}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR24"), {2, 2, 2, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR32"), {3, 2, 1, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR33"), {3, 3, 1, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR34"), {3, 2, 2, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR42"), {4, 2, 1, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR52"), {5, 2, 1, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR54"), {5, 2, 2, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR63"), {6, 3, 1, false}},
    {QLatin1StringView("QHX"), QLatin1StringView("KTR82"), {8, 2, 1, false}},
    {QLatin1StringView("ZPV"), QLatin1StringView("ZPV43"), {4, 3, 1, false}},
    {QLatin1StringView("ZPV"), QLatin1StringView("ZPV23"), {2, 3, 1, false}},
});

/// The rows of a day part and the places in each: as many as the largest model needs.
inline constexpr int maxRows = 8;
inline constexpr int maxSlots = 4;

/// "QHX" has an upper and a lower temperature and lids, "ZPV" one temperature and no lids.
[[nodiscard]] bool isQhx(const QString &type);
[[nodiscard]] bool isZpv(const QString &type);

/// The types and the models of a type in the order in which they are offered.
[[nodiscard]] QStringList cabinetTypes();
[[nodiscard]] QStringList cabinetModels(const QString &type);

/// Names are compared exactly; anything unknown gives the empty shape.
[[nodiscard]] CabinetShape cabinetShape(const QString &type, const QString &model);

/// Whether some model has this number of rows.
[[nodiscard]] bool isShowableRowCount(int rows);

} // namespace holding
