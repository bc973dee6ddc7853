// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFont>

/// A font without kerning, whose texts need no shaping, which is most of measuring and painting a short text;
/// scripts that need shaping are still shaped.
[[nodiscard]] QFont plainFont(QFont font);
