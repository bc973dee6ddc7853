// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QTime>

/// Records hold times as whole seconds, time edits as a time of day. Seconds that no day has, which only a
/// file can bring, wrap to the time of another day.
[[nodiscard]] QTime timeOfSeconds(int seconds);
[[nodiscard]] int secondsOf(const QTime &time);

/// The seconds that are entered as long as a box shows stored ones untouched. What a day has no room for
/// stays, a negative time is shown as one of the day before.
[[nodiscard]] int enteredSeconds(int storedSeconds);

/// "01:30:00", or in a shorter form.
[[nodiscard]] QString timeText(int seconds, QStringView format = u"HH:mm:ss");
