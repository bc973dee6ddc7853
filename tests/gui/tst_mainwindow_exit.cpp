// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QTest>

#include "tests/gui/changemenu.h"
#include "tests/support/program.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace changemenu;

/// Closing the main window with menus open. Each test expects all the boxes that come: an editor's own
/// question would be one too many.
class TestMainWindowExit : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void nothingIsAskedWithoutMenus();
    void noClosesWithoutSaving_data();
    void noClosesWithoutSaving();
    void cancelKeepsTheProgramOpen();
    void escapeKeepsTheProgramOpen();
    void yesSavesEveryMenu();
    void yesAsksForMissingNames();
    void minimisedMenuIsShownWhenAskedFor();
    void cancelledNameKeepsWhatWasSaved();
    void failedSaveKeepsTheProgramOpen();
    void failedWriteToANewNameDoesNot();
    void foreignSubWindowIsSkipped();
    void editorUnderAnotherNameIsSkipped_data();
    void editorUnderAnotherNameIsSkipped();
    void escapedNameKeepsTheProgramOpen();
    void exitActionEndsTheProgram();
    void exitActionCanBeRefused();
};

namespace {

void expectName(Program &program, const QString &path)
{
    program.expectSaveDialog(Line::Holding, Asking::Save, path);
}

} // namespace

void TestMainWindowExit::nothingIsAskedWithoutMenus()
{
    Program program;
    QVERIFY(program.window().close());
    QVERIFY(program.window().isHidden());
}

void TestMainWindowExit::noClosesWithoutSaving_data()
{
    QTest::addColumn<int>("menus");
    QTest::newRow("one menu") << 1;
    QTest::newRow("three menus") << 3;
}

void TestMainWindowExit::noClosesWithoutSaving()
{
    QFETCH(const int, menus);
    Program program;
    for (int i = 0; i < menus; ++i)
        openChanged(program, QString::number(i) + u".json"_s);
    program.expectSaveQuestion(QMessageBox::No);
    QVERIFY(program.window().close());
    for (int i = 0; i < menus; ++i)
        QVERIFY(!isChanged(program, QString::number(i) + u".json"_s));
}

void TestMainWindowExit::cancelKeepsTheProgramOpen()
{
    Program program;
    openChanged(program, u"menu.json"_s);
    program.newMenu(Line::Holding);
    program.expectSaveQuestion(QMessageBox::Cancel);
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QCOMPARE(program.menuCount(), 2);
    QVERIFY(!isChanged(program, u"menu.json"_s));
}

void TestMainWindowExit::escapeKeepsTheProgramOpen()
{
    Program program;
    program.newMenu(Line::Holding);
    program.answers().expectBoxEscaped(ModalAnswers::saveQuestion());
    QVERIFY(!program.window().close());
    QCOMPARE(program.menuCount(), 1);
}

void TestMainWindowExit::yesSavesEveryMenu()
{
    Program program;
    for (const QString &name : {u"a.json"_s, u"b.json"_s, u"c.json"_s})
        openChanged(program, name);
    program.expectSaveQuestion(QMessageBox::Yes);
    QVERIFY(program.window().close());
    for (const QString &name : {u"a.json"_s, u"b.json"_s, u"c.json"_s})
        QVERIFY2(isChanged(program, name), qPrintable(name));
}

void TestMainWindowExit::yesAsksForMissingNames()
{
    Program program;
    QMdiSubWindow *firstNew = program.newMenu(Line::Holding);
    openChanged(program, u"saved.json"_s);
    QMdiSubWindow *secondNew = program.newMenu(Line::Holding);
    QVERIFY(firstNew && secondNew);
    program.expectSaveQuestion(QMessageBox::Yes);
    for (const QString &name : {u"new1.json"_s, u"new2.json"_s})
        expectName(program, program.path(name));
    QList<QMdiSubWindow *> activated;
    connect(&program.area(), &QMdiArea::subWindowActivated, this, [&activated](QMdiSubWindow *subWindow) {
        if (subWindow) // none is, once the window is closed
            activated.append(subWindow);
    });
    QVERIFY(program.window().close());
    QVERIFY(isChanged(program, u"saved.json"_s));
    QVERIFY(QFile::exists(program.path(u"new1.json"_s)));
    QVERIFY(QFile::exists(program.path(u"new2.json"_s)));
    QCOMPARE(activated, QList({firstNew, secondNew}));
}

