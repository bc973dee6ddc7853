// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "holding/menu.h"

/// The JSON document of a holding-cabinet menu.
namespace holding {

/// Settles an unknown cabinet in the middle of reading: fills the configuration and returns true, or returns
/// false to give up.
using AskConfiguration = std::function<bool(CabinetConfiguration &)>;

/// Reads a menu document into `menu`, whose configuration keeps what the document does not say; products,
/// groups and day parts replace the old ones. Returns an empty text, or the message of the first fault;
/// `menu` then holds what was read before it.
///
/// Wrong types count as missing keys, numbers that are no whole 32-bit numbers as 0, elements that are no
/// objects as empty ones. More day parts than a menu can hold are a fault, as dropping one would lose it at
/// the next save.
[[nodiscard]] QString readMenu(const QByteArray &json, Menu &menu, const AskConfiguration &askConfiguration);

/// Appends the products and groups of the built-in menu that suits `binsPerZone`. Configuration and day parts
/// stay as they are. Returns an empty text or the message of a fault.
[[nodiscard]] QString readDefaultMenu(int binsPerZone, Menu &menu);

/// The document of a menu, indented by four spaces. What the configuration switches off is written as 0.
[[nodiscard]] QByteArray writeMenu(const Menu &menu);

/// One member a language. A list that is too short counts as filled up with empty names.
[[nodiscard]] QJsonObject namesToJson(const QStringList &names);
/// Always as many names as there are languages; a missing one is empty.
[[nodiscard]] QStringList namesFromJson(const QJsonObject &names);

} // namespace holding
