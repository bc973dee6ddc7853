// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/times.h"

QTime timeOfSeconds(int seconds)
{
    return QTime(0, 0).addSecs(seconds);
}

int secondsOf(const QTime &time)
{
    return QTime(0, 0).secsTo(time);
}

int enteredSeconds(int storedSeconds)
{
    return storedSeconds < 0 ? secondsOf(timeOfSeconds(storedSeconds)) : storedSeconds;
}

QString timeText(int seconds, QStringView format)
{
    return timeOfSeconds(seconds).toString(format);
}
