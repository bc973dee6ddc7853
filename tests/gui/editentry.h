// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include "holding/groupedit.h"
#include "holding/productedit.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"

/// Changes entries of a holding-cabinet menu as a user does. A warning that is not empty has to come up after
/// the change is saved.
namespace editentry {

using namespace Qt::StringLiterals;

template <typename Dialog>
using Change = std::function<void(Dialog &)>;

template <typename Dialog>
void expectChange(ModalAnswers &answers, const Change<Dialog> &change, const QString &warning)
{
    answers.expect<Dialog>([change](Dialog &dialog) {
        change(dialog);
        ui::click(dialog, "btnSave");
    });
    if (!warning.isEmpty())
        answers.expectBox(ModalAnswers::removalWarning(warning), QMessageBox::Ok);
}

inline void editProduct(OpenEditor &editor, ModalAnswers &answers, int row, const Change<ProductEdit> &change,
                        const QString &warning = {})
{
    expectChange(answers, change, warning);
    editor.showTab(0);
    ui::clickRow(editor.products(), row);
    ui::click(*editor, "btnEditProduct");
    REQUIRE(answers.allAnswered());
}

inline void editProduct(OpenEditor &editor, int row, const Change<ProductEdit> &change,
                        const QString &warning = {})
{
    ModalAnswers answers;
    editProduct(editor, answers, row, change, warning);
}

inline void editGroup(OpenEditor &editor, int row, const Change<GroupEdit> &change,
                      const QString &warning = {})
{
    ModalAnswers answers;
    expectChange(answers, change, warning);
    editor.showTab(1);
    ui::clickRow(editor.groups(), row);
    ui::click(*editor, "btnEditGroup");
    REQUIRE(answers.allAnswered());
}

inline const QString fromGroupsAndBins =
    u"Product has been removed from group(s) and daypart(s) assignemnts"_s;
inline const QString groupFromBins = u"Group has been removed from daypart(s) assignemnts"_s;

} // namespace editentry
