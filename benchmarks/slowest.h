// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <functional>

#include <QElapsedTimer>
#include <QList>

/// The milliseconds of the slowest of these acts.
inline double slowestAct(const QList<std::function<void()>> &acts)
{
    qint64 slowest = 0;
    for (const auto &act : acts) {
        QElapsedTimer timer;
        timer.start();
        act();
        slowest = std::max(slowest, timer.nsecsElapsed());
    }
    return static_cast<double>(slowest) / 1e6;
}
