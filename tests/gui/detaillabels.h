// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

/// What names the rows of a holding-cabinet entry's details, from top to bottom.
inline const QStringList detailLabels{
    QStringLiteral("Id:"),
    QStringLiteral("Name:"),
    QStringLiteral("Upper Temperature:"),
    QStringLiteral("Lower Temperature:"),
    QStringLiteral("Holding Time:"),
    QStringLiteral("Cook More Alert Time:"),
    QStringLiteral("Reset Time:"),
    QStringLiteral("Fan Speed:"),
    QStringLiteral("Lid Type:"),
    QStringLiteral("Bottom Type:"),
    QStringLiteral("Zone Splits:"),
    QStringLiteral("Timer Color:"),
};
