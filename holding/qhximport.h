// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include "holding/menu.h"

namespace holding {

/// Where the old binary menus keep a bin: the bottom row comes first.
struct BinPlace
{
    int row = 0; ///< from the top
    int slot = 0;

    friend bool operator==(const BinPlace &, const BinPlace &) = default;
};
[[nodiscard]] BinPlace placeOfFileBin(const CabinetShape &shape, int fileBin);

/// Fills a new menu from an old binary one: configuration, products, groups and two day parts. The old form
/// says nothing of the four switches; they stay off. Returns an empty text or the message of the first
/// fault; `menu` then holds what was read before it.
[[nodiscard]] QString importQhxMenu(const QByteArray &bytes, Menu &menu);

} // namespace holding
