// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QPointer>

#include "tests/gui/opentimerbar.h"
#include "tests/support/program.h"
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
    Program program;
    program.newMenu(Line::TimerBar, "btnCancel");
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
    QVERIFY(program.window().findChildren<TimerBarMenuFile *>().isEmpty());
    QVERIFY(program.window().close()); // nothing is open: it does not ask
}

// The editor behind it is not shown yet: a dialog cannot be centred on it.
void TestTimerBarMainWindow::configurationStandsOverTheMainWindow()
{
    Program program;
    QPointer<QWidget> parent;
    program.answers().onShown([&parent](const QDialog &dialog) { parent = dialog.parentWidget(); });
    program.newMenu(Line::TimerBar);
    QCOMPARE(parent.data(), &program.window());
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
    Program program;
    program.folder().make(u"menu.cbr"_s, bytes);
    program.expectOpenDialog(u"menu.cbr"_s);
    program.answers().expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    program.openNow();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 0);
    QVERIFY(program.window().findChildren<TimerBarMenuFile *>().isEmpty());
    QCOMPARE(program.content(u"menu.cbr"_s), bytes);
}

void TestTimerBarMainWindow::failedSaveUnderANewNameKeepsTheMenuOpen()
{
    Program program;
    program.newMenu(Line::TimerBar);
    const QString path = program.path(u"later/menu.cbr"_s);
    program.expectSaveDialog(Line::TimerBar, Asking::Save, path);
    program.answers().expectBox(openFault(path), QMessageBox::Ok);
    program.save();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 1);
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - menu.cbr"_s);
    QVERIFY(QDir().mkdir(program.path(u"later"_s)));
    program.save(); // the name is the menu's: it does not ask again
    QCOMPARE(program.content(u"later/menu.cbr"_s).size(), 67 + 33 * 39);
    QVERIFY(program.editor<TimerBarMenuFile>()->isMenuValid());
}

void TestTimerBarMainWindow::failedSaveAsKeepsTheMenuOpen()
{
    Program program;
    program.open(u"menu.cbr"_s, baconHamChili().bytes());
    const QString path = program.path(u"missing/other.cbr"_s);
    program.expectSaveDialog(Line::TimerBar, Asking::SaveAs, path, u"menu.cbr"_s);
    program.answers().expectBox(openFault(path), QMessageBox::Ok);
    program.saveAs();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 1);
    QCOMPARE(program.editor<TimerBarMenuFile>()->products().size(), 3);
    QCOMPARE(program.content(u"menu.cbr"_s).toHex(' '), hex(baconHamChili()));
}

void TestTimerBarMainWindow::exitWithAFailedSaveGoesNoFurther()
{
    Program program;
    program.open(u"a.cbr"_s, baconHamChili().bytes());
    program.open(u"b.cbr"_s, baconHamChili().bytes());
    const QString path = program.path(u"a.cbr"_s);
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    program.folder().make(u"b.cbr"_s, {});
    program.expectSaveQuestion(QMessageBox::Yes);
    program.answers().expectBox(openFault(path), QMessageBox::Ok);
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QCOMPARE(program.menuCount(), 2);
    QCOMPARE(program.content(u"b.cbr"_s), QByteArray());
}

void TestTimerBarMainWindow::exitGoesOnAfterAFailedWriteToANewName()
{
    Program program;
    program.newMenu(Line::TimerBar);
    program.open(u"b.cbr"_s, baconHamChili().bytes());
    program.folder().make(u"b.cbr"_s, {});
    const QString path = program.path(u"missing/menu.cbr"_s);
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(Line::TimerBar, Asking::Save, path);
    program.answers().expectBox(openFault(path), QMessageBox::Ok);
    QVERIFY(program.window().close());
    QCOMPARE(program.content(u"b.cbr"_s).toHex(' '), hex(baconHamChili()));
}

void TestTimerBarMainWindow::exitInRemovalModeRemovesNothing()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 2, 100};
    Program program;
    program.open(u"menu.cbr"_s, menu.bytes());
    enterRemovalMode(*program.editor<TimerBarMenuFile>());
    program.folder().make(u"menu.cbr"_s, {});
    program.expectSaveQuestion(QMessageBox::Yes);
    QVERIFY(program.window().close());
    QCOMPARE(program.content(u"menu.cbr"_s).toHex(' '), hex(menu));
}

QTEST_MAIN(TestTimerBarMainWindow)
#include "tst_timerbar_mainwindow.moc"
