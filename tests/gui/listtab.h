// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "holding/groupedit.h"
#include "holding/productedit.h"
#include "tests/gui/findfield.h"
#include "tests/gui/openeditor.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/modalanswers.h"
#include "timerbar/timerbarproductedit.h"

namespace findfield {

/// A tab with a list: of products or groups of a holding menu, or of Timer Bar products.
class ListTab
{
public:
    enum Kind { Products, Groups, TimerBar };

    explicit ListTab(Kind kind)
        : m_kind(kind)
    {
        if (kind == TimerBar)
            m_timerBar = std::make_unique<OpenTimerBar>(timerBarMenu());
        else
            m_holding = std::make_unique<OpenEditor>(holdingMenu());
        if (kind == Groups)
            m_holding->showTab(1);
    }

    [[nodiscard]] QWidget &editor() const
    {
        return m_timerBar ? static_cast<QWidget &>(**m_timerBar) : **m_holding;
    }
    [[nodiscard]] QListWidget &list() const
    {
        return ui::get<QListWidget>(editor(), m_kind == Groups ? "listWidgetGroups" : "listWidgetProducts");
    }
    [[nodiscard]] QPushButton &button(const char *action) const
    {
        return ui::get<QPushButton>(
            editor(), QByteArray("btn").append(action).append(m_kind == Groups ? "Group" : "Product"));
    }
    [[nodiscard]] QLineEdit &field() const { return findfield::fieldIn(editor(), fieldName()); }
    /// The name in the details.
    [[nodiscard]] QString detail() const
    {
        const char *details = m_timerBar ? "details" : m_kind == Groups ? "detailsGroup" : "detailsProduct";
        return ui::get<QLabel>(ui::get<QWidget>(editor(), details), "txtName").text();
    }
    /// What is told of checked rows that are hidden; null before there were any.
    [[nodiscard]] QLabel *note() const
    {
        return editor().findChild<QLabel *>(m_kind == Groups ? u"lblFindGroupsNote"_s
                                                             : u"lblFindProductsNote"_s);
    }
    void type(const QString &text) const { findfield::type(editor(), text, fieldName()); }
    /// Edit, Duplicate, Delete: "EDX" with a dot for each that is disabled.
    [[nodiscard]] QString enabled() const
    {
        QString letters;
        for (const auto &[action, letter] :
             {std::pair{"Edit", u'E'}, std::pair{"Duplicate", u'D'}, std::pair{"Delete", u'X'}})
            letters += button(action).isEnabled() ? QChar(letter) : QChar(u'.');
        return letters;
    }
    void remove(const QString &question) const
    {
        ModalAnswers answers;
        answers.expectBox(ModalAnswers::deleteQuestion(question), QMessageBox::Yes);
        ui::click(button("Delete"));
    }
    void removeChecked() const
    {
        remove(m_kind == Groups ? u"Delete all selected groups?"_s : u"Delete all selected products?"_s);
    }
    /// The entry dialog that the button opens gets this name and is saved.
    void enterName(const char *action, const QString &name) const
    {
        ModalAnswers answers;
        const char *field = m_timerBar ? "txtProductName" : "txtName";
        const auto act = [name, field](QDialog &dialog) {
            ui::type(dialog, field, name);
            if (auto *shortName = dialog.findChild<QLineEdit *>(u"txtShortName"_s))
                ui::type(*shortName, u"NAME"_s);
            ui::click(dialog, "btnSave");
        };
        const QMetaObject &type = m_timerBar         ? TimerBarProductEdit::staticMetaObject
                                  : m_kind == Groups ? GroupEdit::staticMetaObject
                                                     : ProductEdit::staticMetaObject;
        answers.expectAny(type, act);
        ui::click(button(action));
    }

private:
    [[nodiscard]] const char *fieldName() const
    {
        return m_kind == Groups ? "txtFindGroups" : "txtFindProducts";
    }
    [[nodiscard]] static QStringList names() { return {u"Bacon"_s, u"Beef"_s, u"Ham"_s, u"Hash"_s}; }
    [[nodiscard]] static samplefile::Menu holdingMenu()
    {
        samplefile::Menu menu;
        for (int i = 0; i < 4; ++i) {
            menu.products.append(samplefile::product(i + 1, names()[i]));
            menu.groups.append(samplefile::group(i + 11, names()[i], {1}));
        }
        menu.layout = {samplefile::daypart(u"Morning"_s, {})};
        return menu;
    }
    [[nodiscard]] static cbr::Menu timerBarMenu()
    {
        cbr::Menu menu{.model = u"KTR22"_s, .unit = 0, .products = {}};
        for (const QString &name : names())
            menu.products.append(cbr::Product{.name = name.toLatin1(), .shortName = "NAME"});
        return menu;
    }

    Kind m_kind;
    std::unique_ptr<OpenEditor> m_holding;
    std::unique_ptr<OpenTimerBar> m_timerBar;
};

} // namespace findfield
