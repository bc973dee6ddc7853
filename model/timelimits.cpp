// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/timelimits.h"

#include <QCoreApplication>

namespace {

constexpr int minHoldSeconds = 6 * 60;
constexpr int maxHoldSeconds = 8 * 60 * 60;
constexpr int maxResetSeconds = 60 * 60 - 1;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimeLimits)
};

} // namespace

QString holdTimeFault(int holdSeconds)
{
    if (holdSeconds < minHoldSeconds)
        return Text::tr("Invalid hold time. Minimum value is 6 minutes!");
    if (holdSeconds > maxHoldSeconds)
        return Text::tr("Invalid hold time. Maximum value is 8 hours!");
    return {};
}

QString alertTimeFault(int holdSeconds, int alertSeconds)
{
    return holdSeconds <= alertSeconds
               ? Text::tr("Invalid cook more alert time. Value must be less than hold time!")
               : QString();
}

QString resetTimeFault(int resetSeconds)
{
    return resetSeconds > maxResetSeconds ? Text::tr("Invalid reset time!") : QString();
}
