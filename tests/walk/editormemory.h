// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>

#include "tests/walk/editorchecks.h"

class MenuEditor;

namespace walk {

/// What the checks have to remember of an editor. The editor owns it.
class EditorMemory : public QObject
{
    Q_OBJECT

public:
    /// That of the editor; one that has none is new.
    [[nodiscard]] static EditorMemory &of(MenuEditor &editor);
    [[nodiscard]] static bool isKnown(const MenuEditor &editor);

    /// The editor has read a file, which may bring whatever it likes.
    void startAnew();
    /// The editor has been worked: entries that are gone have been deleted.
    void look();

    /// 100, or more where a file brought them.
    [[nodiscard]] int entriesAllowed() const { return m_entriesAllowed; }
    /// The ids of deleted products and groups that no entry has now. Nothing may refer to them.
    [[nodiscard]] QList<int> deleted() const { return m_deletedProducts + m_deletedGroups; }
    /// The products alone: no group may have them as members.
    [[nodiscard]] QList<int> deletedProducts() const { return m_deletedProducts; }

private:
    explicit EditorMemory(MenuEditor &editor);

    MenuEditor &m_editor;
    EntryIds m_ids;
    int m_entriesAllowed = 0;
    QList<int> m_deletedProducts;
    QList<int> m_deletedGroups;
};

} // namespace walk
