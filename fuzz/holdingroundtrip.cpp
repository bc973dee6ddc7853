// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/holdingroundtrip.h"

#include "fuzz/fuzzing.h"
#include "holding/menujson.h"

namespace fuzzing {

namespace {

void forgetWhatIsSwitchedOff(holding::Menu &menu)
{
    for (const auto &product : menu.products) {
        if (!menu.configuration.fanSpeedEnabled)
            product->set_fanSpeed(0);
        if (!menu.configuration.resetTimeEnabled)
            product->set_resetTime(0);
    }
}

} // namespace

void demandRoundTrip(holding::Menu &menu)
{
    const QByteArray written = holding::writeMenu(menu);
    holding::Menu again;
    const QString fault = holding::readMenu(written, again, [](auto &) { return false; });
    demand(fault.isEmpty(), "what was written is read");
    forgetWhatIsSwitchedOff(menu);
    demand(again.configuration == menu.configuration, "the configuration comes back");
    demand(sameEntries(again.products, menu.products), "the products come back");
    demand(sameEntries(again.groups, menu.groups), "the groups come back");
    demand(again.daypartCount == menu.daypartCount, "the number of day parts comes back");
    demand(again.dayparts == menu.dayparts, "the day parts come back");
    demand(holding::writeMenu(again) == written, "what was read is written as before");
}

} // namespace fuzzing
