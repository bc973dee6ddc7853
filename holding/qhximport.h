// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include "holding/menu.h"

namespace holding {

/// Where the old binary menus keep a bin: the bottom row comes first.
[[nodiscard]] Bin placeOfFileBin(const CabinetShape &shape, int fileBin);

/// Fills a new menu from an old binary one: configuration, products, groups and two day parts. The old form
/// says nothing of the four switches; they stay off. Returns an empty text or the message of the first error;
/// `menu` then holds what was read before it.
[[nodiscard]] QString importQhxMenu(const QByteArray &bytes, Menu &menu);

/// Makes an imported menu part of another one: its entries come behind those that are there, and its cabinet
/// replaces the other one. The two day parts keep their names, are in use and hold the imported bins; later
/// ones go. The four switches of `menu` stay.
void addImportedMenu(Menu &&imported, Menu &menu);

} // namespace holding
