// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

/// Sets what holds for the whole application: how the titles of sub-windows are laid out, and that a write
/// beyond a file size limit fails instead of ending the program. To be called before the first window is
/// made.
void prepareApplication();

/// Runs the program once there is an application object: translated into the first of the user's languages
/// that there is a catalogue for, with the main window maximised. Returns the exit code.
[[nodiscard]] int runProgram(const QStringList &uiLanguages);
