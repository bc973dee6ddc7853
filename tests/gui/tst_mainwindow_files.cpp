// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>

#include "app/selectproductline.h"
#include "holding/configuration.h"
#include "holding/menufile.h"
#include "tests/support/modalanswers.h"
#include "tests/support/openmenus.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "tests/support/windowmenu.h"

using namespace Qt::StringLiterals;

/// New, Open, Save and Save As.
class TestMainWindowFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void chooserOffersTheLines();
    void chooserCancelledOpensNothing();
    void chooserEscapedOpensNothing();
    void newMenuIsShownInASubWindow();
    void configurationCancelledOpensNothing();
    void fileIsOpenedByItsEnding_data();
    void fileIsOpenedByItsEnding();
    void otherEndingIsIgnored_data();
    void otherEndingIsIgnored();
    void openCancelledOpensNothing();
    void openEscapedOpensNothing();
    void brokenFileOpensNothing();
    void oneFileTwiceGivesTwoEditors();
    void saveWritesToTheCurrentPath();
    void saveActsOnTheActiveMenu();
    void saveAsksForAMissingName();
    void saveCancelledWritesNothing();
    void saveAsAsksFromTheCurrentName();
    void saveAsCancelledWritesNothing();
    void nameIsUsedAsTyped();
    void failedSaveIsShown();
};

namespace {

MenuFile &editorIn(const QMdiSubWindow &subWindow)
{
    auto *editor = qobject_cast<MenuFile *>(subWindow.widget());
    if (!editor)
        qFatal("The sub-window holds no menu");
    return *editor;
}

void newWith(OpenMenus &open, ModalAnswers &answers, const std::function<void(SelectProductLine &)> &choose)
{
    answers.expect<SelectProductLine>(choose);
    ui::clickMenu(open.window(), "menuFile", "actionNew");
}

} // namespace

void TestMainWindowFiles::chooserOffersTheLines()
{
    OpenMenus open;
    ModalAnswers answers;
    newWith(open, answers, [&open](SelectProductLine &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Select Product Line"_s);
        QCOMPARE(dialog.parentWidget(), &open.window());
        QCOMPARE(dialog.size(), QSize(400, 120));
        QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
        QCOMPARE(ui::get<QLabel>(dialog, "lblSelectProductLine").text(), u"Select Product Line"_s);
        const auto &combo = ui::get<QComboBox>(dialog, "comboProductLineSelect");
        QCOMPARE(combo.currentText(), u"QHX/ZPV"_s);
        QCOMPARE(combo.currentIndex(), 0);
        QCOMPARE(ui::get<QPushButton>(dialog, "btnCancel").text(), u"Cancel"_s);
        QCOMPARE(ui::get<QPushButton>(dialog, "btnAccept").text(), u"Save"_s);
        ui::click(dialog, "btnCancel");
        QCOMPARE(dialog.result(), 0);
    });
}

void TestMainWindowFiles::chooserCancelledOpensNothing()
{
    OpenMenus open;
    ModalAnswers answers;
    newWith(open, answers, [](SelectProductLine &dialog) { ui::click(dialog, "btnCancel"); });
    QVERIFY(open.area().subWindowList().isEmpty());
}

