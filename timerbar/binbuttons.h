// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The buttons of the day-part grid, one X each: the left pairs row by row, then the right ones ("B"). The
// editor declares, defines and hides from this list. moc expands it, but cannot paste numbers together.
// clang-format off
#define FOR_EACH_TIMER_BAR_BIN_BUTTON(X) \
    X(btnDaypartSelect0_0) X(btnDaypartSelect0_1) \
    X(btnDaypartSelect1_0) X(btnDaypartSelect1_1) \
    X(btnDaypartSelect2_0) X(btnDaypartSelect2_1) \
    X(btnDaypartSelect3_0) X(btnDaypartSelect3_1) \
    X(btnDaypartSelectB0_0) X(btnDaypartSelectB0_1) \
    X(btnDaypartSelectB1_0) X(btnDaypartSelectB1_1) \
    X(btnDaypartSelectB2_0) X(btnDaypartSelectB2_1)
// clang-format on
