// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

/// Runs `work` where callgrind finds it by name: the runner counts inside this function only, so that what a
/// program does before and after is left out.
extern "C" [[gnu::noipa, gnu::used]] inline void measured(const std::function<void()> &work)
{
    work();
}
