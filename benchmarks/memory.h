// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdio>

#include <unistd.h>

/// What this process holds in memory at the moment, in KiB; 0 where the system does not say.
inline long residentKib()
{
    long pages = 0;
    if (std::FILE *statm = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(statm, "%*d %ld", &pages) != 1)
            pages = 0;
        std::fclose(statm);
    }
    return pages * (sysconf(_SC_PAGESIZE) / 1024);
}