void TestMainWindowExit::minimisedMenuIsShownWhenAskedFor()
{
    Program program;
    QMdiSubWindow *unnamed = program.newMenu(Line::Holding);
    QMdiSubWindow *saved = openSample(program, u"saved.json"_s);
    unnamed->showMinimized();
    saved->showMinimized();
    bool shownWhenAsked = false;
    program.expectSaveQuestion(QMessageBox::Yes);
    expectName(program, {});
    program.answers().onShown([&shownWhenAsked, unnamed](const QDialog &) {
        shownWhenAsked = !unnamed->isMinimized() && unnamed->widget()->isVisible();
    });
    QVERIFY(!program.window().close());
    QVERIFY(shownWhenAsked);
    QCOMPARE(program.area().activeSubWindow(), unnamed);
    QVERIFY(saved->isMinimized());
}

void TestMainWindowExit::cancelledNameKeepsWhatWasSaved()
{
    Program program;
    openChanged(program, u"before.json"_s);
    QMdiSubWindow *unnamed = program.newMenu(Line::Holding);
    openChanged(program, u"after.json"_s);
    program.expectSaveQuestion(QMessageBox::Yes);
    expectName(program, {});
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QCOMPARE(program.menuCount(), 3);
    QCOMPARE(program.area().activeSubWindow(), unnamed);
    QVERIFY(isChanged(program, u"before.json"_s));
    QVERIFY(!isChanged(program, u"after.json"_s));
}

void TestMainWindowExit::failedSaveKeepsTheProgramOpen()
{
    Program program;
    openSample(program, u"first.json"_s);
    openSample(program, u"second.json"_s);
    program.folder().remove();
    program.expectSaveQuestion(QMessageBox::Yes);
    program.answers().expectBox(ModalAnswers::writeFault(program.path(u"first.json"_s)), QMessageBox::Ok);
    QVERIFY(!program.window().close());
    QCOMPARE(program.menuCount(), 2);
}

void TestMainWindowExit::failedWriteToANewNameDoesNot()
{
    Program program;
    program.newMenu(Line::Holding);
    const QString path = program.path(u"missing/menu.json"_s);
    program.expectSaveQuestion(QMessageBox::Yes);
    expectName(program, path);
    program.answers().expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    QVERIFY(program.window().close());
}

void TestMainWindowExit::foreignSubWindowIsSkipped()
{
    Program program;
    QMdiSubWindow *foreign = program.area().addSubWindow(new QWidget);
    foreign->setObjectName(u"QhxMenuFile"_s);
    openChanged(program, u"menu.json"_s);
    program.expectSaveQuestion(QMessageBox::Yes);
    QVERIFY(program.window().close());
    QVERIFY(isChanged(program, u"menu.json"_s));
}

void TestMainWindowExit::editorUnderAnotherNameIsSkipped_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"qhxmenufile", "QhxMenuFile ", "SvrxMenuFile", "TimerBarMenuFile", ""})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// The name tells which editor a sub-window holds, to the letter.
void TestMainWindowExit::editorUnderAnotherNameIsSkipped()
{
    QFETCH(const QString, name);
    Program program;
    QMdiSubWindow *subWindow = openSample(program, u"menu.json"_s);
    change(program, *subWindow);
    subWindow->setObjectName(name);
    program.save();
    program.saveAs();
    program.expectSaveQuestion(QMessageBox::Yes);
    QVERIFY(program.window().close());
    QVERIFY(!isChanged(program, u"menu.json"_s));
}

void TestMainWindowExit::escapedNameKeepsTheProgramOpen()
{
    Program program;
    program.newMenu(Line::Holding);
    program.expectSaveQuestion(QMessageBox::Yes);
    program.answers().expect<QFileDialog>(
        [](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QCOMPARE(program.menuCount(), 1);
}

namespace {

constexpr int stillRunning = 7;

/// Runs the program, chooses File, Exit and returns the exit code; stillRunning when the program goes on.
int exitCodeOfExit(MainWindow &window)
{
    QMetaObject::invokeMethod(
        &window,
        [&window] {
            ui::clickMenu(window, "menuFile", "actionExit");
            if (window.isVisible())
                QCoreApplication::exit(stillRunning);
        },
        Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace

void TestMainWindowExit::exitActionEndsTheProgram()
{
    Program program;
    QCOMPARE(exitCodeOfExit(program.window()), 0);
    QVERIFY(program.window().isHidden());
}

void TestMainWindowExit::exitActionCanBeRefused()
{
    Program program;
    program.newMenu(Line::Holding);
    program.expectSaveQuestion(QMessageBox::Cancel);
    QCOMPARE(exitCodeOfExit(program.window()), stillRunning);
    QVERIFY(program.window().isVisible());
}

QTEST_MAIN(TestMainWindowExit)
#include "tst_mainwindow_exit.moc"
