// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/timercolorsample.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace holding {

TimerColorSample timerColorSample(const TimerColor &entry)
{
    if (entry.isNone())
        return {u"border-image: url(:/images/noColor.png);"_s, {}};
    return {sampleStyle(entry), QCoreApplication::translate("TimerColorSample", "SampleText")};
}

} // namespace holding
