// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The buttons of the day-part grid, one X each: the button, its zone, its row from the top and its bin in the
// zone, all counted from 0. The editor's slots, which buttons a cabinet shows and which it hides follow from
// this list. moc expands it, but cannot paste numbers together: the buttons are whole names.
// clang-format off
#define FOR_EACH_BIN_BUTTON(X) \
    X(btnDaypartSelect0_0, 0, 0, 0) X(btnDaypartSelect0_1, 0, 0, 1) X(btnDaypartSelect0_2, 0, 0, 2) \
    X(btnDaypartSelect1_0, 0, 1, 0) X(btnDaypartSelect1_1, 0, 1, 1) X(btnDaypartSelect1_2, 0, 1, 2) \
    X(btnDaypartSelect2_0, 0, 2, 0) X(btnDaypartSelect2_1, 0, 2, 1) X(btnDaypartSelect2_2, 0, 2, 2) \
    X(btnDaypartSelect3_0, 0, 3, 0) X(btnDaypartSelect3_1, 0, 3, 1) X(btnDaypartSelect3_2, 0, 3, 2) \
    X(btnDaypartSelect4_0, 0, 4, 0) X(btnDaypartSelect4_1, 0, 4, 1) X(btnDaypartSelect4_2, 0, 4, 2) \
    X(btnDaypartSelect5_0, 0, 5, 0) X(btnDaypartSelect5_1, 0, 5, 1) X(btnDaypartSelect5_2, 0, 5, 2) \
    X(btnDaypartSelect6_0, 0, 6, 0) X(btnDaypartSelect6_1, 0, 6, 1) \
    X(btnDaypartSelect7_0, 0, 7, 0) X(btnDaypartSelect7_1, 0, 7, 1) \
    X(btnDaypartSelectB0_0, 1, 0, 0) X(btnDaypartSelectB0_1, 1, 0, 1) \
    X(btnDaypartSelectB1_0, 1, 1, 0) X(btnDaypartSelectB1_1, 1, 1, 1) \
    X(btnDaypartSelectB2_0, 1, 2, 0) X(btnDaypartSelectB2_1, 1, 2, 1) \
    X(btnDaypartSelectB3_0, 1, 3, 0) X(btnDaypartSelectB3_1, 1, 3, 1) \
    X(btnDaypartSelectB4_0, 1, 4, 0) X(btnDaypartSelectB4_1, 1, 4, 1)
// clang-format on
