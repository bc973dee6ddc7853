// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

/// Calls `check` with every proper beginning of `bytes`.
template <typename Check>
void forEachTruncation(const QByteArray &bytes, Check check)
{
    for (qsizetype length = 0; length < bytes.size(); ++length)
        check(bytes.first(length));
}

/// Calls `check` with copies of `bytes` in which one byte has one bit flipped, every bit of every byte in
/// turn.
template <typename Check>
void forEachBitFlip(const QByteArray &bytes, Check check)
{
    QByteArray copy = bytes;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        for (int bit = 0; bit < 8; ++bit) {
            copy[i] = static_cast<char>(bytes[i] ^ (1 << bit));
            check(copy);
        }
        copy[i] = bytes[i];
    }
}
