// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include "holding/menu.h"

/// A small but complete holding-cabinet menu: the default products, of which the first has a long name and a
/// colour and the next two hold at its temperatures, a group of the first two with a long name, and three
/// bins: the first product, the group, the third product.
namespace windowmenu {

extern const QString longName;

/// The cabinet with the most fields to edit and the one with the fewest.
[[nodiscard]] holding::CabinetConfiguration fullCabinet();
[[nodiscard]] holding::CabinetConfiguration plainCabinet();

[[nodiscard]] holding::Menu menu(const holding::CabinetConfiguration &configuration = fullCabinet());

/// The file of the menu.
[[nodiscard]] QByteArray bytes(const holding::CabinetConfiguration &configuration = fullCabinet());

} // namespace windowmenu
