// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <concepts>
#include <cstddef>

/// A fixed number of values that are counted from 0 with any integer. Every access is checked: an index
/// beyond the end ends the program before it touches anything else.
template <typename T, int count>
struct FixedList
{
    std::array<T, static_cast<std::size_t>(count)> values{};

    [[nodiscard]] constexpr T &operator[](std::integral auto index)
    {
        return values.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] constexpr const T &operator[](std::integral auto index) const
    {
        return values.at(static_cast<std::size_t>(index));
    }

    [[nodiscard]] static constexpr int size() { return count; }
    [[nodiscard]] constexpr auto begin() { return values.begin(); }
    [[nodiscard]] constexpr auto end() { return values.end(); }
    [[nodiscard]] constexpr auto begin() const { return values.begin(); }
    [[nodiscard]] constexpr auto end() const { return values.end(); }

    friend constexpr bool operator==(const FixedList &, const FixedList &) = default;
};
