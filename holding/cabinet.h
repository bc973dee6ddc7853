// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

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
};

/// What the model makes of the grid. All 0 for an unknown cabinet.
struct CabinetShape
{
    quint8 rows = 0;
    quint8 binsPerZone = 0;
    quint8 zones = 0;
    bool singleBinSecondZone = false; ///< the second zone of each row has one bin only

    [[nodiscard]] bool isKnown() const { return rows > 0; }
    /// Places in a row, counting the missing second bin of a one-bin second zone: ids are stored so.
    [[nodiscard]] int binsPerRow() const { return zones > 1 ? binsPerZone * zones : binsPerZone; }

    friend bool operator==(const CabinetShape &, const CabinetShape &) = default;
};

/// "QHX" has an upper and a lower temperature and lids, "ZPV" one temperature and no lids.
[[nodiscard]] bool isQhx(const QString &type);
[[nodiscard]] bool isZpv(const QString &type);

/// The types and the models of a type in the order in which they are offered.
[[nodiscard]] QStringList cabinetTypes();
[[nodiscard]] QStringList cabinetModels(const QString &type);

/// Names are compared exactly; anything unknown gives the empty shape.
[[nodiscard]] CabinetShape cabinetShape(const QString &type, const QString &model);

} // namespace holding
