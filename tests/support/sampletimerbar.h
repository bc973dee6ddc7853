// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include "tests/support/cbrbuilder.h"
#include "timerbar/menu.h"

/// Timer Bar menus as plain data, beside the files of cbrbuilder.h that hold them.
namespace sample {

/// The menu that a file holds.
[[nodiscard]] timerbar::Menu timerBarMenu(const cbr::Menu &file);
[[nodiscard]] std::unique_ptr<ProductInfo> timerBarProduct(const cbr::Product &product, int id);
/// New products with these ids, in no bin.
[[nodiscard]] timerbar::Menu menuWithIds(const QList<int> &ids);

/// Every value of a menu, a line each, so that QCOMPARE tells the first difference between two menus.
[[nodiscard]] QStringList describe(const timerbar::Menu &menu);

} // namespace sample
