// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What products and groups share.

#include "holding/menufile.h"

#include <algorithm>

#include "widgets/messages.h"

ProductInfo *MenuFile::getProductObject(int id)
{
    return m_menu.entry(id);
}

bool MenuFile::removeIdFromAllGroups(int id)
{
    return m_menu.removeFromGroups(id);
}

bool MenuFile::removeIdFromAllDayparts(int id)
{
    return m_menu.removeFromDayparts(id);
}

bool MenuFile::refuseWhenFull(const QString &message)
{
    if (!m_menu.isFull())
        return false;
    messages::refusal(this, message);
    return true;
}

// Groups and bins show products too, also those whose ids they held before there was such a product.
void MenuFile::reloadEntries()
{
    loadProducts();
    loadProductInfo();
    loadGroups();
    loadGroupInfo();
    loadCurrentDaypart();
}

void MenuFile::deleteEntries(EntryPane &pane, Entries &entries, const QString &question)
{
    const QList<int> rows = pane.rowsToDelete();
    if (rows.isEmpty() || !messages::confirmDelete(this, question))
        return;
    pane.setMultiSelecting(false);
    std::for_each(rows.rbegin(), rows.rend(), [&](int row) {
        const auto place = entries.begin() + row;
        if (!(*place)->get_isGroup())
            removeIdFromAllGroups((*place)->get_productId());
        removeIdFromAllDayparts((*place)->get_productId());
        entries.erase(place);
    });
    reloadEntries();
    noteChange();
    pane.focusList();
}
