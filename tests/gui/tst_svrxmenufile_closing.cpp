// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>

#include "tests/gui/closing.h"
#include "tests/gui/openlaneeditor.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace closing;

namespace {

const QByteArray contents = "T1=350,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0";
const QByteArray changedContents = "T1=351,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0";

const QString wrongName = u"File name must start with \"svrxconfig_\" to load in a Savorix unit!"_s;

void openChanged(Program &program, const QString &name)
{
    program.open(name, lanefile::text(contents));
    QTest::keyClick(&temperatureBox(*program.editor<SvrxMenuFile>(), 1), Qt::Key_Up);
}

} // namespace

/// Closing a lane configuration, beyond what is so in every line, and leaving the program with one open.
class TestSvrxMenuFileClosing : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void yesChecksNoNameOfAnOpenedFile();
    void wrongNameKeepsItOpen();
    void exitSavesInPlace();
    void exitWithAFailedSaveGoesNoFurther();
    void exitWritesBothFilesOfANewMenu();
    void exitCancelledAtTheNameGoesNoFurther();
    void exitGoesOnAfterAWrongName();
    void exitGoesOnAfterAFailedProductionFile();
};

// Not even where the name is one that a cabinet would not load.
void TestSvrxMenuFileClosing::yesChecksNoNameOfAnOpenedFile()
{
    Program program;
    openChanged(program, u"other.txt"_s);
    const QPointer<QWidget> closed = editor(program);
    close(program, QMessageBox::Yes);
    requireGone(program, closed);
    QCOMPARE(program.folder().names(), QStringList{u"other.txt"_s});
    QCOMPARE(program.content(u"other.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::wrongNameKeepsItOpen()
{
    Program program;
    program.newMenu(Line::Lanes);
    const QPointer<QWidget> closed = editor(program);
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(Line::Lanes, Asking::Closing, program.path(u"Svrxconfig_a.txt"_s));
    program.answers().expectBox(ModalAnswers::fileFault(wrongName), QMessageBox::Ok);
    close(program);
    QVERIFY(program.answers().allAnswered());
    requireOpen(program, closed);
    QCOMPARE(program.editor<SvrxMenuFile>()->filePath(), QString());
    QCOMPARE(program.folder().names(), QStringList());
}

void TestSvrxMenuFileClosing::exitSavesInPlace()
{
    Program program;
    openChanged(program, u"svrxconfig_a.txt"_s);
    program.expectSaveQuestion(QMessageBox::Yes);
    QVERIFY(program.window().close());
    QCOMPARE(program.folder().names(), QStringList{u"svrxconfig_a.txt"_s});
    QCOMPARE(program.content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::exitWithAFailedSaveGoesNoFurther()
{
    Program program;
    openChanged(program, u"svrxconfig_a.txt"_s);
    const QString path = program.path(u"svrxconfig_a.txt"_s);
    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    program.expectSaveQuestion(QMessageBox::Yes);
    program.answers().expectBox(ModalAnswers::writeFault(path), QMessageBox::Ok);
    QVERIFY(!program.window().close());
    QVERIFY(program.window().isVisible());
    QCOMPARE(program.menuCount(), 1);
}

void TestSvrxMenuFileClosing::exitWritesBothFilesOfANewMenu()
{
    Program program;
    program.newMenu(Line::Lanes);
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(Line::Lanes, Asking::Save, program.path(u"svrxconfig_a.txt"_s));
    QVERIFY(program.window().close());
    QCOMPARE(program.folder().names(), QStringList({u"svrxconfig_a.txt"_s, u"svrxprod_a.txt"_s}));
}

void TestSvrxMenuFileClosing::exitCancelledAtTheNameGoesNoFurther()
{
    Program program;
    openChanged(program, u"svrxconfig_a.txt"_s);
    program.newMenu(Line::Lanes);
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(Line::Lanes, Asking::Save, {});
    QVERIFY(!program.window().close());
    QCOMPARE(program.menuCount(), 2);
    QCOMPARE(program.content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::exitGoesOnAfterAWrongName()
{
    Program program;
    program.newMenu(Line::Lanes);
    openChanged(program, u"svrxconfig_a.txt"_s);
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(Line::Lanes, Asking::Save, program.path(u"wrong.txt"_s));
    program.answers().expectBox(ModalAnswers::fileFault(wrongName), QMessageBox::Ok);
    QVERIFY(program.window().close());
    QCOMPARE(program.folder().names(), QStringList{u"svrxconfig_a.txt"_s});
    QCOMPARE(program.content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileClosing::exitGoesOnAfterAFailedProductionFile()
{
    Program program;
    program.newMenu(Line::Lanes);
    QVERIFY(QDir().mkdir(program.path(u"svrxprod_a.txt"_s)));
    program.expectSaveQuestion(QMessageBox::Yes);
    program.expectSaveDialog(Line::Lanes, Asking::Save, program.path(u"svrxconfig_a.txt"_s));
    program.answers().expectBox(ModalAnswers::writeFault(program.path(u"svrxprod_a.txt"_s)), QMessageBox::Ok);
    QVERIFY(program.window().close());
    QCOMPARE(program.folder().names(), QStringList({u"svrxconfig_a.txt"_s, u"svrxprod_a.txt"_s}));
}

QTEST_MAIN(TestSvrxMenuFileClosing)
#include "tst_svrxmenufile_closing.moc"
