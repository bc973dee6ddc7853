// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// What is painted of a text that a file may have made megabytes long: all of an ordinary one, else its
/// beginning and an ellipsis. Nobody reads more, and painting the whole would stop the window for minutes.
[[nodiscard]] QString beginningOf(const QString &text);
