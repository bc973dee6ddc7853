// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/inconsistencies.h"

#include <QCoreApplication>

#include "model/findingtexts.h"
#include "model/names.h"
#include "model/timelimits.h"
#include "timerbar/bins.h"
#include "timerbar/productrules.h"

namespace timerbar {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarInconsistencies)
};

using Part = MenuPlace::Part;

void lookAtProduct(const ProductInfo &product, const MenuPlace &place, int unit, Findings &found)
{
    const auto addIf = [&](bool condition, FindingKind kind) {
        if (condition)
            found.add({.kind = kind, .place = place});
    };
    const bool isHeldWell = holdTimeFault(product.get_holdTime()).isEmpty();
    addIf(shownName(product.get_productName()).isEmpty(), FindingKind::NoName);
    addIf(product.get_productShortName().isEmpty(), FindingKind::NoShortName);
    addIf(!isHeldWell, FindingKind::HoldTime);
    addIf(isHeldWell && !alertTimeFault(product.get_holdTime(), product.get_warningTime()).isEmpty(),
          FindingKind::AlertTime);
    addIf(!isProductTemperature(product.get_upperTemp(), unit), FindingKind::UpperTemperature);
    addIf(!isProductTemperature(product.get_lowerTemp(), unit), FindingKind::LowerTemperature);
}

const ProductInfo *productIn(const Menu &menu, int daypart, Bin bin)
{
    const int id = menu.dayparts[daypart][bin];
    return id == emptyCell ? nullptr : menu.product(id);
}

// None where the cabinet has no other bin: what a larger one held there counts for nothing.
ReferenceTemperatures neighbourOf(const Menu &menu, int daypart, Bin bin)
{
    const Bin other{bin.row, bin.slot % 2 == 0 ? bin.slot + 1 : bin.slot - 1};
    return menu.shape().hasBin(other) ? neighbourTemperatures(menu, daypart, bin) : ReferenceTemperatures{};
}

// Whichever of the two came first: the list to pick from would have offered the other one.
bool stands(const ReferenceTemperatures &product, const ReferenceTemperatures &neighbour)
{
    return fitsNeighbour(product, neighbour) || fitsNeighbour(neighbour, product);
}

void lookAtDaypart(const Menu &menu, int daypart, const QList<Bin> &bins, Findings &found)
{
    for (const Bin bin : bins) {
        const ProductInfo *product = productIn(menu, daypart, bin);
        if (product && !stands(temperaturesOf(*product), neighbourOf(menu, daypart, bin)))
            found.add({.kind = FindingKind::UnfitEntry,
                       .place = {.part = Part::Bins, .index = daypart, .bin = bin}});
    }
}

QString productText(FindingKind kind, const ProductInfo &product, int unit)
{
    const TemperatureRange range = productTemperatureRange(unit);
    switch (kind) {
    case FindingKind::NoName:
        return Text::tr("There is no name");
    case FindingKind::NoShortName:
        return Text::tr("There is no short name");
    case FindingKind::HoldTime:
        return holdTimeFault(product.get_holdTime());
    case FindingKind::AlertTime:
        return alertTimeFault(product.get_holdTime(), product.get_warningTime());
    case FindingKind::UpperTemperature:
        return unfitTemperatureText(kind, product.get_upperTemp(), unit, range);
    case FindingKind::LowerTemperature:
        return unfitTemperatureText(kind, product.get_lowerTemp(), unit, range);
    default:
        return {};
    }
}

// On one line: a file's name may have several.
QString nameOf(const ProductInfo &product)
{
    return shownName(product.get_productName()).simplified();
}

QString ofProduct(const Finding &finding, const Menu &menu)
{
    const ProductInfo &product = *menu.products.at(static_cast<std::size_t>(finding.place.index));
    const QString number = QString::number(finding.place.index + 1);
    const QString name = nameOf(product);
    const QString text = productText(finding.kind, product, menu.temperatureUnit);
    return name.isEmpty() ? Text::tr("Product %1: %2").arg(number, text)
                          : Text::tr("Product %1, %2: %3").arg(number, name, text);
}

QString ofBin(const MenuPlace &place, const Menu &menu)
{
    const ProductInfo &product = *productIn(menu, place.index, place.bin);
    const QString name = nameOf(product);
    const ReferenceTemperatures neighbour = neighbourOf(menu, place.index, place.bin);
    return Text::tr("%1, Row %2, Bin %3: %4. %5")
        .arg(daypartNames().at(place.index), QString::number(place.bin.row + 1),
             QString::number(place.bin.slot + 1),
             name.isEmpty() ? Text::tr("Id %1").arg(product.get_productId()) : name,
             misfitText(product, neighbour, menu.temperatureUnit));
}

} // namespace

Findings inconsistencies(const Menu &menu)
{
    Findings found;
    MenuPlace place{.part = Part::Products};
    for (const auto &product : menu.products) {
        lookAtProduct(*product, place, menu.temperatureUnit, found);
        ++place.index;
    }
    const QList<Bin> bins = menu.shape().allBins();
    for (int daypart = 0; daypart < daypartCount; ++daypart)
        lookAtDaypart(menu, daypart, bins, found);
    return found;
}

QStringList findingTexts(const QList<Finding> &findings, const Menu &menu)
{
    QStringList texts;
    for (const Finding &finding : findings)
        texts.append(finding.place.part == Part::Bins ? ofBin(finding.place, menu)
                                                      : ofProduct(finding, menu));
    return texts;
}

} // namespace timerbar
