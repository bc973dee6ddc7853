// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "model/bin.h"

class QLabel;
class QListWidget;

/// What stands above and under a list to pick from; the list's window owns the labels. Both are hidden while
/// they are empty.
struct ListNotes
{
    QLabel *above = nullptr; ///< for names of any length
    QLabel *below = nullptr;

    void setAbove(const QString &text) const;
    void setBelow(const QString &text) const;
};

/// Puts the two labels around the list, wherever a layout has placed it, in the list's own place. The one
/// below has room for so many lines; a narrow list needs more of them.
[[nodiscard]] ListNotes addListNotes(QListWidget *list, int linesBelow = 2);

/// Which bin is being filled: day part, place, and the name of what stands there now, or nothing.
[[nodiscard]] QString placeText(const QString &daypart, Bin bin, const QString &content);
/// What is demanded, and how many of all rows meet that.
[[nodiscard]] QString demandLine(const QString &demand, int fitting, int all);
