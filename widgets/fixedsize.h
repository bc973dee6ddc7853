// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSize>

class QDialog;

/// What a window manager puts around a window, roughly: nobody knows before it is shown.
inline constexpr QSize frameRoom(8, 32);

/// Fixes a dialog's size to its designed geometry, grown to what its layout needs where the running font is
/// larger than the designer's. Where the screen of its opener has no room for that, all but the last row of
/// the dialog scrolls: the buttons stay on the screen. The dialog's layout is a vertical box with the buttons
/// as its last row. Call it after the form is built, and before rows are hidden that the design counts.
void fixSizeOnScreen(QDialog *dialog);

/// The same for a size of the screen without what the desktop keeps for itself, in logical pixels.
void fixSizeOnScreen(QDialog *dialog, const QSize &available);
