# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The Debian 12 packages that each task needs, and what the scripts share. To be sourced.

# shellcheck disable=SC2034  # the sets are looked up by name
{
    packages_build=(cmake g++ git libgl-dev ninja-build qt6-base-dev qt6-l10n-tools qt6-tools-dev
                    qt6-tools-dev-tools)
    # The lists ask for "Courier New", for which fontconfig takes Liberation Mono.
    packages_fonts=(fonts-dejavu-core fonts-liberation fonts-noto-cjk fonts-noto-core)
    # What looks into the PDF files of bin plans.
    packages_plan=(poppler-utils)
    # A screen reader's side of the programs, on a display of its own.
    packages_access=(at-spi2-core dbus-daemon libx11-6 libxtst6 openbox python3-gi xvfb)
    packages_display=(x11-utils)
    packages_wayland=(qt6-wayland)
    packages_tour=(openbox poppler-utils x11-utils xvfb)
    packages_lint=(appstream clang-14 clang-format-14 clang-tidy-14 clazy desktop-file-utils libxml2-utils
                   shellcheck)
    packages_package=(dpkg-dev file gzip)
    packages_check_package=(appstream gpg lintian mmdebstrap)
    packages_bench=(valgrind)
    packages_mutate=(python3)
    # The sanitizers and the runner, and what names the functions in their reports.
    packages_fuzz=(clang-14 libclang-rt-14-dev llvm-14)
}

missing_packages() {
    local name
    for name in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null) == installed ]] || echo "$name"
    done
}

# install_packages SET...: the network is used only when something is missing.
install_packages() {
    local set names=() missing=() as_root=()
    for set in "$@"; do
        local -n list=packages_$set
        names+=("${list[@]}")
    done
    if ! command -v apt-get >/dev/null; then
        echo "This is no Debian system. Make sure that it has the likes of: ${names[*]}" >&2
        return 0
    fi
    mapfile -t missing < <(missing_packages "${names[@]}")
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "Neither root nor sudo. Please install: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Acquire::Retries=3 update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Acquire::Retries=3 install -y \
        --no-install-recommends "${missing[@]}"
}

# build PRESET [OPTION FOR THE BUILD...]
build() {
    cmake --preset "$1" && cmake --build --preset "$@"
}

# last_commit_time: what is made of a commit has its time, so that it is always the same.
last_commit_time() {
    git log -1 --format=%ct
}

# wait_for SECONDS COMMAND...
wait_for() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}
