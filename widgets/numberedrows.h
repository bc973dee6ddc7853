// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QString>
#include <Qt>

class QListWidget;
class QListWidgetItem;

/// The numbered lists of products and groups that the editors and dialogs show.
namespace numberedrows {

/// Where the rows of the holding line's lists to pick from keep the entry's id: on the role of a picture,
/// where no picture is.
inline constexpr int idRole = Qt::DecorationRole;
/// Where rows to pick from tell the title that their tool tip shows.
inline constexpr int titleRole = Qt::UserRole + 1;

/// Sets up a list that colours its own rows: fixed-pitch font, a selected row in black on dark cyan, no drag
/// and drop. For dialogs; its style sheet costs more than an editor should pay when it opens.
void prepareColouredList(QListWidget *list);
/// The same arrangement in the application's font size, where that is larger, and in the palette's own
/// colours, with every other row in the alternate one.
void preparePlainList(QListWidget *list);

/// What is told of each row besides its text, to screen readers only. It is asked when somebody listens: a
/// list may have thousands of rows. The list has to be prepared before.
void describe(QListWidget *list, const std::function<QString(int row)> &description);

/// "  1 Bacon": the number right-aligned in three characters, a blank, the name.
[[nodiscard]] QString text(int number, const QString &name);

/// Such a text in its two parts, which live as long as it. One without a number is all name.
struct RowText
{
    explicit RowText(QStringView text);

    QStringView digits;
    QStringView name;
};

/// Appends a row of fixed height, whose number is one more than its row unless another one is given.
QListWidgetItem *append(QListWidget *list, const QString &name);
QListWidgetItem *append(QListWidget *list, int number, const QString &name);

/// A row that says whether its entry may be picked.
struct Pick
{
    QString name;
    QString title; ///< in the tool tip; where the row shows a short name, the full one
    bool fits = true;
    /// Says why it does not fit, in tool tip and behind the accessible description. It is asked when somebody
    /// looks, as long as the row is there: most rows of a long list are never looked at.
    std::function<QString()> misfit = {};
};

/// Appends a row coloured as fitting, or in grey on a light grey or white stripe and not selectable.
QListWidgetItem *appendToPick(QListWidget *list, const Pick &pick);

/// Black on a cyan or white stripe by the item's row.
void colourFitting(QListWidgetItem *item, int row);

/// The first and the last row that is not hidden; -1 for none.
[[nodiscard]] int firstRowInSight(const QListWidget *list);
[[nodiscard]] int lastRowInSight(const QListWidget *list);
[[nodiscard]] bool isSelectable(const QListWidget *list, int row);

/// The row that is picked in a list in which one can be; -1 for none.
[[nodiscard]] int selectedRow(const QListWidget *list);

} // namespace numberedrows
