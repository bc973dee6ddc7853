// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRegularExpression>
#include <QTest>

/// Makes any Qt warning fail the running test: a missing signal, a bad connection, a null pointer. To be
/// called in init(). What the offscreen platform says of itself does not count.
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
}
