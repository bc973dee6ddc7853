// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QSpinBox>
#include <QTimeEdit>

#include "holding/productedit.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"

/// What the tests of the product editor share.
namespace productedit {

using namespace Qt::StringLiterals;

using Act = std::function<void(ProductEdit &, ModalAnswers &)>;

inline samplefile::Menu menuWith(const QJsonObject &header, const QJsonObject &firstProduct = {})
{
    samplefile::Menu menu;
    menu.header = header;
    menu.products = {samplefile::product(1, u"Bacon"_s, firstProduct), samplefile::product(2, u"Chili"_s),
                     samplefile::product(3, u"Gravy"_s)};
    menu.layout = {samplefile::daypart(u"Morning"_s, {})};
    return menu;
}

inline QJsonObject zpv(QJsonObject changes = {})
{
    changes.insert(u"cabinetType"_s, u"ZPV"_s);
    changes.insert(u"cabinetModel"_s, u"ZPV23"_s);
    return changes;
}

inline QJsonObject celsius()
{
    return {{u"temperatureUnit"_s, 1}};
}

/// Opens the dialog on a product as a user does; `act` runs in it and has to close it.
inline void edit(OpenEditor &editor, int row, const Act &act)
{
    ModalAnswers answers;
    answers.expect<ProductEdit>([&](ProductEdit &dialog) { act(dialog, answers); });
    ui::clickRow(editor.products(), row);
    ui::click(*editor, "btnEditProduct");
}

inline void edit(OpenEditor &editor, const Act &act)
{
    edit(editor, 0, act);
}

inline void save(const ProductEdit &dialog)
{
    ui::click(dialog, "btnSave");
}

inline void cancel(const ProductEdit &dialog)
{
    ui::click(dialog, "btnCancel");
}

/// Presses Save, which has to be refused with this message.
inline void saveRefused(ProductEdit &dialog, ModalAnswers &answers, const QString &message)
{
    answers.expectBox(ModalAnswers::entryFault(message), QMessageBox::Close);
    save(dialog);
    REQUIRE(answers.allAnswered());
    REQUIRE(dialog.isVisible());
}

inline QJsonObject savedProduct(OpenEditor &editor, int row = 0)
{
    return editor.saved().value(u"products"_s).toArray().at(row).toObject();
}

inline QSpinBox &spinBox(const ProductEdit &dialog, const char *name)
{
    return ui::get<QSpinBox>(dialog, name);
}

inline QTime timeIn(const ProductEdit &dialog, const char *timeEdit)
{
    return ui::get<QTimeEdit>(dialog, timeEdit).time();
}

} // namespace productedit
