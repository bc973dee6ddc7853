// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <tuple>

#include <QStringList>

#include "tests/support/cbrbuilder.h"

/// Which button of the grid stands for which bin, by the tests' own table of models.
namespace timerbarbuttons {

/// "20" is the left-most bin of the third row from the top.
[[nodiscard]] inline QString nameOf(const QByteArray &bin)
{
    const int column = bin[1] - '0';
    return QStringLiteral("btnDaypartSelect%1%2_%3")
        .arg(QString::fromLatin1(column >= 2 ? "B" : ""), QString(QLatin1Char(bin[0])))
        .arg(column % 2);
}

/// Every bin that some model has: the left pairs row by row, then the right ones.
[[nodiscard]] inline QList<QByteArray> allBins()
{
    QList<QByteArray> bins;
    for (const cbr::Model &model : cbr::models()) {
        for (const QByteArray &bin : model.bins) {
            if (!bins.contains(bin))
                bins.append(bin);
        }
    }
    const auto place = [](const QByteArray &bin) { return std::tuple(bin[1] >= '2', bin[0], bin[1]); };
    std::sort(bins.begin(), bins.end(), [place](const QByteArray &left, const QByteArray &right) {
        return place(left) < place(right);
    });
    return bins;
}

[[nodiscard]] inline QStringList namesOf(const QList<QByteArray> &bins)
{
    QStringList names;
    for (const QByteArray &bin : bins)
        names.append(nameOf(bin));
    return names;
}

} // namespace timerbarbuttons
