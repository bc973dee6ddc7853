// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/longtext.h"

#include "model/shortened.h"

namespace {

constexpr qsizetype longestPainted = 500; // in characters; more than any row or bin has room for

} // namespace

QString beginningOf(const QString &text)
{
    return shortened(text, longestPainted);
}
