// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QString>

namespace holding {

inline constexpr int paletteRows = 9;
inline constexpr int paletteColumns = 9;

/// A colour that a product's timer can have. Names are "#" and six lower-case hexadecimal digits, numbers are
/// 0xRRGGBB.
struct TimerColor
{
    QString textColorName; ///< of text drawn on the colour
    QString colorName;     ///< what a product stores
    int textColor = 0;
    int color = 0;

    /// The first entry stands for "no timer colour".
    [[nodiscard]] bool isNone() const;
};

using TimerPalette = std::array<TimerColor, paletteRows * paletteColumns>;

/// The palette row by row; it lives as long as the program.
[[nodiscard]] const TimerPalette &timerPalette();

/// What the colour is called: "dark red", or "No color"; the stored name of one that is none of the
/// palette's.
[[nodiscard]] QString shadeName(const TimerColor &entry);

/// The same and the stored name, for those who do not see it: "dark red, #700000", or "No color".
[[nodiscard]] QString colorWords(const TimerColor &entry);

/// The entry with exactly this name, else the no-colour entry.
[[nodiscard]] const TimerColor &timerColorByName(const QString &colorName);

} // namespace holding
