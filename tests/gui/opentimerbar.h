// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include "tests/support/cbrbuilder.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/samplefile.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "timerbar/timerbarmenufile.h"

/// A Timer Bar editor that shows a menu of a test's.
class OpenTimerBar
{
public:
    explicit OpenTimerBar(const cbr::Menu &menu)
        : m_editor(m_folder.make(QStringLiteral("menu.cbr"), menu.bytes()))
    {
        ui::show(m_editor);
    }

    [[nodiscard]] TimerBarMenuFile &operator*() { return m_editor; }
    [[nodiscard]] TimerBarMenuFile *operator->() { return &m_editor; }

    [[nodiscard]] QListWidget &products() { return ui::get<QListWidget>(m_editor, "listWidgetProducts"); }
    [[nodiscard]] QPushButton &button(const char *name) { return ui::get<QPushButton>(m_editor, name); }
    /// A value of the product's details: "Name", "TempUpper".
    [[nodiscard]] QString detail(const QByteArray &row)
    {
        return ui::get<QLabel>(m_editor, QByteArray("txt" + row).constData()).text();
    }
    /// Turns to a tab: 0 the products, 1 the day parts.
    void showTab(int tab) { ui::get<QTabWidget>(m_editor, "tabWidget").setCurrentIndex(tab); }
    void showDaypart(const QString &name)
    {
        showTab(1);
        ui::choose(m_editor, "comboDaypartSelect", name);
    }

    /// What a Save writes now, as hexadecimal digits; empty when it fails.
    [[nodiscard]] QByteArray saved()
    {
        const QString path = m_folder.path(QStringLiteral("saved.cbr"));
        return m_editor.writeMenuFile(path) ? contentOf(path).toHex(' ') : QByteArray();
    }

private:
    TestFolder m_folder;
    TimerBarMenuFile m_editor;
};

/// As saved() gives it.
[[nodiscard]] inline QByteArray hex(const cbr::Menu &menu)
{
    return menu.bytes().toHex(' ');
}

/// Three products, of which the first two may stand side by side.
[[nodiscard]] inline cbr::Menu baconHamChili(const QString &model = QStringLiteral("KTR22"), int unit = 0)
{
    return {.model = model,
            .unit = unit,
            .products = {{.name = "Bacon", .shortName = "BACN", .upper = 116, .lower = 116},
                         {.name = "Ham Steak", .shortName = "HAM", .upper = 116, .lower = 116},
                         {.name = "Chili", .shortName = "CHIL", .upper = 91, .lower = 81}}};
}

/// Turns to the day parts and holds the first bin of a two-row cabinet's lower row, which has to be filled.
inline void enterRemovalMode(TimerBarMenuFile &editor)
{
    ui::get<QTabWidget>(editor, "tabWidget").setCurrentIndex(1);
    auto &bin = ui::get<QPushButton>(editor, "btnDaypartSelect1_0");
    QTest::mousePress(&bin, Qt::LeftButton);
    REQUIRE_SOON(bin.isChecked());
    QTest::mouseRelease(&bin, Qt::LeftButton);
}
