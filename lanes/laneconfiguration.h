// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include "model/fixedlist.h"
#include "model/temperature.h"

/// The configuration of a lane cabinet as plain data, and its two files.
namespace lanes {

inline constexpr int maxLanes = 4;

struct Lane
{
    int temperature = 375; ///< °F, whatever unit is shown
    int fanSpeed = 1800;   ///< RPM

    friend bool operator==(const Lane &, const Lane &) = default;
};

struct Configuration
{
    int laneCount = 2;
    /// Lanes from laneCount on are not written; what they hold comes back when the count grows again.
    FixedList<Lane, maxLanes> lanes;

    friend bool operator==(const Configuration &, const Configuration &) = default;
};

/// What can be entered: temperatures in the unit that is shown, fan speeds in RPM.
[[nodiscard]] TemperatureRange temperatureRange(int temperatureUnit);
inline constexpr int minFanSpeed = 1500;
inline constexpr int maxFanSpeed = 3200;

/// Reads a configuration file. Returns an empty text, or the message of the first error; `configuration` is
/// then unchanged. Values may lie outside what the cabinet allows: they are kept as they are. Lanes beyond
/// the file's start from the defaults.
[[nodiscard]] QString readConfiguration(const QByteArray &text, Configuration &configuration);

/// The three lines of a configuration file.
[[nodiscard]] QByteArray writeConfiguration(const Configuration &configuration);

/// The end-of-line production file: one line of hexadecimal digits.
[[nodiscard]] QByteArray writeProductionRecord(const Configuration &configuration);

/// What the names of the files that a cabinet loads begin with.
inline constexpr QLatin1StringView configurationPrefix{"svrxconfig_"};

/// Whether a cabinet would load a configuration of this name. Case matters.
[[nodiscard]] bool isConfigurationName(const QString &path);
/// The production file's path beside the configuration's, whose name isConfigurationName() has accepted.
[[nodiscard]] QString productionPath(const QString &configurationPath);

} // namespace lanes
