// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include "holding/menu.h"

/// The menus that are written down in tests/data, under the same names.
namespace sample {

/// Everything at its fullest and oddest: a cabinet with a missing bin, all switches on, ten day parts, names
/// in every script, ids that are negative, repeated or of no entry.
[[nodiscard]] holding::Menu rich();
/// A small menu with all switches off, whose product holds a fan speed and a reset time nevertheless.
[[nodiscard]] holding::Menu plain();
/// No cabinet and no entries.
[[nodiscard]] holding::Menu empty();

/// Every value of a menu, a line each, so that QCOMPARE tells the first difference between two menus.
[[nodiscard]] QStringList describe(const holding::Menu &menu);

} // namespace sample
