// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QListWidget>
#include <QPointer>

#include "tests/gui/opentimerbar.h"
#include "tests/gui/timerbarmenus.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

enum class Way { Escape, CtrlW, CtrlF4, SubWindow };

const QString closingCaption = u"TimerBar Menu"_s;

// Bins so that there is something to remove.
cbr::Menu withBins()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts[0] = {0, 1, 2, 100};
    return menu;
}

cbr::Menu withoutBacon()
{
    cbr::Menu menu = withBins();
    menu.products.removeFirst();
    menu.dayparts[0] = {100, 1, 2, 100};
    return menu;
}

void close(TimerBarMenus &menus, Way way = Way::Escape)
{
    ui::activate(menus.window());
    TimerBarMenuFile *editor = menus.editor();
    switch (way) {
    case Way::Escape:
        QTest::keyClick(editor, Qt::Key_Escape);
        break;
    case Way::CtrlW:
        QTest::keyClick(editor, Qt::Key_W, Qt::ControlModifier);
        break;
    case Way::CtrlF4:
        QTest::keyClick(editor, Qt::Key_F4, Qt::ControlModifier);
        break;
    case Way::SubWindow:
        menus.subWindow()->close();
        break;
    }
}

void verifyGone(TimerBarMenus &menus, const QPointer<TimerBarMenuFile> &editor)
{
    QTRY_COMPARE(menus.menuCount(), 0);
    QTRY_VERIFY(!editor);
}

void verifyOpen(TimerBarMenus &menus, const QPointer<TimerBarMenuFile> &editor)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(editor);
    QVERIFY(editor->isVisible());
    QCOMPARE(menus.menuCount(), 1);
    QCOMPARE(menus.editor(), editor.data());
}

// Opens the menu and deletes its first product, which only a save brings into the file.
void openChanged(TimerBarMenus &menus, ModalAnswers &answers)
{
    menus.open(answers, u"menu.cbr"_s, withBins().bytes());
    answers.expectBox(ModalAnswers::deleteQuestion(u"Delete selected product?"_s), QMessageBox::Yes);
    ui::clickRow(ui::get<QListWidget>(*menus.editor(), "listWidgetProducts"), 0);
    ui::click(*menus.editor(), "btnDeleteProduct");
}

QByteArray saved(const TimerBarMenus &menus)
{
    return menus.folder().content(u"menu.cbr"_s).toHex(' ');
}

} // namespace

Q_DECLARE_METATYPE(Way)

class TestTimerBarMenuFileClosing : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyWayAsks_data();
    void everyWayAsks();
    void refusedClosingKeepsItOpen_data();
    void refusedClosingKeepsItOpen();
    void noDiscards();
    void yesSavesInPlace();
    void yesWithAFailedSaveClosesAllTheSame();
    void yesAsksForAName();
    void cancelledNameKeepsItOpen();
    void failedWriteUnderANameKeepsItOpen();
    void saveAfterAFailedWriteUnderAName();
    void removalModeStaysWhenRefused();
    void closingInRemovalModeRemovesNothing_data();
    void closingInRemovalModeRemovesNothing();
    void otherMenusStayOpen();
    void escapeInADialogClosesTheDialogOnly();
};

void TestTimerBarMenuFileClosing::everyWayAsks_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("Escape") << Way::Escape;
    QTest::newRow("Ctrl+W") << Way::CtrlW;
    QTest::newRow("Ctrl+F4") << Way::CtrlF4;
    QTest::newRow("the sub-window itself") << Way::SubWindow;
}

void TestTimerBarMenuFileClosing::everyWayAsks()
{
    QFETCH(const Way, way);
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"menu.cbr"_s, withBins().bytes());
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(menus, way);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    close(menus, way);
    QVERIFY(answers.allAnswered());
    verifyGone(menus, editor);
}

void TestTimerBarMenuFileClosing::refusedClosingKeepsItOpen_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape in the question") << true;
}

void TestTimerBarMenuFileClosing::refusedClosingKeepsItOpen()
{
    QFETCH(const bool, escape);
    TimerBarMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    if (escape)
        answers.expectBoxEscaped(ModalAnswers::saveQuestion());
    else
        answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    QCOMPARE(editor->products().size(), 2); // with what was changed
    QCOMPARE(saved(menus), hex(withBins()));
}

