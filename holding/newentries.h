// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "model/productinfo.h"

/// Entries as the editors first offer them.
namespace holding {

[[nodiscard]] std::unique_ptr<ProductInfo> newProduct(int id, int binsPerZone);
[[nodiscard]] std::unique_ptr<ProductInfo> newGroup(int id);
/// A copy under another id. It is never locked, so that the user can change the copy.
[[nodiscard]] std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id);

} // namespace holding
