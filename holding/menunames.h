// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QJsonObject>
#include <QStringList>

/// The names of an entry or a day part as a menu file keeps them.
namespace holding {

/// One member a language. A list that is too short counts as filled up with empty names.
[[nodiscard]] QJsonObject namesToJson(const QStringList &names);
/// Always as many names as there are languages; a missing one is empty.
[[nodiscard]] QStringList namesFromJson(const QJsonObject &names);

} // namespace holding