void TestTimerBarMenuFileClosing::noDiscards()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(saved(menus), hex(withBins()));
}

void TestTimerBarMenuFileClosing::yesSavesInPlace()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(saved(menus), hex(withoutBacon()));
}

void TestTimerBarMenuFileClosing::yesWithAFailedSaveClosesAllTheSame()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QString path = menus.path(u"menu.cbr"_s);
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyGone(menus, editor);
}

void TestTimerBarMenuFileClosing::yesAsksForAName()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    QVERIFY(editor);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    TimerBarMenus::expectSaveDialog(answers, menus.path(u"typed"_s), closingCaption);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(menus.folder().names(), QStringList{u"typed"_s}); // the name is used as typed
    QCOMPARE(menus.folder().content(u"typed"_s).size(), 67 + 33 * 39);
}

void TestTimerBarMenuFileClosing::cancelledNameKeepsItOpen()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    TimerBarMenus::expectSaveDialog(answers, {}, closingCaption);
    close(menus, Way::CtrlW);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    QCOMPARE(editor->filePath(), QString());
    QCOMPARE(editor->windowTitle(), u"TimerBar Menu File - "_s);
    QCOMPARE(menus.folder().names(), QStringList());
}

void TestTimerBarMenuFileClosing::failedWriteUnderANameKeepsItOpen()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    const QString path = menus.path(u"missing/menu.cbr"_s);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    TimerBarMenus::expectSaveDialog(answers, path, closingCaption);
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    QCOMPARE(editor->products().size(), 33);
}

// The name counts as the menu's from then on: closing again asks for none.
void TestTimerBarMenuFileClosing::saveAfterAFailedWriteUnderAName()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    const QString path = menus.path(u"later/menu.cbr"_s);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    TimerBarMenus::expectSaveDialog(answers, path, closingCaption);
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    close(menus);
    QVERIFY(answers.allAnswered());
    QVERIFY(QDir().mkdir(menus.path(u"later"_s)));
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(menus.folder().content(u"later/menu.cbr"_s).size(), 67 + 33 * 39);
}

void TestTimerBarMenuFileClosing::removalModeStaysWhenRefused()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"menu.cbr"_s, withBins().bytes());
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    enterRemovalMode(*editor);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    ui::click(*editor, "btnDaypartRemove");
    QCOMPARE(ui::get<QPushButton>(*editor, "btnDaypartSelect1_0").text(), QString());
}

void TestTimerBarMenuFileClosing::closingInRemovalModeRemovesNothing_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("Yes") << QMessageBox::Yes;
    QTest::newRow("No") << QMessageBox::No;
}

void TestTimerBarMenuFileClosing::closingInRemovalModeRemovesNothing()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"menu.cbr"_s, withBins().bytes());
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    enterRemovalMode(*editor);
    answers.expectBox(ModalAnswers::saveQuestion(), answer);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(saved(menus), hex(withBins()));
}

void TestTimerBarMenuFileClosing::otherMenusStayOpen()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"a.cbr"_s, withBins().bytes());
    const QPointer<TimerBarMenuFile> first = menus.editor();
    menus.open(answers, u"b.cbr"_s, withBins().bytes());
    const QPointer<TimerBarMenuFile> second = menus.editor();
    QCOMPARE(menus.menuCount(), 2);
    QVERIFY(first != second);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(menus);
    QTRY_VERIFY(!second);
    verifyOpen(menus, first);
}

void TestTimerBarMenuFileClosing::escapeInADialogClosesTheDialogOnly()
{
    TimerBarMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"menu.cbr"_s, withBins().bytes());
    const QPointer<TimerBarMenuFile> editor = menus.editor();
    for (const char *button : {"btnConfig", "btnAddProduct"}) {
        answers.expect<QDialog>([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        ui::click(*editor, button);
    }
    verifyOpen(menus, editor);
}

QTEST_MAIN(TestTimerBarMenuFileClosing)
#include "tst_timerbarmenufile_closing.moc"
