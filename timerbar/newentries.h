// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "model/productinfo.h"

/// Products as the editor first offers them.
namespace timerbar {

[[nodiscard]] std::unique_ptr<ProductInfo> newProduct(int id);
/// A copy under another id.
[[nodiscard]] std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id);

} // namespace timerbar
