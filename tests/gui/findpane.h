// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include "tests/gui/findfield.h"
#include "widgets/findrows.h"
#include "widgets/listkeys.h"
#include "widgets/numberedrows.h"

namespace findfield {

inline const QStringList foods{u"Bacon"_s, u"Beef"_s, u"Crêpe"_s, u"Ham"_s, u"Hash"_s};

/// A dialog with a list to pick from, or one where nothing is picked, and a default button that would save.
struct Pane
{
    explicit Pane(bool picks)
    {
        auto *layout = new QVBoxLayout(&dialog);
        for (QWidget *widget : QWidgetList{&before, &list, &pick, &save})
            layout->addWidget(widget);
        save.setDefault(true);
        pick.setEnabled(false);
        find = new FindRows(&list, u"txtFind"_s, picks ? &pick : nullptr);
        new ListKeys(&list, &pick);
        fill(foods);
        QObject::connect(&list, &QListWidget::itemSelectionChanged, &pick,
                         [this] { pick.setEnabled(numberedrows::selectedRow(&list) >= 0); });
        ui::show(dialog);
        field().setFocus();
    }
    // Beef does not fit.
    void fill(const QStringList &names)
    {
        list.clear();
        for (const QString &name : names)
            numberedrows::appendToPick(&list, {name, name + u" food"_s, !name.startsWith(u"Beef"_s), {}});
        find->refresh();
    }
    void type(const QString &text) { findfield::type(dialog, text); }
    void press(Qt::Key key) { findfield::press(dialog, key); }
    [[nodiscard]] QLineEdit &field() const { return fieldIn(dialog); }

    QDialog dialog;
    QPushButton before{&dialog};
    QListWidget list{&dialog};
    QPushButton pick{&dialog};
    QPushButton save{&dialog};
    FindRows *find = nullptr;
};

} // namespace findfield
