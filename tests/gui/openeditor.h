// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

#include "holding/menufile.h"
#include "tests/support/samplefile.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"

/// An editor that shows a menu of a test's.
class OpenEditor
{
public:
    explicit OpenEditor(const samplefile::Menu &menu)
        : m_editor(m_folder.make(QStringLiteral("menu.json"), menu.bytes()))
    {
        ui::show(m_editor);
    }

    [[nodiscard]] MenuFile &operator*() { return m_editor; }
    [[nodiscard]] MenuFile *operator->() { return &m_editor; }

    [[nodiscard]] QListWidget &products() { return ui::get<QListWidget>(m_editor, "listWidgetProducts"); }
    [[nodiscard]] QListWidget &groups() { return ui::get<QListWidget>(m_editor, "listWidgetGroups"); }
    /// A label of the product's or of the group's details.
    [[nodiscard]] QLabel &productDetail(const char *label) { return detail("detailsProduct", label); }
    [[nodiscard]] QLabel &groupDetail(const char *label) { return detail("detailsGroup", label); }
    /// Turns to a tab: 0 the products, 1 the groups.
    void showTab(int tab) { ui::get<QTabWidget>(m_editor, "tabWidget").setCurrentIndex(tab); }

    /// What a Save writes now: the "menu" object.
    [[nodiscard]] QJsonObject saved()
    {
        const QString path = m_folder.path(QStringLiteral("saved.json"));
        return m_editor.writeToFile(path) ? samplefile::menuOf(path) : QJsonObject();
    }

private:
    [[nodiscard]] QLabel &detail(const char *pane, const char *label)
    {
        return ui::get<QLabel>(ui::get<QWidget>(m_editor, pane), label);
    }

    TestFolder m_folder;
    MenuFile m_editor;
};
