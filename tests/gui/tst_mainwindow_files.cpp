// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "app/selectproductline.h"
#include "holding/configuration.h"
#include "holding/menufile.h"
#include "tests/gui/changemenu.h"
#include "tests/support/program.h"
#include "tests/support/testfolder.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace changemenu;

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
    void saveActsOnTheActiveMenu_data();
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

void newWith(Program &program, const std::function<void(SelectProductLine &)> &choose)
{
    program.answers().expect<SelectProductLine>(choose);
    program.choose("actionNew");
}

} // namespace

void TestMainWindowFiles::chooserOffersTheLines()
{
    Program program;
    newWith(program, [&program](SelectProductLine &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Select Product Line"_s);
        QCOMPARE(dialog.parentWidget(), &program.window());
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
    Program program;
    newWith(program, [](SelectProductLine &dialog) { ui::click(dialog, "btnCancel"); });
    QCOMPARE(program.menuCount(), 0);
}

void TestMainWindowFiles::chooserEscapedOpensNothing()
{
    Program program;
    newWith(program, [](SelectProductLine &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(program.menuCount(), 0);
}

void TestMainWindowFiles::newMenuIsShownInASubWindow()
{
    Program program;
    program.answers().expect<SelectProductLine>([](SelectProductLine &dialog) {
        ui::click(dialog, "btnAccept");
        QCOMPARE(dialog.result(), 1);
    });
    program.answers().expect<Configuration>([](Configuration &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Configuration"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    program.choose("actionNew");
    QCOMPARE(program.menuCount(), 1);
    const QMdiSubWindow *subWindow = program.area().subWindowList().constFirst();
    QCOMPARE(program.area().activeSubWindow(), subWindow);
    QCOMPARE(subWindow->objectName(), u"QhxMenuFile"_s);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s);
    QVERIFY(editorIn(*subWindow).filePath().isEmpty());
}

void TestMainWindowFiles::configurationCancelledOpensNothing()
{
    Program program;
    program.answers().expect<SelectProductLine>(
        [](SelectProductLine &dialog) { ui::click(dialog, "btnAccept"); });
    program.answers().expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnCancel"); });
    program.choose("actionNew");
    QCOMPARE(program.menuCount(), 0);
    QVERIFY(!program.window().findChild<MenuFile *>());
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
    Program program;
    const QMdiSubWindow *subWindow = openSample(program, name);
    QVERIFY(subWindow);
    QCOMPARE(subWindow->objectName(), u"QhxMenuFile"_s);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s + name);
    QCOMPARE(editorIn(*subWindow).filePath(), program.path(name));
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
    Program program;
    QVERIFY(!openSample(program, name));
    QCOMPARE(program.menuCount(), 0);
}

void TestMainWindowFiles::openCancelledOpensNothing()
{
    Program program;
    program.expectOpenDialog({});
    QVERIFY(!program.openNow());
    QCOMPARE(program.menuCount(), 0);
}

void TestMainWindowFiles::openEscapedOpensNothing()
{
    Program program;
    program.answers().expect<QFileDialog>(
        [](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    program.openNow();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
}

void TestMainWindowFiles::brokenFileOpensNothing()
{
    Program program;
    program.folder().make(u"broken.json"_s, "{");
    program.expectOpenDialog(u"broken.json"_s);
    program.answers().expectBox(ModalAnswers::fileFault(u"File format is corrupted!"_s), QMessageBox::Ok);
    program.openNow();
    QCOMPARE(program.menuCount(), 0);
    QVERIFY(!program.window().findChild<MenuFile *>());
}

void TestMainWindowFiles::oneFileTwiceGivesTwoEditors()
{
    Program program;
    const QMdiSubWindow *first = openSample(program, u"menu.json"_s);
    const QMdiSubWindow *second = program.open(u"menu.json"_s);
    QVERIFY(first && second && first != second);
    QCOMPARE(editorIn(*first).filePath(), editorIn(*second).filePath());
}

void TestMainWindowFiles::saveWritesToTheCurrentPath()
{
    Program program;
    QMdiSubWindow *subWindow = openSample(program, u"menu.json"_s);
    change(program, *subWindow);
    program.save();
    QVERIFY(isChanged(program, u"menu.json"_s));
}

namespace {

const QStringList names{u"a.json"_s, u"b.json"_s, u"c.json"_s};

} // namespace

void TestMainWindowFiles::saveActsOnTheActiveMenu_data()
{
    QTest::addColumn<QString>("active");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TestMainWindowFiles::saveActsOnTheActiveMenu()
{
    QFETCH(const QString, active);
    Program program;
    for (const QString &name : names)
        openChanged(program, name);
    const QByteArray before = program.content(active);
    program.area().setActiveSubWindow(program.area().subWindowList().at(names.indexOf(active)));
    program.save();
    for (const QString &name : names) {
        if (name != active)
            QCOMPARE(program.content(name), before);
    }
    QVERIFY(isChanged(program, active));
    QCOMPARE(program.folder().names(), names);
}

void TestMainWindowFiles::saveAsksForAMissingName()
{
    Program program;
    const QMdiSubWindow *subWindow = program.newMenu(Line::Holding);
    const QString path = program.path(u"new.json"_s);
    program.expectSaveDialog(Line::Holding, Asking::Save, path);
    program.save();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(editorIn(*subWindow).filePath(), path);
    QCOMPARE(subWindow->windowTitle(), u"Menu File - new.json"_s);
    QVERIFY(contentOf(path).contains("\"ZPV43\""));
    QVERIFY(QFile::remove(path));
    program.save(); // asks no second time
    QVERIFY(QFile::exists(path));
}

void TestMainWindowFiles::saveCancelledWritesNothing()
{
    Program program;
    const QMdiSubWindow *subWindow = program.newMenu(Line::Holding);
    program.expectSaveDialog(Line::Holding, Asking::Save, {});
    program.save();
    QVERIFY(editorIn(*subWindow).filePath().isEmpty());
    QCOMPARE(subWindow->windowTitle(), u"Menu File - "_s);
}

void TestMainWindowFiles::saveAsAsksFromTheCurrentName()
{
    Program program;
    const QMdiSubWindow *subWindow = openSample(program, u"menu.json"_s);
    const QByteArray original = program.content(u"menu.json"_s);
    program.expectSaveDialog(Line::Holding, Asking::SaveAs, program.path(u"copy.json"_s), u"menu.json"_s);
    program.saveAs();
    QCOMPARE(editorIn(*subWindow).filePath(), program.path(u"copy.json"_s));
    QCOMPARE(subWindow->windowTitle(), u"Menu File - copy.json"_s);
    QCOMPARE(program.content(u"copy.json"_s), original);
}

void TestMainWindowFiles::saveAsCancelledWritesNothing()
{
    Program program;
    const QMdiSubWindow *subWindow = program.newMenu(Line::Holding);
    program.expectSaveDialog(Line::Holding, Asking::SaveAs, {});
    program.saveAs();
    QVERIFY(editorIn(*subWindow).filePath().isEmpty());
}

void TestMainWindowFiles::nameIsUsedAsTyped()
{
    Program program;
    const QMdiSubWindow *subWindow = program.newMenu(Line::Holding);
    const QString path = program.path(u"menu without ending"_s);
    program.expectSaveDialog(Line::Holding, Asking::Save, path);
    program.save();
    QCOMPARE(editorIn(*subWindow).filePath(), path);
    QVERIFY(QFile::exists(path));
}

void TestMainWindowFiles::failedSaveIsShown()
{
    Program program;
    openSample(program, u"menu.json"_s);
    const QString path = program.path(u"menu.json"_s);
    program.folder().remove();
    program.answers().expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    program.save();
    QCOMPARE(program.menuCount(), 1);
}

QTEST_MAIN(TestMainWindowFiles)
#include "tst_mainwindow_files.moc"
