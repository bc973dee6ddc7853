// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

/// In which way two lists of texts differ, by name; empty for equal ones. Of lists of different sizes,
/// QCOMPARE tells nothing but the sizes.
[[nodiscard]] inline QString differenceOf(const QStringList &actual, const QStringList &expected)
{
    if (actual == expected)
        return {};
    QStringList missing = expected;
    QStringList added = actual;
    for (const QString &text : actual)
        missing.removeOne(text);
    for (const QString &text : expected)
        added.removeOne(text);
    const QString separator = QStringLiteral(", ");
    if (missing.isEmpty() && added.isEmpty())
        return QStringLiteral("in another order: ") + actual.join(separator);
    return QStringLiteral("missing: %1; not expected: %2")
        .arg(missing.join(separator), added.join(separator));
}