void TestMainWindowFiles::chooserEscapedOpensNothing()
{
    OpenMenus open;
    ModalAnswers answers;
    newWith(open, answers, [](SelectProductLine &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QVERIFY(open.area().subWindowList().isEmpty());
}

void TestMainWindowFiles::newMenuIsShownInASubWindow()
{
    OpenMenus open;
    ModalAnswers answers;
    answers.expect<SelectProductLine>([](SelectProductLine &dialog) {
        ui::click(dialog, "btnAccept");
        QCOMPARE(dialog.result(), 1);
    });
    answers.expect<Configuration>([](Configuration &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Configuration"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    ui::clickMenu(open.window(), "menuFile", "actionNew");
    QCOMPARE(open.area().subWindowList().size(), 1);
    const QMdiSubWindow *subWindow = open.area().subWindowList().constFirst();
    QCOMPARE(open.area().activeSubWindow(), subWindow);
    QCOMPARE(subWindow->objectName(), u"QhxMenuFile"_s);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s);
    QVERIFY(editorIn(*subWindow).filePath().isEmpty());
}

void TestMainWindowFiles::configurationCancelledOpensNothing()
{
    OpenMenus open;
    ModalAnswers answers;
    answers.expect<SelectProductLine>([](SelectProductLine &dialog) { ui::click(dialog, "btnAccept"); });
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnCancel"); });
    ui::clickMenu(open.window(), "menuFile", "actionNew");
    QVERIFY(open.area().subWindowList().isEmpty());
    QVERIFY(!open.window().findChild<MenuFile *>());
}

void TestMainWindowFiles::fileIsOpenedByItsEnding_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("lower case") << u"menu.json"_s;
    QTest::newRow("upper case") << u"MENU.JSON"_s;
    QTest::newRow("mixed case") << u"Menu.jSon"_s;
    QTest::newRow("only an ending") << u".json"_s;
    QTest::newRow("two endings") << u"menu.txt.json"_s;
}

void TestMainWindowFiles::fileIsOpenedByItsEnding()
{
    QFETCH(const QString, name);
    OpenMenus open;
    const QMdiSubWindow *subWindow = open.openSample(name);
    QVERIFY(subWindow);
    QCOMPARE(subWindow->objectName(), u"QhxMenuFile"_s);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s + name);
    QCOMPARE(editorIn(*subWindow).filePath(), open.path(name));
}

void TestMainWindowFiles::otherEndingIsIgnored_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"menu.xml", "menu", "json", "menu.json.bak", "menu.jsonx", "qhx", "menu.qhx2",
                             "txt", "svrxconfig_1.txt~", "cbr", "menu.cbr.old"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestMainWindowFiles::otherEndingIsIgnored()
{
    QFETCH(const QString, name);
    OpenMenus open;
    QVERIFY(!open.openSample(name));
    QVERIFY(open.area().subWindowList().isEmpty());
}

void TestMainWindowFiles::openCancelledOpensNothing()
{
    OpenMenus open;
    QVERIFY(!open.open({}));
    QVERIFY(open.area().subWindowList().isEmpty());
}

void TestMainWindowFiles::openEscapedOpensNothing()
{
    OpenMenus open;
    ModalAnswers answers;
    answers.expect<QFileDialog>([](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    ui::clickMenu(open.window(), "menuFile", "actionOpen");
    QVERIFY(answers.allAnswered());
    QVERIFY(open.area().subWindowList().isEmpty());
}

void TestMainWindowFiles::brokenFileOpensNothing()
{
    OpenMenus open;
    QFile file(open.path(u"broken.json"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{") == 1);
    file.close();
    ModalAnswers answers;
    answers.expectOpenDialog(file.fileName());
    answers.expectBox(ModalAnswers::fileFault(u"File format is corrupted!"_s), QMessageBox::Ok);
    ui::clickMenu(open.window(), "menuFile", "actionOpen");
    QVERIFY(open.area().subWindowList().isEmpty());
    QVERIFY(!open.window().findChild<MenuFile *>());
}

void TestMainWindowFiles::oneFileTwiceGivesTwoEditors()
{
    OpenMenus open;
    const QMdiSubWindow *first = open.openSample(u"menu.json"_s);
    const QMdiSubWindow *second = open.open(open.path(u"menu.json"_s));
    QVERIFY(first && second && first != second);
    QCOMPARE(editorIn(*first).filePath(), editorIn(*second).filePath());
}

void TestMainWindowFiles::saveWritesToTheCurrentPath()
{
    OpenMenus open;
    QMdiSubWindow *subWindow = open.openSample(u"menu.json"_s);
    open.change(*subWindow);
    const ModalAnswers noDialogs;
    ui::clickMenu(open.window(), "menuFile", "action_Save");
    QVERIFY(windowmenu::contentOf(open.path(u"menu.json"_s)).contains("\"Changed\""));
}

void TestMainWindowFiles::saveActsOnTheActiveMenu()
{
    OpenMenus open;
    QMdiSubWindow *first = open.openSample(u"first.json"_s);
    QMdiSubWindow *second = open.openSample(u"second.json"_s);
    open.change(*second);
    open.change(*first);
    ui::clickMenu(open.window(), "menuFile", "action_Save");
    QVERIFY(windowmenu::contentOf(open.path(u"first.json"_s)).contains("\"Changed\""));
    QVERIFY(!windowmenu::contentOf(open.path(u"second.json"_s)).contains("\"Changed\""));
}

void TestMainWindowFiles::saveAsksForAMissingName()
{
    OpenMenus open;
    const QMdiSubWindow *subWindow = open.openNew();
    const QString path = open.path(u"new.json"_s);
    ModalAnswers answers;
    answers.expectFileDialog(u"Save JSON Menu"_s, OpenMenus::saveFilter, path, u""_s);
    ui::clickMenu(open.window(), "menuFile", "action_Save");
    QVERIFY(answers.allAnswered());
    QCOMPARE(editorIn(*subWindow).filePath(), path);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - new.json"_s);
    QVERIFY(windowmenu::contentOf(path).contains("\"ZPV43\""));
    QVERIFY(QFile::remove(path));
    ui::clickMenu(open.window(), "menuFile", "action_Save"); // asks no second time
    QVERIFY(QFile::exists(path));
}

void TestMainWindowFiles::saveCancelledWritesNothing()
{
    OpenMenus open;
    const QMdiSubWindow *subWindow = open.openNew();
    ModalAnswers answers;
    answers.expectFileDialog(u"Save JSON Menu"_s, OpenMenus::saveFilter, {});
    ui::clickMenu(open.window(), "menuFile", "action_Save");
    QVERIFY(editorIn(*subWindow).filePath().isEmpty());
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s);
}

void TestMainWindowFiles::saveAsAsksFromTheCurrentName()
{
    OpenMenus open;
    const QMdiSubWindow *subWindow = open.openSample(u"menu.json"_s);
    const QByteArray original = windowmenu::contentOf(open.path(u"menu.json"_s));
    ModalAnswers answers;
    answers.expectFileDialog(u"Save As JSON Menu"_s, OpenMenus::saveFilter, open.path(u"copy.json"_s),
                             u"menu.json"_s);
    ui::clickMenu(open.window(), "menuFile", "actionSaveAs");
    QCOMPARE(editorIn(*subWindow).filePath(), open.path(u"copy.json"_s));
    QCOMPARE(subWindow->windowTitle(), u"Menu File - copy.json"_s);
    QCOMPARE(windowmenu::contentOf(open.path(u"copy.json"_s)), original);
}

void TestMainWindowFiles::saveAsCancelledWritesNothing()
{
    OpenMenus open;
    const QMdiSubWindow *subWindow = open.openNew();
    ModalAnswers answers;
    answers.expectFileDialog(u"Save As JSON Menu"_s, OpenMenus::saveFilter, {}, u""_s);
    ui::clickMenu(open.window(), "menuFile", "actionSaveAs");
    QVERIFY(editorIn(*subWindow).filePath().isEmpty());
}

void TestMainWindowFiles::nameIsUsedAsTyped()
{
    OpenMenus open;
    const QMdiSubWindow *subWindow = open.openNew();
    const QString path = open.path(u"menu without ending"_s);
    ModalAnswers answers;
    answers.expectFileDialog(u"Save JSON Menu"_s, OpenMenus::saveFilter, path);
    ui::clickMenu(open.window(), "menuFile", "action_Save");
    QCOMPARE(editorIn(*subWindow).filePath(), path);
    QVERIFY(QFile::exists(path));
}

void TestMainWindowFiles::failedSaveIsShown()
{
    OpenMenus open;
    open.openSample(u"menu.json"_s);
    const QString path = open.path(u"menu.json"_s);
    open.removeFolder();
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    ui::clickMenu(open.window(), "menuFile", "action_Save");
    QCOMPARE(open.area().subWindowList().size(), 1);
}

QTEST_MAIN(TestMainWindowFiles)
#include "tst_mainwindow_files.moc"
