// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QKeyEvent;

/// What a key that was pressed means, whatever widget has the focus.
namespace keypress {

/// Return, or Enter on the keypad.
[[nodiscard]] bool isEnter(const QKeyEvent &press);
/// Without any modifier; that of the keypad counts for nothing.
[[nodiscard]] bool isUnmodified(const QKeyEvent &press);
/// With a modifier other than those that characters are typed with.
[[nodiscard]] bool isCommand(const QKeyEvent &press);
/// A character, a blank too, and no command.
[[nodiscard]] bool isTyped(const QKeyEvent &press);

} // namespace keypress
