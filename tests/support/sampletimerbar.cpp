// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/sampletimerbar.h"

#include "timerbar/newentries.h"

using namespace Qt::StringLiterals;

namespace sample {

std::unique_ptr<ProductInfo> timerBarProduct(const cbr::Product &product, int id)
{
    auto info = std::make_unique<ProductInfo>();
    info->set_productId(id);
    info->set_productName({QString::fromLatin1(product.name)});
    info->set_productShortName(QString::fromLatin1(product.shortName));
    info->set_upperTemp(product.upper + 99);
    info->set_lowerTemp(product.lower + 99);
    info->set_holdTime(product.holdMinutes * 60);
    info->set_warningTime(product.alertMinutes * 60);
    return info;
}

timerbar::Menu timerBarMenu(const cbr::Menu &file)
{
    timerbar::Menu menu;
    menu.model = file.model;
    menu.temperatureUnit = file.unit;
    for (int i = 0; i < file.products.size(); ++i)
        menu.products.push_back(timerBarProduct(file.products[i], i));
    const QList<QByteArray> &bins = cbr::model(file.model).bins;
    for (std::size_t index = 0; index < file.dayparts.size(); ++index) {
        for (qsizetype bin = 0; bin < file.dayparts[index].size(); ++bin)
            menu.dayparts[index][bins[bin][0] - '0'][bins[bin][1] - '0'] = file.dayparts[index][bin];
    }
    return menu;
}

timerbar::Menu menuWithIds(const QList<int> &ids)
{
    timerbar::Menu menu;
    for (const int id : ids)
        menu.products.push_back(timerbar::newProduct(id));
    return menu;
}

QStringList describe(const timerbar::Menu &menu)
{
    QStringList lines{u"%1, unit %2"_s.arg(menu.model).arg(menu.temperatureUnit)};
    for (const auto &product : menu.products)
        lines.append(u"%1: %2 \"%3\" %4/%5 °F %6 s, alert %7 s"_s.arg(product->get_productId())
                         .arg(product->get_productName().join(u'|'), product->get_productShortName())
                         .arg(product->get_upperTemp())
                         .arg(product->get_lowerTemp())
                         .arg(product->get_holdTime())
                         .arg(product->get_warningTime()));
    for (const timerbar::DaypartCells &cells : menu.dayparts) {
        QString line;
        for (const auto &row : cells) {
            for (const int cell : row)
                line += QString::number(cell) + u' ';
            line += u"/ "_s;
        }
        lines.append(line);
    }
    return lines;
}

} // namespace sample
