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

constexpr int pairGap = 12; ///< beside the widths of the pairs

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
    const QString name = product ? shownName(product->get_productName()) : QString();
    return {name.isEmpty() ? idText(id) : name,
            product ? settingsText(*product, menu.temperatureUnit) : QString(),
            {},
            0,
            {}};
}

binplan::GridBin gridBin(const CabinetShape &shape, Bin bin)
{
    const bool right = bin.slot >= 2;
    const bool alone = right && shape.threeColumns;
    const qreal rightWidth = shape.threeColumns ? oneBinPairWidth : pairWidth;
    const qreal all = shape.columnLayout == 2 ? pairWidth + pairGap + rightWidth : pairWidth;
    const qreal width = alone ? oneBinPairWidth : pairWidth / 2.0;
    const qreal left = (right ? pairWidth + pairGap : 0) + bin.slot % 2 * width;
    return {bin.row, left / all, (left + width) / all, {}};
}

} // namespace

binplan::Cabinet plannedCabinet(const Menu &menu, const QString &fileName)
{
    const CabinetShape shape = menu.shape();
    binplan::Cabinet cabinet{fileName, modelText(menu.model), shape.rows, shape.columns(), {}};
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
