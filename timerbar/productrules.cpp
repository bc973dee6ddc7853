// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/productrules.h"

#include <algorithm>

#include <QCoreApplication>

namespace timerbar {

namespace {

// Cabinets with older software know no lower temperatures.
constexpr int leastCommonTemperature = 155;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarProductEdit)
};

bool isLetterOrDigit(QChar character)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') ||
           (character >= u'0' && character <= u'9');
}

bool isNameCharacter(QChar character)
{
    return character == u' ' || isLetterOrDigit(character);
}

} // namespace

QString nameFault(QStringView name)
{
    return std::all_of(name.begin(), name.end(), isNameCharacter)
               ? QString()
               : Text::tr("Product name should be English characters or numbers only");
}

QString shortNameFault(QStringView shortName)
{
    return std::all_of(shortName.begin(), shortName.end(), isLetterOrDigit)
               ? QString()
               : Text::tr("Product short name should be English characters or numbers only");
}

TemperatureRange productTemperatureRange(int unit)
{
    return unit == unitCelsius ? TemperatureRange{38, 107} : TemperatureRange{100, 225};
}

bool isProductTemperature(int fahrenheit, int unit)
{
    return productTemperatureRange(unit).contains(shownTemperature(fahrenheit, unit));
}

QString temperatureNotice(int upper, int lower)
{
    return std::min(upper, lower) < leastCommonTemperature
               ? Text::tr("Temperature values less than 155°F are supported in cabinet IO software "
                          "version 1.6.2 or newer")
               : QString();
}

} // namespace timerbar
