// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "holding/bins.h"

namespace holding {

/// What a bin tells of the entry in it. A bin whose entry is missing or has no name is no empty bin; its id
/// is all there is to show.
struct BinLabel
{
    QString name;   ///< empty for an empty bin
    QString remark; ///< why the name is an id
};

/// `id` is what the slot holds.
[[nodiscard]] BinLabel binLabel(const SlotContent &content, int id);

} // namespace holding
