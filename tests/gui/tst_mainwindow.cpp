// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include "app/mainwindow.h"
#include "app/selectproductline.h"
#include "holding/configuration.h"
#include "holding/menufile.h"
#include "tests/support/modalanswers.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newMenuIsShownInASubWindow();
};

void TestMainWindow::newMenuIsShownInASubWindow()
{
    MainWindow window;
    ui::show(window);
    ModalAnswers answers;
    answers.expect<SelectProductLine>([](SelectProductLine &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Select Product Line"_s);
        ui::click(dialog, "btnAccept");
    });
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    ui::clickMenu(window, "menuFile", "actionNew");
    auto &area = ui::get<QMdiArea>(window, "mdiArea");
    QCOMPARE(area.subWindowList().size(), 1);
    QCOMPARE(area.subWindowList().constFirst()->objectName(), u"QhxMenuFile"_s);
    QCOMPARE(area.subWindowList().constFirst()->windowTitle(), u"Menu File - "_s);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
