// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <initializer_list>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QList>
#include <QStringList>

#include "model/productinfo.h"

/// Products or groups in the order of a menu, which owns them.
using Entries = std::vector<std::unique_ptr<ProductInfo>>;

/// The first entry with this id, or null.
[[nodiscard]] ProductInfo *findEntry(const Entries &entries, int id);
/// The first entry of each id, for looking up many.
using EntryIndex = std::unordered_map<int, ProductInfo *>;
[[nodiscard]] EntryIndex indexById(const QList<ProductInfo *> &entries);
/// The entry with this id, or null.
[[nodiscard]] ProductInfo *findEntry(const EntryIndex &index, int id);
/// The entry of a row; null for a row that there is not, such as the -1 of a list without a current row.
[[nodiscard]] ProductInfo *entryAt(const Entries &entries, int row);

/// The smallest id from `firstId` upward that no entry of these lists has.
[[nodiscard]] int nextFreeId(std::initializer_list<const Entries *> lists, int firstId);

/// The names that are shown for the entries, in their order.
[[nodiscard]] QStringList namesOf(const Entries &entries);
/// The entries as they are handed out; the records stay the menu's.
[[nodiscard]] QList<ProductInfo *> pointersTo(const Entries &entries);
