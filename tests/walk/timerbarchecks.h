// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tests/walk/editorchecks.h"

class TimerBarMenuFile;

namespace walk {

[[nodiscard]] EntryIds entryIdsOf(TimerBarMenuFile &editor);
void checkShown(TimerBarMenuFile &editor, const Journal &journal);
void checkFile(TimerBarMenuFile &editor, const Journal &journal);

} // namespace walk
