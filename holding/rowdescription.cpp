// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/rowdescription.h"

#include <QCoreApplication>

#include "model/productinfo.h"
#include "model/temperature.h"
#include "model/times.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RowDescription)
};

} // namespace

QString temperaturesText(const ProductInfo &entry, const CabinetConfiguration &configuration)
{
    QString upper = temperatureText(entry.get_upperTemp(), configuration.temperatureUnit);
    if (isZpv(configuration.type))
        return upper;
    return upper + u" / "_s + temperatureText(entry.get_lowerTemp(), configuration.temperatureUnit);
}

QString shortTemperaturesText(const ProductInfo &entry, const CabinetConfiguration &configuration)
{
    const int lower = isZpv(configuration.type) ? entry.get_upperTemp() : entry.get_lowerTemp();
    return shortTemperatures(entry.get_upperTemp(), lower, configuration.temperatureUnit);
}

QString rowDescription(const ProductInfo *entry, const CabinetConfiguration &configuration)
{
    if (!entry)
        return {};
    const QString temperatures = temperaturesText(*entry, configuration);
    // A group stores no time of its own.
    return entry->get_isGroup()
               ? temperatures
               : Text::tr("%1, Holding Time: %2").arg(temperatures, timeText(entry->get_holdTime()));
}

} // namespace holding
