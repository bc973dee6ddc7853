// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QHash>

/// What the bytes of a file are known again by. They would take as much memory as the menu does, for as long
/// as it is open.
struct SaveMark
{
    explicit SaveMark(const QByteArray &bytes)
        : size(bytes.size())
        , hash(qHash(bytes))
    {}

    qsizetype size;
    size_t hash;

    friend bool operator==(const SaveMark &, const SaveMark &) = default;
};
