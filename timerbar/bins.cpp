// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/bins.h"

#include <array>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace timerbar {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarMenuFile)
};

constexpr auto names = std::to_array<const char *>({
    QT_TRANSLATE_NOOP("TimerBarMenuFile", "Breakfast"),
    QT_TRANSLATE_NOOP("TimerBarMenuFile", "ChangeOver 1"),
    QT_TRANSLATE_NOOP("TimerBarMenuFile", "Lunch"),
    QT_TRANSLATE_NOOP("TimerBarMenuFile", "ChangeOver 2"),
    QT_TRANSLATE_NOOP("TimerBarMenuFile", "Dinner"),
    QT_TRANSLATE_NOOP("TimerBarMenuFile", "ChangeOver 3"),
});
static_assert(names.size() == daypartCount, "each day part has its name");

QString spacedText(int fahrenheit, int unit)
{
    return u"%1 %2"_s.arg(QString::number(shownTemperature(fahrenheit, unit)), unitText(unit));
}

} // namespace

QStringList daypartNames()
{
    QStringList translated;
    for (const char *name : names)
        translated.append(Text::tr(name));
    return translated;
}

ReferenceTemperatures neighbourTemperatures(const Menu &menu, int daypart, Bin bin)
{
    const int first = menu.shape().columnLayout == 2 && bin.slot >= 2 ? 2 : 0;
    for (int other = first; other < first + 2; ++other) {
        const int id = menu.dayparts[daypart][bin.row][other];
        const ProductInfo *product = other == bin.slot || id == emptyCell ? nullptr : menu.product(id);
        if (product)
            return temperaturesOf(*product);
    }
    return {};
}

ReferenceTemperatures temperaturesOf(const ProductInfo &product)
{
    return {product.get_upperTemp(), product.get_lowerTemp()};
}

bool fitsNeighbour(const ReferenceTemperatures &product, const ReferenceTemperatures &reference)
{
    return reference.upper == 0 || (product.upper == reference.lower && product.lower == reference.lower);
}

bool fitsNeighbour(const ProductInfo &product, const ReferenceTemperatures &reference)
{
    return fitsNeighbour(temperaturesOf(product), reference);
}

QString misfitText(const ProductInfo &product, const ReferenceTemperatures &reference, int temperatureUnit)
{
    if (fitsNeighbour(product, reference))
        return {};
    const int demanded = shownTemperature(reference.lower, temperatureUnit);
    const bool alike = shownTemperature(product.get_upperTemp(), temperatureUnit) == demanded &&
                       shownTemperature(product.get_lowerTemp(), temperatureUnit) == demanded;
    const int unit = alike ? unitFahrenheit : temperatureUnit; // rounded to °C they would not differ
    return Text::tr("Does not fit: %1 / %2, this pair holds %3")
        .arg(spacedText(product.get_upperTemp(), unit), spacedText(product.get_lowerTemp(), unit),
             spacedText(reference.lower, unit));
}

QString demandText(const ReferenceTemperatures &reference, int temperatureUnit)
{
    return reference.upper == 0 ? Text::tr("Any product may stand here")
                                : Text::tr("Needs %1").arg(spacedText(reference.lower, temperatureUnit));
}

} // namespace timerbar
