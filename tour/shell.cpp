// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/shell.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "app/aboutapp.h"
#include "tests/support/uidriver.h"

using namespace Qt::StringLiterals;

void ShellChapter::startMaximized()
{
    QVERIFY(QTest::qWaitForWindowActive(&window()));
    QVERIFY(window().isMaximized());
    shot(u"main-window"_s);
}

void ShellChapter::lookAtTheFileMenu()
{
    auto &menu = ui::get<QMenu>(window(), "menuFile");
    QMenuBar *bar = window().menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu.menuAction()).center());
    QVERIFY(menu.isVisible());
    QVERIFY(!ui::get<QAction>(window(), "action_Save").isEnabled());
    shot(u"file-menu"_s);
    QTest::keyClick(&menu, Qt::Key_Escape);
    QVERIFY(!menu.isVisible());
}

void ShellChapter::lookAtTheAboutBox()
{
    Answers answers(*this);
    answers.expect<AboutApp>([](AboutApp &dialog) { ui::click(dialog, "btnAccept"); });
    ui::clickMenu(window(), "menuHelp", "actionAbout");
}
