// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <random>

#include <QJsonObject>

namespace fuzzing {

using Random = std::minstd_rand;

/// The document with one thing changed somewhere in it: a value of another kind or at a limit, an element or
/// a member that is dropped or stands twice. It stays a document, which changed bytes seldom do.
[[nodiscard]] QJsonObject withOneChange(const QJsonObject &document, Random &random);

} // namespace fuzzing
