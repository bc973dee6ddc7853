// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/timercolorsample.h"

#include <QColor>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

QString textStyle(const TimerColor &entry)
{
    const QColor color(static_cast<QRgb>(entry.textColor));
    return u"color: rgb(%1, %2, %3);"_s.arg(color.red()).arg(color.green()).arg(color.blue());
}

} // namespace

TimerColorSample timerColorSample(const TimerColor &entry)
{
    if (entry.isNone())
        return {u"border-image: url(:/images/noColor.png);"_s, {}};
    return {backgroundStyle(entry) + u' ' + textStyle(entry),
            QCoreApplication::translate("TimerColorSample", "SampleText")};
}

QString backgroundStyle(const TimerColor &entry)
{
    const QColor color(static_cast<QRgb>(entry.color));
    return u"background-color: rgb(%1,%2,%3);"_s.arg(color.red()).arg(color.green()).arg(color.blue());
}

} // namespace holding
