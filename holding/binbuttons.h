// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The buttons of the day-part grid, one X each: the first zone row by row, then the second one ("B"). The
// editor declares, defines and registers from this list. moc expands it, but cannot paste numbers together.
// clang-format off
#define FOR_EACH_BIN_BUTTON(X) \
    X(btnDaypartSelect0_0) X(btnDaypartSelect0_1) X(btnDaypartSelect0_2) \
    X(btnDaypartSelect1_0) X(btnDaypartSelect1_1) X(btnDaypartSelect1_2) \
    X(btnDaypartSelect2_0) X(btnDaypartSelect2_1) X(btnDaypartSelect2_2) \
    X(btnDaypartSelect3_0) X(btnDaypartSelect3_1) X(btnDaypartSelect3_2) \
    X(btnDaypartSelect4_0) X(btnDaypartSelect4_1) X(btnDaypartSelect4_2) \
    X(btnDaypartSelect5_0) X(btnDaypartSelect5_1) X(btnDaypartSelect5_2) \
    X(btnDaypartSelect6_0) X(btnDaypartSelect6_1) \
    X(btnDaypartSelect7_0) X(btnDaypartSelect7_1) \
    X(btnDaypartSelectB0_0) X(btnDaypartSelectB0_1) \
    X(btnDaypartSelectB1_0) X(btnDaypartSelectB1_1) \
    X(btnDaypartSelectB2_0) X(btnDaypartSelectB2_1) \
    X(btnDaypartSelectB3_0) X(btnDaypartSelectB3_1) \
    X(btnDaypartSelectB4_0) X(btnDaypartSelectB4_1)
// clang-format on
