// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include "holding/menu.h"
#include "model/findings.h"

namespace holding {

/// What does not fit together in a menu: the products first, then the groups and the bins that its cabinet
/// shows. What day parts hold beyond the cabinet is kept for a larger one and counts for nothing.
///
/// It takes time in proportion to the menu, and is cheap enough to be asked after each edit.
[[nodiscard]] Findings inconsistencies(const Menu &menu);

/// A sentence for each, in the menu's temperature unit. They have to be findings of this menu as it is.
[[nodiscard]] QStringList findingTexts(const QList<Finding> &findings, const Menu &menu);

} // namespace holding
