// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "tests/support/require.h"
#include "widgets/bingrid.h"

/// Waits as long as a bin has to be held, by a bin of another grid: a press that began before this and still
/// counts has been detected afterwards.
inline void waitForAHold()
{
    QPushButton button;
    BinGrid grid;
    grid.add(&button, {0, 0});
    const QSignalSpy held(&grid, &BinGrid::holdDetected);
    grid.press(&button);
    REQUIRE_SOON(held.count() == 1);
}
