// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tests/walk/journal.h"

class MainWindow;

namespace walk {

/// To be called after each step in the window, so that what the checks remember of its editors is up to date.
/// What was opened in it has to be an editor, and valid.
void lookAtEditors(MainWindow &window, Journal &journal);

/// What holds whatever was done before; anything else ends the session.
void checkProgram(MainWindow &window, const Journal &journal);

} // namespace walk
