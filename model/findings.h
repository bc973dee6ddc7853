// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>

#include "model/bin.h"

/// Where in a menu something stands: a row of one of its lists, or a bin of a day part.
struct MenuPlace
{
    enum class Part { Products, Groups, Bins };

    Part part = Part::Products;
    int index = 0; ///< of the row, or of the bin's day part, from 0
    Bin bin = {};

    friend bool operator==(const MenuPlace &, const MenuPlace &) = default;
};

/// What a file can bring into a menu, but its dialogs would not take or not show.
enum class FindingKind {
    TooManyEntries,
    RepeatedId, ///< an entry before it has the id
    NoName,
    NoShortName,
    HoldTime, ///< the settings of a product that its dialog would not take, or would change
    AlertTime,
    ResetTime,
    UpperTemperature,
    LowerTemperature,
    FanSpeed,
    ZoneSplit,
    LidType,
    BottomType,
    TimerColor,
    NoMembers,
    MissingMembers,
    RepeatedMembers,
    UnfitMembers,
    NoDefault,
    MissingEntry, ///< of a bin
    UnfitEntry,   ///< of a bin
};

struct Finding
{
    FindingKind kind;
    MenuPlace place;
    int position = 0; ///< of the first such member of a group, among its members
    int count = 1;    ///< of such members, which are told together

    friend bool operator==(const Finding &, const Finding &) = default;
};

/// What somebody should look at in a menu. A file may bring millions of such things: the first ones are kept,
/// all are counted.
class Findings
{
public:
    static constexpr qsizetype maxKept = 1000;

    void add(const Finding &finding)
    {
        if (m_kept.size() < maxKept)
            m_kept.append(finding);
        ++m_count;
    }

    [[nodiscard]] const QList<Finding> &kept() const { return m_kept; }
    [[nodiscard]] qsizetype count() const { return m_count; }

private:
    QList<Finding> m_kept;
    qsizetype m_count = 0;
};
