// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// The text, or its first `longest` characters and an ellipsis; a file may hold any length. A character that
/// takes two places in a text is never halved.
[[nodiscard]] inline QString shortened(const QString &text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    const bool halves = longest > 0 && text[longest - 1].isHighSurrogate() && text[longest].isLowSurrogate();
    return text.first(halves ? longest - 1 : longest) + u'\u2026';
}
