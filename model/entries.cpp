// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/entries.h"

#include <algorithm>
#include <unordered_set>

#include "model/names.h"

ProductInfo *findEntry(const Entries &entries, int id)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [id](const auto &entry) { return entry->get_productId() == id; });
    return found == entries.end() ? nullptr : found->get();
}

EntryIndex indexById(const QList<ProductInfo *> &entries)
{
    EntryIndex index;
    index.reserve(static_cast<std::size_t>(entries.size()));
    for (ProductInfo *entry : entries)
        index.emplace(entry->get_productId(), entry); // a repeated id changes nothing
    return index;
}

ProductInfo *findEntry(const EntryIndex &index, int id)
{
    const auto found = index.find(id);
    return found == index.end() ? nullptr : found->second;
}

ProductInfo *entryAt(const Entries &entries, int row)
{
    const auto index = static_cast<std::size_t>(row);
    return row < 0 || index >= entries.size() ? nullptr : entries[index].get();
}

int nextFreeId(std::initializer_list<const Entries *> lists, int firstId)
{
    std::unordered_set<int> used;
    for (const Entries *entries : lists) {
        for (const auto &entry : *entries)
            used.insert(entry->get_productId());
    }
    int id = firstId;
    while (used.contains(id))
        ++id;
    return id;
}

QStringList namesOf(const Entries &entries)
{
    QStringList names;
    names.reserve(static_cast<qsizetype>(entries.size()));
    for (const auto &entry : entries)
        names.append(shownName(entry->get_productName()));
    return names;
}

QList<ProductInfo *> pointersTo(const Entries &entries)
{
    QList<ProductInfo *> pointers;
    pointers.reserve(static_cast<qsizetype>(entries.size()));
    for (const auto &entry : entries)
        pointers.append(entry.get());
    return pointers;
}
