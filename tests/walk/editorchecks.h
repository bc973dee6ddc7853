// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>

#include "tests/walk/journal.h"

class MenuEditor;

namespace walk {

/// The ids of an editor's entries. Lane cabinets have none.
struct EntryIds
{
    QList<int> products;
    QList<int> groups;
};
[[nodiscard]] EntryIds idsOf(MenuEditor &editor);

/// The editor's widgets agree with its menu and with each other.
void checkEditor(MenuEditor &editor, const Journal &journal);

/// The file that the editor has just saved reads without an error, equals what the editor shows, saves again
/// to the same bytes and refers to no deleted entry.
void checkSaved(MenuEditor &editor, const Journal &journal);

} // namespace walk
