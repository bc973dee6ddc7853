// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include "holding/menu.h"

class QTemporaryDir;

/// A small but complete holding-cabinet menu: the default products, of which the first has a long name and a
/// colour, a group of the first two with a long name, and three bins: the
/// first product, the group, the third product.
namespace windowmenu {

extern const QString longName;

/// The cabinet with the most fields to edit and the one with the fewest.
[[nodiscard]] holding::CabinetConfiguration fullCabinet();
[[nodiscard]] holding::CabinetConfiguration plainCabinet();

[[nodiscard]] holding::Menu menu(const holding::CabinetConfiguration &configuration = fullCabinet());

/// Writes the menu into the folder and returns its path.
[[nodiscard]] QString file(const QTemporaryDir &folder, const QString &name,
                           const holding::CabinetConfiguration &configuration = fullCabinet());
[[nodiscard]] QByteArray contentOf(const QString &path);

} // namespace windowmenu
