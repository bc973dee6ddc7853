// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/temperature.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Files may hold any 32-bit number, so that a converted one may lie outside of int.
int toInt(long value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<long>(value, Limits::min(), Limits::max()));
}

} // namespace

int celsiusFromFahrenheit(int fahrenheit)
{
    if (fahrenheit == 0)
        return 0;
    return toInt(std::lround((static_cast<float>(fahrenheit) - 32.0F) * 5.0F / 9.0F));
}

int fahrenheitFromCelsius(int celsius)
{
    if (celsius == 0)
        return 0;
    return toInt(std::lround(static_cast<float>(celsius) * 9.0F / 5.0F) + 32);
}

int shownTemperature(int fahrenheit, int unit)
{
    return unit == unitCelsius ? celsiusFromFahrenheit(fahrenheit) : fahrenheit;
}

int storedTemperature(int shown, int unit)
{
    return unit == unitCelsius ? fahrenheitFromCelsius(shown) : shown;
}

int enteredTemperature(int boxValue, int storedFahrenheit, int unit)
{
    const bool untouched = boxValue == shownTemperature(storedFahrenheit, unit);
    return untouched ? storedFahrenheit : storedTemperature(boxValue, unit);
}

QString unitText(int unit)
{
    return unit == unitCelsius ? u"°C"_s : u"°F"_s;
}

QString temperatureText(int fahrenheit, int unit)
{
    return QString::number(shownTemperature(fahrenheit, unit)) + unitText(unit);
}

QString shortTemperatures(int upper, int lower, int unit)
{
    const QString lowest = temperatureText(lower, unit);
    return upper == lower ? lowest : QString::number(shownTemperature(upper, unit)) + u'/' + lowest;
}
