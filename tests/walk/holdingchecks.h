// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tests/walk/editorchecks.h"

class MenuFile;

namespace walk {

[[nodiscard]] EntryIds entryIdsOf(MenuFile &editor);
void checkShown(MenuFile &editor, const Journal &journal);
void checkFile(MenuFile &editor, const Journal &journal);

} // namespace walk
