// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QPointer>

#include "tests/gui/opentimerbar.h"
#include "tests/gui/timerbarmenus.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

ModalAnswers::Box openFault(const QString &path)
{
    return ModalAnswers::fileFault(u"Failed to open the file:"_s + path);
}

} // namespace

/// What the main window does with Timer Bar menus when something is cancelled or fails.
class TestTimerBarMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void cancelledConfigurationOpensNothing();
    void configurationStandsOverTheMainWindow();
    void brokenFileOpensNothing_data();
    void brokenFileOpensNothing();
    void failedSaveUnderANewNameKeepsTheMenuOpen();
    void failedSaveAsKeepsTheMenuOpen();
    void exitWithAFailedSaveGoesNoFurther();
    void exitGoesOnAfterAFailedWriteToANewName();
    void exitInRemovalModeRemovesNothing();
};

void TestTimerBarMainWindow::cancelledConfigurationOpensNothing()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers, "btnCancel");
    QVERIFY(answers.allAnswered());
    QCOMPARE(menus.menuCount(), 0);
    QVERIFY(menus.window().findChildren<TimerBarMenuFile *>().isEmpty());
    QVERIFY(menus.window().close()); // nothing is open: it does not ask
}

// The editor behind it is not shown yet: a dialog cannot be centred on it.
void TestTimerBarMainWindow::configurationStandsOverTheMainWindow()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    QPointer<QWidget> parent;
    answers.onShown([&parent](const QDialog &dialog) { parent = dialog.parentWidget(); });
    menus.newMenu(answers);
    QCOMPARE(parent.data(), &menus.window());
}

void TestTimerBarMainWindow::brokenFileOpensNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QByteArray good = baconHamChili().bytes();
    QTest::newRow("empty") << QByteArray() << u"Invalid menu file CRC!"_s;
    QTest::newRow("cut") << good.chopped(1) << u"Invalid menu file CRC!"_s;
    QTest::newRow("unknown model") << cbr::withByte(good, 6, 5) << u"Uknown cabinet model!"_s;
    QTest::newRow("cut and sealed") << cbr::withChecksum(good.chopped(1)) << u"Daypart read failed!"_s;
}

void TestTimerBarMainWindow::brokenFileOpensNothing()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, message);
    TimerBarMenus menus;
    menus.folder().make(u"menu.cbr"_s, bytes);
    ModalAnswers answers;
    TimerBarMenus::expectOpenDialog(answers, menus.path(u"menu.cbr"_s));
    answers.expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    menus.choose("actionOpen");
    QVERIFY(answers.allAnswered());
    QCOMPARE(menus.menuCount(), 0);
    QVERIFY(menus.window().findChildren<TimerBarMenuFile *>().isEmpty());
    QCOMPARE(menus.folder().content(u"menu.cbr"_s), bytes);
}

void TestTimerBarMainWindow::failedSaveUnderANewNameKeepsTheMenuOpen()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QString path = menus.path(u"later/menu.cbr"_s);
    TimerBarMenus::expectSaveDialog(answers, path);
    answers.expectBox(openFault(path), QMessageBox::Ok);
    menus.choose("action_Save");
    QVERIFY(answers.allAnswered());
    QCOMPARE(menus.menuCount(), 1);
    QCOMPARE(menus.subWindow()->windowTitle(), u"Menu File - menu.cbr"_s);
    QVERIFY(QDir().mkdir(menus.path(u"later"_s)));
    menus.choose("action_Save"); // the name is the menu's: it does not ask again
    QCOMPARE(menus.folder().content(u"later/menu.cbr"_s).size(), 67 + 33 * 39);
    QVERIFY(menus.editor()->isMenuValid());
}

void TestTimerBarMainWindow::failedSaveAsKeepsTheMenuOpen()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"menu.cbr"_s, baconHamChili().bytes());
    const QString path = menus.path(u"missing/other.cbr"_s);
    answers.expectFileDialog(u"Save TimerBar Menu"_s, u"TimerBar Menu Files (*.cbr)"_s, path, u"menu.cbr"_s);
    answers.expectBox(openFault(path), QMessageBox::Ok);
    menus.choose("actionSaveAs");
    QVERIFY(answers.allAnswered());
    QCOMPARE(menus.menuCount(), 1);
    QCOMPARE(menus.editor()->products().size(), 3);
    QCOMPARE(menus.folder().content(u"menu.cbr"_s).toHex(' '), hex(baconHamChili()));
}

void TestTimerBarMainWindow::exitWithAFailedSaveGoesNoFurther()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"a.cbr"_s, baconHamChili().bytes());
    menus.open(answers, u"b.cbr"_s, baconHamChili().bytes());
    const QString path = menus.path(u"a.cbr"_s);
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    menus.folder().make(u"b.cbr"_s, {});
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectBox(openFault(path), QMessageBox::Ok);
    QVERIFY(!menus.window().close());
    QVERIFY(menus.window().isVisible());
    QCOMPARE(menus.menuCount(), 2);
    QCOMPARE(menus.folder().content(u"b.cbr"_s), QByteArray());
}

void TestTimerBarMainWindow::exitGoesOnAfterAFailedWriteToANewName()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    menus.open(answers, u"b.cbr"_s, baconHamChili().bytes());
    menus.folder().make(u"b.cbr"_s, {});
    const QString path = menus.path(u"missing/menu.cbr"_s);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    TimerBarMenus::expectSaveDialog(answers, path);
    answers.expectBox(openFault(path), QMessageBox::Ok);
    QVERIFY(menus.window().close());
    QCOMPARE(menus.folder().content(u"b.cbr"_s).toHex(' '), hex(baconHamChili()));
}

void TestTimerBarMainWindow::exitInRemovalModeRemovesNothing()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 2, 100};
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"menu.cbr"_s, menu.bytes());
    enterRemovalMode(*menus.editor());
    menus.folder().make(u"menu.cbr"_s, {});
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    QVERIFY(menus.window().close());
    QCOMPARE(menus.folder().content(u"menu.cbr"_s).toHex(' '), hex(menu));
}

QTEST_MAIN(TestTimerBarMainWindow)
#include "tst_timerbar_mainwindow.moc"
