// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include "tests/gui/opentimerbar.h"
#include "tests/support/require.h"
#include "timerbar/timerbarproductedit.h"

/// What the tests of the editor's list of products share.
namespace timerbarlist {

using namespace Qt::StringLiterals;

/// Which of Add, Edit, Duplicate, Delete are enabled: "AEDX" with a dot for each that is not.
inline QString enabledButtons(OpenTimerBar &editor)
{
    QString enabled;
    for (const auto &[name, letter] :
         {std::pair{"btnAddProduct", u'A'}, std::pair{"btnEditProduct", u'E'},
          std::pair{"btnDuplicateProduct", u'D'}, std::pair{"btnDeleteProduct", u'X'}})
        enabled += editor.button(name).isEnabled() ? QChar(letter) : QChar(u'.');
    return enabled;
}

inline QStringList details(OpenTimerBar &editor)
{
    QStringList texts;
    for (const char *row : {"Name", "ShortName", "TempUpper", "TempLower", "HoldTime", "WarningTime"})
        texts.append(editor.detail(row));
    return texts;
}

/// The ids that the rows carry, which have to be the menu's.
inline QList<int> ids(OpenTimerBar &editor)
{
    QList<int> found;
    for (int row = 0; row < editor.products().count(); ++row) {
        found.append(editor.products().item(row)->data(Qt::UserRole).toInt());
        if (editor->products().at(row)->get_productId() != found.last())
            require::fail(u"The list and the menu differ"_s, {__FILE__, __LINE__});
    }
    return found;
}

/// What saveAsSoup() makes of a new product.
inline const cbr::Product soup{.name = "Soup", .shortName = "SOUP", .upper = 101, .lower = 101};

inline void saveAsSoup(TimerBarProductEdit &dialog)
{
    ui::type(dialog, "txtProductName", u"Soup"_s);
    ui::type(dialog, "txtShortName", u"SOUP"_s);
    ui::click(dialog, "btnSave");
}

inline void cancel(TimerBarProductEdit &dialog)
{
    ui::type(dialog, "txtProductName", u"Soup"_s);
    ui::click(dialog, "btnCancel");
}

/// Presses a button that opens the product dialog; `act` runs in it and has to close it.
inline void open(OpenTimerBar &editor, const char *button,
                 const std::function<void(TimerBarProductEdit &)> &act)
{
    ModalAnswers answers;
    answers.expect<TimerBarProductEdit>([&act](TimerBarProductEdit &dialog) { act(dialog); });
    ui::click(*editor, button);
}

} // namespace timerbarlist
