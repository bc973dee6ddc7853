// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include "holding/groupedit.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"

/// What the tests of the group editor share.
namespace groupedit {

using namespace Qt::StringLiterals;

using Act = std::function<void(GroupEdit &, ModalAnswers &)>;

/// Bacon, Chili and Ham hold alike, Gravy hotter; the group "Meats" is given.
inline samplefile::Menu menuWith(const QJsonObject &group, const QJsonObject &header = samplefile::header())
{
    samplefile::Menu menu;
    menu.header = header;
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Chili"_s),
                     samplefile::product(3, u"Gravy"_s, {{u"upperTemp"_s, 210}}),
                     samplefile::product(4, u"Ham"_s)};
    menu.groups = {group};
    menu.layout = {samplefile::daypart(u"Morning"_s, {})};
    return menu;
}

inline QJsonObject meats(const QList<int> &members, const QJsonObject &changes = {})
{
    return samplefile::group(9, u"Meats"_s, members, changes);
}

/// A group that no product was ever in.
inline QJsonObject emptyGroup()
{
    return meats({}, {{u"zoneSplits"_s, QString()},
                      {u"lowerTemp"_s, 0},
                      {u"upperTemp"_s, 0},
                      {u"fanSpeed"_s, 0},
                      {u"lidType"_s, QString()}});
}

/// Opens the dialog on the menu's group as a user does; `act` runs in it and has to close it.
inline void edit(OpenEditor &editor, const Act &act)
{
    ModalAnswers answers;
    answers.expect<GroupEdit>([&](GroupEdit &dialog) { act(dialog, answers); });
    editor.showTab(1);
    ui::clickRow(editor.groups(), 0);
    ui::click(*editor, "btnEditGroup");
}

inline QListWidget &allProducts(const GroupEdit &dialog)
{
    return ui::get<QListWidget>(dialog, "listWidgetProducts");
}

inline QListWidget &members(const GroupEdit &dialog)
{
    return ui::get<QListWidget>(dialog, "listWidgetGroupProducts");
}

/// The listed members, the checked ones starred: "  1 Bacon*".
inline QStringList shownMembers(const GroupEdit &dialog)
{
    QStringList texts = ui::textsOf(members(dialog));
    for (int row = 0; row < texts.size(); ++row) {
        if (members(dialog).item(row)->checkState() == Qt::Checked)
            texts[row] += u'*';
    }
    return texts;
}

inline void add(const GroupEdit &dialog, int row)
{
    ui::clickRow(allProducts(dialog), row);
    ui::click(dialog, "btnAddProduct");
}

inline void remove(const GroupEdit &dialog, int row)
{
    ui::clickRow(members(dialog), row);
    ui::click(dialog, "btnRemoveProduct");
}

inline void save(const GroupEdit &dialog)
{
    ui::click(dialog, "btnSave");
}

inline void cancel(const GroupEdit &dialog)
{
    ui::click(dialog, "btnCancel");
}

inline QJsonObject savedGroup(OpenEditor &editor)
{
    return editor.saved().value(u"productGroups"_s).toArray().at(0).toObject();
}

inline QList<int> savedMembers(OpenEditor &editor)
{
    QList<int> ids;
    const QJsonArray products = savedGroup(editor).value(u"products"_s).toArray();
    for (const QJsonValue id : products)
        ids.append(id.toInt());
    return ids;
}

inline int savedDefault(OpenEditor &editor)
{
    return savedGroup(editor).value(u"defaultProd"_s).toInt(-1);
}

} // namespace groupedit
