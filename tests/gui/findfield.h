// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>

#include "tests/support/uidriver.h"

/// What the tests of the field "Find" share.
namespace findfield {

using namespace Qt::StringLiterals;

/// The names of the rows in sight, separated by blanks; selected ones are starred.
inline QString shownNames(const QListWidget &list)
{
    QStringList names;
    for (int row = 0; row < list.count(); ++row) {
        const QListWidgetItem &item = *list.item(row);
        if (!list.isRowHidden(row))
            names.append(item.text().sliced(4) + (item.isSelected() ? u"*"_s : QString()));
    }
    return names.join(u' ');
}

/// Whether there is a current row, and the list is scrolled to where all of it is seen.
inline bool isCurrentInSight(const QListWidget &list)
{
    const QListWidgetItem *current = list.currentItem();
    return current && list.viewport()->rect().contains(list.visualItemRect(current));
}

/// Types in place of what the field holds.
inline void type(const QWidget &window, const QString &text, const char *field = "txtFind")
{
    ui::type(window, field, text);
}

inline QLineEdit &fieldIn(const QWidget &window, const char *name = "txtFind")
{
    return ui::get<QLineEdit>(window, name);
}

inline QCheckBox &onlyFits(const QWidget &window)
{
    return ui::get<QCheckBox>(window, "checkBoxOnlyFits");
}

/// Presses a key where the focus is.
inline void press(const QWidget &window, Qt::Key key)
{
    QTest::keyClick(window.focusWidget(), key);
}

} // namespace findfield
