// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "holding/bins.h"
#include "holding/settings.h"

/// The rules of bins and groups in words, in the menu's temperature unit.
namespace holding {

/// Why an entry cannot stand in a bin; empty exactly where fitsBin() says that it can.
[[nodiscard]] QString binMisfitText(const ProductInfo &entry, const BinLimits &limits,
                                    const QStringList &zoneSplits, const CabinetConfiguration &configuration);
/// Why a product cannot join a group; empty exactly where fitsGroup() says that it can.
[[nodiscard]] QString groupMisfitText(const ProductInfo &product, const HoldingSettings &group,
                                      const CabinetConfiguration &configuration);

/// What a bin or a group demands of an entry. A group without members demands nothing: the text says so.
[[nodiscard]] QString binDemandText(const BinLimits &limits, const QStringList &zoneSplits,
                                    const CabinetConfiguration &configuration);
[[nodiscard]] QString groupDemandText(const HoldingSettings &group,
                                      const CabinetConfiguration &configuration);

} // namespace holding
