// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include "tests/support/modalanswers.h"
#include "tests/support/openmenus.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "tests/support/windowmenu.h"

using namespace Qt::StringLiterals;

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

bool isChanged(const QString &path)
{
    return windowmenu::contentOf(path).contains("\"Changed\"");
}

void expectName(ModalAnswers &answers, const QString &path)
{
    answers.expectFileDialog(u"Save JSON Menu"_s, OpenMenus::saveFilter, path, u""_s);
}

} // namespace

void TestMainWindowExit::nothingIsAskedWithoutMenus()
{
    OpenMenus open;
    const ModalAnswers noDialogs;
    QVERIFY(open.window().close());
    QVERIFY(open.window().isHidden());
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
    OpenMenus open;
    for (int i = 0; i < menus; ++i)
        open.change(*open.openSample(QString::number(i) + u".json"_s));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    QVERIFY(open.window().close());
    for (int i = 0; i < menus; ++i)
        QVERIFY(!isChanged(open.path(QString::number(i) + u".json"_s)));
}

void TestMainWindowExit::cancelKeepsTheProgramOpen()
{
    OpenMenus open;
    open.change(*open.openSample(u"menu.json"_s));
    open.openNew();
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    QVERIFY(!open.window().close());
    QVERIFY(open.window().isVisible());
    QCOMPARE(open.area().subWindowList().size(), 2);
    QVERIFY(!isChanged(open.path(u"menu.json"_s)));
}

void TestMainWindowExit::escapeKeepsTheProgramOpen()
{
    OpenMenus open;
    open.openNew();
    ModalAnswers answers;
    answers.expectBoxEscaped(ModalAnswers::saveQuestion());
    QVERIFY(!open.window().close());
    QCOMPARE(open.area().subWindowList().size(), 1);
}

void TestMainWindowExit::yesSavesEveryMenu()
{
    OpenMenus open;
    for (const QString &name : {u"a.json"_s, u"b.json"_s, u"c.json"_s})
        open.change(*open.openSample(name));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    QVERIFY(open.window().close());
    for (const QString &name : {u"a.json"_s, u"b.json"_s, u"c.json"_s})
        QVERIFY2(isChanged(open.path(name)), qPrintable(name));
}

void TestMainWindowExit::yesAsksForMissingNames()
{
    OpenMenus open;
    QMdiSubWindow *firstNew = open.openNew();
    open.change(*open.openSample(u"saved.json"_s));
    QMdiSubWindow *secondNew = open.openNew();
    QVERIFY(firstNew && secondNew);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    for (const QString &name : {u"new1.json"_s, u"new2.json"_s})
        expectName(answers, open.path(name));
    QList<QMdiSubWindow *> activated;
    connect(&open.area(), &QMdiArea::subWindowActivated, this, [&activated](QMdiSubWindow *subWindow) {
        if (subWindow) // none is, once the window is closed
            activated.append(subWindow);
    });
    QVERIFY(open.window().close());
    QVERIFY(isChanged(open.path(u"saved.json"_s)));
    QVERIFY(QFile::exists(open.path(u"new1.json"_s)));
    QVERIFY(QFile::exists(open.path(u"new2.json"_s)));
    QCOMPARE(activated, QList({firstNew, secondNew}));
}

void TestMainWindowExit::minimisedMenuIsShownWhenAskedFor()
{
    OpenMenus open;
    QMdiSubWindow *unnamed = open.openNew();
    QMdiSubWindow *saved = open.openSample(u"saved.json"_s);
    unnamed->showMinimized();
    saved->showMinimized();
    bool shownWhenAsked = false;
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    expectName(answers, {});
    answers.onShown([&shownWhenAsked, unnamed](const QDialog &) {
        shownWhenAsked = !unnamed->isMinimized() && unnamed->widget()->isVisible();
    });
    QVERIFY(!open.window().close());
    QVERIFY(shownWhenAsked);
    QCOMPARE(open.area().activeSubWindow(), unnamed);
    QVERIFY(saved->isMinimized());
}

void TestMainWindowExit::cancelledNameKeepsWhatWasSaved()
{
    OpenMenus open;
    open.change(*open.openSample(u"before.json"_s));
    QMdiSubWindow *unnamed = open.openNew();
    open.change(*open.openSample(u"after.json"_s));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    expectName(answers, {});
    QVERIFY(!open.window().close());
    QVERIFY(open.window().isVisible());
    QCOMPARE(open.area().subWindowList().size(), 3);
    QCOMPARE(open.area().activeSubWindow(), unnamed);
    QVERIFY(isChanged(open.path(u"before.json"_s)));
    QVERIFY(!isChanged(open.path(u"after.json"_s)));
}

void TestMainWindowExit::failedSaveKeepsTheProgramOpen()
{
    OpenMenus open;
    open.openSample(u"first.json"_s);
    open.openSample(u"second.json"_s);
    open.removeFolder();
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectBox(ModalAnswers::writeFault(open.path(u"first.json"_s)), QMessageBox::Ok);
    QVERIFY(!open.window().close());
    QCOMPARE(open.area().subWindowList().size(), 2);
}

void TestMainWindowExit::failedWriteToANewNameDoesNot()
{
    OpenMenus open;
    open.openNew();
    const QString path = open.path(u"missing/menu.json"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    expectName(answers, path);
    answers.expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    QVERIFY(open.window().close());
}

void TestMainWindowExit::foreignSubWindowIsSkipped()
{
    OpenMenus open;
    QMdiSubWindow *foreign = open.area().addSubWindow(new QWidget);
    foreign->setObjectName(u"QhxMenuFile"_s);
    open.change(*open.openSample(u"menu.json"_s));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    QVERIFY(open.window().close());
    QVERIFY(isChanged(open.path(u"menu.json"_s)));
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
    OpenMenus open;
    QMdiSubWindow *subWindow = open.openSample(u"menu.json"_s);
    open.change(*subWindow);
    subWindow->setObjectName(name);
    ModalAnswers answers;
    ui::clickMenu(open.window(), "menuFile", "action_Save");
    ui::clickMenu(open.window(), "menuFile", "actionSaveAs");
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    QVERIFY(open.window().close());
    QVERIFY(!isChanged(open.path(u"menu.json"_s)));
}

void TestMainWindowExit::escapedNameKeepsTheProgramOpen()
{
    OpenMenus open;
    open.openNew();
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expect<QFileDialog>([](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QVERIFY(!open.window().close());
    QVERIFY(open.window().isVisible());
    QCOMPARE(open.area().subWindowList().size(), 1);
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
    OpenMenus open;
    QCOMPARE(exitCodeOfExit(open.window()), 0);
    QVERIFY(open.window().isHidden());
}

void TestMainWindowExit::exitActionCanBeRefused()
{
    OpenMenus open;
    open.openNew();
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    QCOMPARE(exitCodeOfExit(open.window()), stillRunning);
    QVERIFY(open.window().isVisible());
}

QTEST_MAIN(TestMainWindowExit)
#include "tst_mainwindow_exit.moc"
