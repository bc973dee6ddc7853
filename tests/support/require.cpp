// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/require.h"

#include <utility>

#include <QMessageLogger>

namespace require {

namespace {

std::function<void()> &lastAct()
{
    static std::function<void()> act;
    return act;
}

} // namespace

void fail(const QString &message, const Place &place)
{
    // Taken out first: it may fail itself.
    if (const std::function<void()> act = std::exchange(lastAct(), {}))
        act();
    QMessageLogger(place.file, place.line, nullptr).fatal("%s", qPrintable(message));
}

void atTheEnd(std::function<void()> act)
{
    lastAct() = std::move(act);
}

} // namespace require
