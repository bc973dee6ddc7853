# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The folders of the program, found by what they declare. To be sourced, and called in the top folder.

# layers: every folder at the top that declares a library.
layers() {
    local list
    for list in */CMakeLists.txt; do
        ! grep -qE '^[[:space:]]*varno_library\(' "$list" || echo "${list%/*}"
    done
}

# product_lines: every layer that is none of those which the lines share.
product_lines() {
    layers | grep -vxE 'app|model|widgets'
}
