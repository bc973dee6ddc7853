// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QByteArray>
#include <QString>

#include "holding/menu.h"

/// The JSON document of a holding-cabinet menu.
namespace holding {

/// Settles an unknown cabinet in the middle of reading: fills the configuration and returns true, or returns
/// false to give up.
using AskConfiguration = std::function<bool(CabinetConfiguration &)>;

/// Reads a menu document into `menu`, whose configuration keeps what the document does not say; products,
/// groups and day parts replace the old ones. Returns an empty text, or the message of the first error;
/// `menu` then holds what was read before it.
///
/// Wrong types count as missing keys, numbers that are no whole 32-bit numbers as 0, elements that are no
/// objects as empty ones. More day parts than a menu can hold are an error, as dropping one would lose it at
/// the next save.
[[nodiscard]] QString readMenu(const QByteArray &json, Menu &menu, const AskConfiguration &askConfiguration);

/// Appends the products and groups of the built-in menu that suits `binsPerZone`. Configuration and day parts
/// stay as they are. Returns an empty text or the message of an error.
[[nodiscard]] QString readDefaultMenu(int binsPerZone, Menu &menu);

/// The document of a menu, indented by four spaces. Of products, what the
/// configuration switches off is written as 0.
[[nodiscard]] QByteArray writeMenu(const Menu &menu);

} // namespace holding
