// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QTime>

/// Records hold times as whole seconds, time edits as a time of day. Seconds that no day has, which only a
/// file can bring, wrap to the time of another day.
[[nodiscard]] QTime timeOfSeconds(int seconds);
[[nodiscard]] int secondsOf(const QTime &time);

/// What a save stores while a box for this time is left alone: the seconds themselves, also of more than a
/// day; of a negative time what the box shows.
[[nodiscard]] int enteredSeconds(int storedSeconds);

/// "01:30:00", or in a shorter form.
[[nodiscard]] QString timeText(int seconds, QStringView format = u"HH:mm:ss");
