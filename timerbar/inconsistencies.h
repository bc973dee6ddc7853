// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include "model/findings.h"
#include "timerbar/menu.h"

namespace timerbar {

/// What does not fit together in a menu: the products first, then the bins that its cabinet shows. A file
/// numbers its products by their places and holds 100 at the most, and what it puts into a bin is one of
/// them: there are no other ids to look at.
[[nodiscard]] Findings inconsistencies(const Menu &menu);

/// A sentence for each, in the menu's temperature unit. They have to be findings of this menu as it is.
[[nodiscard]] QStringList findingTexts(const QList<Finding> &findings, const Menu &menu);

} // namespace timerbar
