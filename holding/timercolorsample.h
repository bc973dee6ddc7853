// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "holding/timercolors.h"

namespace holding {

/// How a label or a button shows a timer colour.
struct TimerColorSample
{
    QString styleSheet;
    QString text;
};

[[nodiscard]] TimerColorSample timerColorSample(const TimerColor &entry);

/// The style sheet "background-color: rgb(r,g,b);" of a colour.
[[nodiscard]] QString backgroundStyle(const TimerColor &entry);

} // namespace holding
