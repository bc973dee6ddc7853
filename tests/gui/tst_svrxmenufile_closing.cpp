// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QPointer>

#include "tests/gui/lanemenus.h"
#include "tests/gui/openlaneeditor.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

enum class Way { Escape, CtrlW, CtrlF4, SubWindow };

const QByteArray contents = "T1=350,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0";
const QByteArray changedContents = "T1=351,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0";

const QString wrongName = u"File name must start with \"svrxconfig_\" to load in a Savorix unit!"_s;

void close(LaneMenus &menus, Way way = Way::Escape)
{
    ui::activate(menus.window());
    SvrxMenuFile *editor = menus.editor();
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

void verifyGone(LaneMenus &menus, const QPointer<SvrxMenuFile> &editor)
{
    QTRY_COMPARE(menus.menuCount(), 0);
    QTRY_VERIFY(!editor);
}

void verifyOpen(LaneMenus &menus, const QPointer<SvrxMenuFile> &editor)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(editor);
    QVERIFY(editor->isVisible());
    QCOMPARE(menus.menuCount(), 1);
    QCOMPARE(menus.editor(), editor.data());
}

void openChanged(LaneMenus &menus, ModalAnswers &answers)
{
    menus.open(answers, u"svrxconfig_a.txt"_s, lanefile::text(contents));
    QTest::keyClick(&temperatureBox(*menus.editor(), 1), Qt::Key_Up);
}

} // namespace

Q_DECLARE_METATYPE(Way)

/// Closing a lane configuration, and leaving the program with one open.
class TestSvrxMenuFileClosing : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyWayAsks_data();
    void everyWayAsks();
    void refusedClosingKeepsItOpen_data();
    void refusedClosingKeepsItOpen();
    void noDiscards();
    void yesSavesTheConfigurationOnly();
    void yesChecksNoNameOfAnOpenedFile();
    void yesWithAFailedSaveClosesAllTheSame();
    void yesAsksForAName();
    void cancelledNameKeepsItOpen();
    void wrongNameKeepsItOpen();
    void failedWriteKeepsItOpen();
    void exitSavesInPlace();
    void exitWithAFailedSaveGoesNoFurther();
    void exitWritesBothFilesOfANewMenu();
    void exitCancelledAtTheNameGoesNoFurther();
    void exitGoesOnAfterAWrongName();
    void exitGoesOnAfterAFailedProductionFile();
};

void TestSvrxMenuFileClosing::everyWayAsks_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("Escape") << Way::Escape;
    QTest::newRow("Ctrl+W") << Way::CtrlW;
    QTest::newRow("Ctrl+F4") << Way::CtrlF4;
    QTest::newRow("the sub-window itself") << Way::SubWindow;
}

void TestSvrxMenuFileClosing::everyWayAsks()
{
    QFETCH(const Way, way);
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(menus, way);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    close(menus, way);
    QVERIFY(answers.allAnswered());
    verifyGone(menus, editor);
}

void TestSvrxMenuFileClosing::refusedClosingKeepsItOpen_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape in the question") << true;
}

void TestSvrxMenuFileClosing::refusedClosingKeepsItOpen()
{
    QFETCH(const bool, escape);
    LaneMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    if (escape)
        answers.expectBoxEscaped(ModalAnswers::saveQuestion());
    else
        answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Cancel);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    QCOMPARE(temperatureBox(*editor, 1).value(), 351);
    QCOMPARE(menus.folder().content(u"svrxconfig_a.txt"_s), lanefile::text(contents));
}

void TestSvrxMenuFileClosing::noDiscards()
{
    LaneMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::No);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(menus.folder().content(u"svrxconfig_a.txt"_s), lanefile::text(contents));
}

void TestSvrxMenuFileClosing::yesSavesTheConfigurationOnly()
{
    LaneMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(menus.folder().names(), QStringList{u"svrxconfig_a.txt"_s});
    QCOMPARE(menus.folder().content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
}

// Not even where the name is one that a cabinet would not load.
void TestSvrxMenuFileClosing::yesChecksNoNameOfAnOpenedFile()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.open(answers, u"other.txt"_s, lanefile::text(contents));
    QTest::keyClick(&temperatureBox(*menus.editor(), 1), Qt::Key_Up);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(menus.folder().names(), QStringList{u"other.txt"_s});
    QCOMPARE(menus.folder().content(u"other.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::yesWithAFailedSaveClosesAllTheSame()
{
    LaneMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    const QString path = menus.path(u"svrxconfig_a.txt"_s);
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyGone(menus, editor);
}

void TestSvrxMenuFileClosing::yesAsksForAName()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, menus.path(u"svrxconfig_typed"_s), u"svrxconfig_"_s);
    close(menus);
    verifyGone(menus, editor);
    QCOMPARE(menus.folder().names(), QStringList{u"svrxconfig_typed"_s}); // and no production file
}

void TestSvrxMenuFileClosing::cancelledNameKeepsItOpen()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, {}, u"svrxconfig_"_s);
    close(menus, Way::CtrlW);
    verifyOpen(menus, editor);
    QCOMPARE(editor->windowTitle(), u"Menu File - "_s);
    QCOMPARE(menus.folder().names(), QStringList());
}

