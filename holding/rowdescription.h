// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "holding/cabinet.h"

class ProductInfo;

namespace holding {

/// "215°F / 200°F", or the only temperature of a cabinet that has one.
[[nodiscard]] QString temperaturesText(const ProductInfo &entry, const CabinetConfiguration &configuration);

/// The same where room is short: "215/200°F".
[[nodiscard]] QString shortTemperaturesText(const ProductInfo &entry,
                                            const CabinetConfiguration &configuration);

/// What a list tells of an entry besides its name: "215°F / 200°F, Holding Time: 01:00:00". Empty for null.
[[nodiscard]] QString rowDescription(const ProductInfo *entry, const CabinetConfiguration &configuration);

} // namespace holding
