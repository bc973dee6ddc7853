// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tests/walk/editorchecks.h"

class SvrxMenuFile;

namespace walk {

[[nodiscard]] EntryIds entryIdsOf(SvrxMenuFile &editor);
void checkShown(SvrxMenuFile &editor, const Journal &journal);
void checkFile(SvrxMenuFile &editor, const Journal &journal);

} // namespace walk
