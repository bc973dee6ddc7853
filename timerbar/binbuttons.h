// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The buttons of the day-part grid, one X each: button, row and column of its bin. The left pairs come row by
// row, then the right ones ("B"). The editor's slots and its grid are made from this list, in its order.
// Names are written out, as moc, which expands the list too, cannot paste numbers together.
// clang-format off
#define FOR_EACH_TIMER_BAR_BIN_BUTTON(X) \
    X(btnDaypartSelect0_0, 0, 0) X(btnDaypartSelect0_1, 0, 1) \
    X(btnDaypartSelect1_0, 1, 0) X(btnDaypartSelect1_1, 1, 1) \
    X(btnDaypartSelect2_0, 2, 0) X(btnDaypartSelect2_1, 2, 1) \
    X(btnDaypartSelect3_0, 3, 0) X(btnDaypartSelect3_1, 3, 1) \
    X(btnDaypartSelectB0_0, 0, 2) X(btnDaypartSelectB0_1, 0, 3) \
    X(btnDaypartSelectB1_0, 1, 2) X(btnDaypartSelectB1_1, 1, 3) \
    X(btnDaypartSelectB2_0, 2, 2) X(btnDaypartSelectB2_1, 2, 3)
// clang-format on
