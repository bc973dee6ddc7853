// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <random>

#include <QList>
#include <QString>

namespace walk {

/// The session's dice: the same numbers for a seed on every machine, so the library's distributions, which
/// differ from one to the next, are not used.
class Chance
{
public:
    explicit Chance(quint32 seed)
        : m_engine(seed)
    {}

    /// A number from 0 to count - 1; count must not be 0.
    [[nodiscard]] int below(qsizetype count);
    [[nodiscard]] int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    [[nodiscard]] bool oneIn(int count) { return below(count) == 0; }

    template <typename List>
    [[nodiscard]] auto of(const List &list)
    {
        return list[below(static_cast<qsizetype>(list.size()))];
    }

private:
    std::mt19937 m_engine;
};

/// A text for an input: mostly what a person would type, now and then what nobody expects.
[[nodiscard]] QString anyText(Chance &chance);
/// Very long ones, markup, ampersands, other scripts, control characters.
[[nodiscard]] QString oddText(Chance &chance);

} // namespace walk
