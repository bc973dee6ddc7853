// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/listchecks.h"

#include <QListWidget>
#include <QPushButton>

#include "model/productinfo.h"
#include "tests/support/uidriver.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

bool isEnabled(const EntryList &list, const char *act)
{
    return ui::get<QPushButton>(list.editor, QByteArray("btn").append(act).append(list.kind).constData())
        .isEnabled();
}

void checkRows(const EntryList &list, const QListWidget &rows, const Journal &journal)
{
    journal.check(rows.count() == list.entries.size(),
                  u"A list has %1 rows for %2 entries"_s.arg(rows.count()).arg(list.entries.size()));
    for (int row = 0; row < rows.count(); ++row) {
        const QString name = list.entries[row]->get_productName().value(0);
        const QString expected = u"%1 %2"_s.arg(row + 1, 3).arg(beginning(name));
        journal.check(rows.item(row)->text().left(expected.size()) == expected,
                      u"A row reads \"%1\" for \"%2\""_s.arg(rows.item(row)->text(), expected));
    }
}

// A hidden row is never the one that the buttons act on.
void checkInSight(const QListWidget &rows, bool multiSelecting, const Journal &journal)
{
    for (int row = 0; row < rows.count(); ++row) {
        const bool chosen = row == rows.currentRow() || (!multiSelecting && rows.item(row)->isSelected());
        journal.check(!chosen || !rows.isRowHidden(row),
                      u"Row %1 is chosen although it is hidden"_s.arg(row));
    }
}

// Returns how many are checked and in sight.
int checkMarks(const QListWidget &rows, bool multiSelecting, const Journal &journal)
{
    int checked = 0;
    for (int row = 0; row < rows.count(); ++row) {
        const QListWidgetItem &item = *rows.item(row);
        journal.check(item.data(Qt::CheckStateRole).isValid() == multiSelecting,
                      u"Row %1 has the wrong kind of mark"_s.arg(row));
        const bool isChecked = multiSelecting && item.checkState() == Qt::Checked;
        journal.check(!multiSelecting || isChecked == item.isSelected(),
                      u"Row %1 is checked and not selected, or the other way round"_s.arg(row));
        checked += isChecked && !rows.isRowHidden(row) ? 1 : 0;
    }
    return checked;
}

} // namespace

QList<int> idsOf(const QList<ProductInfo *> &entries)
{
    QList<int> ids;
    for (const ProductInfo *entry : entries)
        ids.append(entry->get_productId());
    return ids;
}

QString stored(const QString &text)
{
    return QString::fromUtf8(text.toUtf8());
}

QString beginning(const QString &text)
{
    constexpr qsizetype surelyShown = 200;
    return text.left(surelyShown);
}

void checkList(const EntryList &list, const Journal &journal)
{
    const auto &rows =
        ui::get<QListWidget>(list.editor, QByteArray("listWidget").append(list.kind).append("s").constData());
    checkRows(list, rows, journal);
    checkInSight(rows, rows.selectionMode() == QAbstractItemView::MultiSelection, journal);
    const bool multiSelecting = rows.selectionMode() == QAbstractItemView::MultiSelection;
    const auto &mode =
        ui::get<QPushButton>(list.editor, QByteArray("btnSelectMulti").append(list.kind).constData());
    journal.check(mode.text() == (multiSelecting ? u"Cancel Selection"_s : u"Multiple Selection"_s),
                  u"The button of the multiple selection reads "_s + mode.text());
    const int checked = checkMarks(rows, multiSelecting, journal);

    const bool chosen = multiSelecting || !rows.selectedItems().isEmpty();
    const int current = chosen ? rows.currentRow() : -1;
    const bool single = current >= 0 && !multiSelecting;
    journal.check(isEnabled(list, "Edit") == single, u"Edit has the wrong state"_s);
    journal.check(isEnabled(list, "Duplicate") == single, u"Duplicate has the wrong state"_s);
    journal.check(isEnabled(list, "Delete") == (multiSelecting ? checked > 0 : single),
                  u"Delete has the wrong state"_s);
    const QString name = current < 0 ? QString() : list.entries[current]->get_productName().value(0);
    journal.check(beginning(list.shownName) == beginning(name),
                  u"The details show \"%1\" for \"%2\""_s.arg(list.shownName, name));
}

} // namespace walk