void TestSvrxMenuFileClosing::wrongNameKeepsItOpen()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, menus.path(u"Svrxconfig_a.txt"_s), u"svrxconfig_"_s);
    answers.expectBox(ModalAnswers::fileFault(wrongName), QMessageBox::Ok);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    QCOMPARE(editor->filePath(), QString());
    QCOMPARE(menus.folder().names(), QStringList());
}

void TestSvrxMenuFileClosing::failedWriteKeepsItOpen()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    const QPointer<SvrxMenuFile> editor = menus.editor();
    const QString path = menus.path(u"missing/svrxconfig_a.txt"_s);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, path, u"svrxconfig_"_s);
    answers.expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    close(menus);
    QVERIFY(answers.allAnswered());
    verifyOpen(menus, editor);
    QCOMPARE(editor->filePath(), path);
    QCOMPARE(editor->windowTitle(), u"Menu File - svrxconfig_a.txt"_s);
}

void TestSvrxMenuFileClosing::exitSavesInPlace()
{
    LaneMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    QVERIFY(menus.window().close());
    QCOMPARE(menus.folder().names(), QStringList{u"svrxconfig_a.txt"_s});
    QCOMPARE(menus.folder().content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::exitWithAFailedSaveGoesNoFurther()
{
    LaneMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    const QString path = menus.path(u"svrxconfig_a.txt"_s);
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    answers.expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    QVERIFY(!menus.window().close());
    QVERIFY(menus.window().isVisible());
    QCOMPARE(menus.menuCount(), 1);
}

void TestSvrxMenuFileClosing::exitWritesBothFilesOfANewMenu()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, menus.path(u"svrxconfig_a.txt"_s), u"svrxconfig_"_s);
    QVERIFY(menus.window().close());
    QCOMPARE(menus.folder().names(), QStringList({u"svrxconfig_a.txt"_s, u"svrxprod_a.txt"_s}));
}

void TestSvrxMenuFileClosing::exitCancelledAtTheNameGoesNoFurther()
{
    LaneMenus menus;
    ModalAnswers answers;
    openChanged(menus, answers);
    menus.newMenu(answers);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, {}, u"svrxconfig_"_s);
    QVERIFY(!menus.window().close());
    QCOMPARE(menus.menuCount(), 2);
    QCOMPARE(menus.folder().content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::exitGoesOnAfterAWrongName()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    openChanged(menus, answers);
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, menus.path(u"wrong.txt"_s), u"svrxconfig_"_s);
    answers.expectBox(ModalAnswers::fileFault(wrongName), QMessageBox::Ok);
    QVERIFY(menus.window().close());
    QCOMPARE(menus.folder().names(), QStringList{u"svrxconfig_a.txt"_s});
    QCOMPARE(menus.folder().content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::exitGoesOnAfterAFailedProductionFile()
{
    LaneMenus menus;
    ModalAnswers answers;
    menus.newMenu(answers);
    QVERIFY(QDir().mkdir(menus.path(u"svrxprod_a.txt"_s)));
    answers.expectBox(ModalAnswers::saveQuestion(), QMessageBox::Yes);
    LaneMenus::expectSaveDialog(answers, menus.path(u"svrxconfig_a.txt"_s), u"svrxconfig_"_s);
    answers.expectBox(ModalAnswers::writeFault(menus.path(u"svrxprod_a.txt"_s)), QMessageBox::Ok);
    QVERIFY(menus.window().close());
    QCOMPARE(menus.folder().names(), QStringList({u"svrxconfig_a.txt"_s, u"svrxprod_a.txt"_s}));
}

QTEST_MAIN(TestSvrxMenuFileClosing)
#include "tst_svrxmenufile_closing.moc"
