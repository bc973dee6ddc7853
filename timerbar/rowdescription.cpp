// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/rowdescription.h"

#include <QCoreApplication>

#include "model/productinfo.h"
#include "model/temperature.h"
#include "model/times.h"

namespace timerbar {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarRowDescription)
};

} // namespace

QString rowDescription(const ProductInfo *product, int temperatureUnit)
{
    if (!product)
        return {};
    return Text::tr("%1 / %2, Holding Time: %3")
        .arg(temperatureText(product->get_upperTemp(), temperatureUnit),
             temperatureText(product->get_lowerTemp(), temperatureUnit),
             timeText(product->get_holdTime(), u"HH:mm"));
}

} // namespace timerbar
