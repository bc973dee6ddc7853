// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/findingtexts.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Findings)
};

} // namespace

QString unfitTemperatureText(FindingKind kind, int fahrenheit, int unit, const TemperatureRange &range)
{
    const QString sentence = kind == FindingKind::UpperTemperature
                                 ? Text::tr("The upper temperature is %1, not %2 to %3")
                                 : Text::tr("The lower temperature is %1, not %2 to %3");
    return sentence.arg(temperatureText(fahrenheit, unit), QString::number(range.lowest),
                        QString::number(range.highest) + unitText(unit));
}
