// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include "tests/walk/journal.h"

class ProductInfo;
class QWidget;

namespace walk {

/// A list of entries with its buttons, by what the names of its widgets end in: "Product", "Group".
struct EntryList
{
    const QWidget &editor;
    const char *kind;
    QList<ProductInfo *> entries;
    /// The label of the details that tells the current entry's name.
    QString shownName;
};

/// Rows are numbers and names, check marks and selection agree, buttons are enabled that have something to
/// act on, and the details are those of the current row.
void checkList(const EntryList &list, const Journal &journal);

[[nodiscard]] QList<int> idsOf(const QList<ProductInfo *> &entries);

/// As a text comes out of a file: half a character cannot be stored.
[[nodiscard]] QString stored(const QString &text);
/// Of a name that no editor takes only the beginning need be shown.
[[nodiscard]] QString beginning(const QString &text);

} // namespace walk
