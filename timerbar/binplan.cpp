// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/binplan.h"

#include <QCoreApplication>

#include "model/names.h"
#include "model/times.h"
#include "timerbar/bins.h"

using namespace Qt::StringLiterals;

namespace timerbar {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarBinPlan)
};

// lupdate loses the context of texts in functions whose result has a qualified type.
QString modelText(const QString &model)
{
    return Text::tr("Timer Bar %1").arg(model);
}

QString idText(int id)
{
    return Text::tr("Id %1").arg(id);
}

QString settingsText(const ProductInfo &product, int unit)
{
    const QStringList parts{product.get_productShortName(),
                            shortTemperatures(product.get_upperTemp(), product.get_lowerTemp(), unit),
                            timeText(product.get_holdTime(), u"HH:mm")};
    return parts.join(u"  "_s).trimmed();
}

binplan::Content contentOf(const Menu &menu, int id)
{
    if (id == emptyCell)
        return {};
    const ProductInfo *product = menu.product(id);
    binplan::Content content;
    content.name = product ? shownName(product->get_productName()) : QString();
    if (content.name.isEmpty())
        content.name = idText(id);
    if (product)
        content.settings = settingsText(*product, menu.temperatureUnit);
    return content;
}

binplan::GridBin gridBin(const CabinetShape &shape, Bin bin)
{
    const bool right = bin.slot >= 2;
    const int rightWidth = shape.threeColumns ? oneBinPairWidth : pairWidth;
    const binplan::Span pair = binplan::zoneSpan(pairWidth, shape.columnLayout == 2 ? rightWidth : 0, right);
    const qreal width = pair.width / (right && shape.threeColumns ? 1 : 2);
    const qreal left = pair.left + bin.slot % 2 * width;
    return {.row = bin.row, .left = left, .right = left + width, .content = {}};
}

} // namespace

binplan::Cabinet plannedCabinet(const Menu &menu)
{
    const CabinetShape shape = menu.shape();
    binplan::Cabinet cabinet{
        .model = modelText(menu.model), .rows = shape.rows, .columns = shape.columns(), .dayparts = {}};
    const QStringList names = daypartNames();
    for (int daypart = 0; daypart < daypartCount; ++daypart) {
        if (!menu.hasFilledBins(daypart))
            continue;
        cabinet.dayparts.append({names[daypart], {}});
        const QList<Bin> bins = shape.allBins();
        for (const Bin bin : bins) {
            binplan::GridBin placed = gridBin(shape, bin);
            placed.content = contentOf(menu, menu.dayparts[daypart][bin]);
            cabinet.dayparts.last().bins.append(placed);
        }
    }
    return cabinet;
}

} // namespace timerbar
