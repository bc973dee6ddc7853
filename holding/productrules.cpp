// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/productrules.h"

#include <algorithm>

namespace holding {

TemperatureRange productTemperatureRange(int unit)
{
    return unit == unitCelsius ? TemperatureRange{32, 107} : TemperatureRange{90, 225};
}

bool mayHaveNoTemperature(int unit, int storedFahrenheit)
{
    return unit == unitCelsius && storedFahrenheit == 0;
}

bool isProductTemperature(int fahrenheit, int unit)
{
    return mayHaveNoTemperature(unit, fahrenheit) ||
           productTemperatureRange(unit).contains(shownTemperature(fahrenheit, unit));
}

bool isProductFanSpeed(int fanSpeed)
{
    return fanSpeed >= 0 && fanSpeed <= maxFanSpeed;
}

int enteredId(int boxValue, int lowest, int highest, int ownId)
{
    return boxValue == std::clamp(ownId, lowest, highest) ? ownId : boxValue;
}

bool isIdTaken(const QList<ProductInfo *> &products, int ownIndex, int id)
{
    for (qsizetype i = 0; i < products.size(); ++i) {
        if (i != ownIndex && products[i]->get_productId() == id)
            return true;
    }
    return false;
}

} // namespace holding
