// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/editormemory.h"

#include "widgets/menueditor.h"

namespace walk {

namespace {

// Adds what is no longer there. Fewer ids mean a deletion; with as many, an entry got another id.
void addMissing(const QList<int> &before, const QList<int> &now, QList<int> &missing)
{
    if (now.size() >= before.size())
        return;
    for (const int id : before) {
        if (!now.contains(id))
            missing.append(id);
    }
}

} // namespace

EditorMemory::EditorMemory(MenuEditor &editor)
    : QObject(&editor)
    , m_editor(editor)
{
    startAnew();
}

bool EditorMemory::isKnown(const MenuEditor &editor)
{
    return editor.findChild<EditorMemory *>({}, Qt::FindDirectChildrenOnly) != nullptr;
}

EditorMemory &EditorMemory::of(MenuEditor &editor)
{
    auto *known = editor.findChild<EditorMemory *>({}, Qt::FindDirectChildrenOnly);
    return known ? *known : *new EditorMemory(editor);
}

void EditorMemory::startAnew()
{
    constexpr qsizetype mostAdded = 100;
    m_ids = idsOf(m_editor);
    m_entriesAllowed = static_cast<int>(qMax(mostAdded, m_ids.products.size() + m_ids.groups.size()));
    m_deletedProducts.clear();
    m_deletedGroups.clear();
}

void EditorMemory::look()
{
    const EntryIds now = idsOf(m_editor);
    addMissing(m_ids.products, now.products, m_deletedProducts);
    addMissing(m_ids.groups, now.groups, m_deletedGroups);
    m_ids = now;
    const auto isPresent = [&now](int id) { return now.products.contains(id) || now.groups.contains(id); };
    m_deletedProducts.removeIf(isPresent);
    m_deletedGroups.removeIf(isPresent);
}

} // namespace walk
