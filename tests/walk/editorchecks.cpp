// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/editorchecks.h"

#include "holding/menufile.h"
#include "lanes/svrxmenufile.h"
#include "tests/walk/holdingchecks.h"
#include "tests/walk/lanechecks.h"
#include "tests/walk/timerbarchecks.h"
#include "timerbar/timerbarmenufile.h"

namespace walk {

namespace {

/// Calls the one that takes the editor's class.
template <typename Act>
void withEditor(MenuEditor &editor, Act act)
{
    if (auto *holding = qobject_cast<MenuFile *>(&editor))
        act(*holding);
    else if (auto *lanes = qobject_cast<SvrxMenuFile *>(&editor))
        act(*lanes);
    else if (auto *timerBar = qobject_cast<TimerBarMenuFile *>(&editor))
        act(*timerBar);
}

} // namespace

EntryIds idsOf(MenuEditor &editor)
{
    EntryIds ids;
    withEditor(editor, [&ids](auto &known) { ids = entryIdsOf(known); });
    return ids;
}

void checkEditor(MenuEditor &editor, const Journal &journal)
{
    withEditor(editor, [&journal](auto &known) { checkShown(known, journal); });
}

void checkSaved(MenuEditor &editor, const Journal &journal)
{
    withEditor(editor, [&journal](auto &known) { checkFile(known, journal); });
}

} // namespace walk
