// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QListWidget>
#include <QPushButton>

#include "tests/support/modalanswers.h"
#include "tests/support/uidriver.h"
#include "widgets/menuinspection.h"

/// The line that says how much there is to look at in a menu, and the list that it opens.
namespace inspect {

/// The text of the line; empty where there is none.
[[nodiscard]] inline QString line(const QWidget &editor)
{
    const auto *button = editor.findChild<QPushButton *>(QStringLiteral("btnFindings"));
    return button && button->isVisible() ? button->text() : QString();
}

[[nodiscard]] inline QListWidget &list(const MenuInspection &dialog)
{
    return ui::get<QListWidget>(dialog, "listWidgetFindings");
}

/// Clicks the line; `act` has to close the list.
inline void open(QWidget &editor, const std::function<void(MenuInspection &)> &act)
{
    ModalAnswers answers;
    answers.expect<MenuInspection>(act);
    ui::click(editor, "btnFindings");
}

/// The sentences of the list.
[[nodiscard]] inline QStringList sentences(QWidget &editor)
{
    QStringList texts;
    open(editor, [&texts](MenuInspection &dialog) {
        texts = ui::textsOf(list(dialog));
        ui::click(dialog, "btnClose");
    });
    return texts;
}

/// Goes to what a row of the list tells of.
inline void goTo(QWidget &editor, int row)
{
    open(editor, [row](MenuInspection &dialog) {
        ui::clickRow(list(dialog), row);
        ui::click(dialog, "btnGoTo");
    });
    ui::activate(editor);
}

} // namespace inspect
