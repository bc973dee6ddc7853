// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QFile>
#include <QFileDialog>

#include "tests/gui/openlaneeditor.h"
#include "tests/support/hardship.h"
#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray contents = "T1=350,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0";
const QByteArray production = "a5a508110105dc015effffffffffffffffffffffff54d8";
const QByteArray changedContents = "T1=351,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0";

const QString wrongName = u"File name must start with \"svrxconfig_\" to load in a Savorix unit!"_s;

ModalAnswers::Box readFault(const QString &path)
{
    return ModalAnswers::fileFault(u"Failed to open the file:"_s + path);
}

void changeFirstTemperature(const QWidget &editor)
{
    QTest::keyClick(&temperatureBox(editor, 1), Qt::Key_Up);
}

// That a changed menu stands as it was opened.
void checkUnsaved(Program &program, const QString &name)
{
    REQUIRE_EQUAL(program.editor<SvrxMenuFile>()->filePath(), program.path(name));
    REQUIRE_EQUAL(program.subWindow()->windowTitle(), u"Menu File - "_s + name);
    REQUIRE_EQUAL(program.folder().names(), QStringList{name});
    REQUIRE_EQUAL(program.content(name), lanefile::text(contents));
    REQUIRE_EQUAL(temperatureBox(*program.editor<SvrxMenuFile>(), 1).value(), 351);
}

} // namespace

/// Opening and saving of lane configurations through the main window.
class TestSvrxMenuFileFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newIsShownInASubWindow();
    void anyNameOpens_data();
    void anyNameOpens();
    void faultsAreShown_data();
    void faultsAreShown();
    void unreadableFileIsShown();
    void saveInPlaceWritesTheConfigurationOnly();
    void saveInPlaceAsksForNoName();
    void saveOfANewMenuProposesAName();
    void saveCancelledWritesNothing();
    void saveAsWritesBothFiles();
    void saveAsOfANewMenuProposesAName();
    void saveAsCancelledChangesNothing();
    void saveAsEscapedChangesNothing();
    void wrongNamesWriteNothing_data();
    void wrongNamesWriteNothing();
    void foldersKeepTheirNames();
    void saveWithoutAPathWritesNothing();
    void failedSaveInPlace();
    void failedConfigurationLeavesNoProductionFile();
    void failedProductionFileIsShown();
    void shortWriteKeepsTheOldFile();
};

void TestSvrxMenuFileFiles::newIsShownInASubWindow()
{
    Program program;
    program.newMenu(Line::Lanes);
    QCOMPARE(program.menuCount(), 1);
    QVERIFY(program.editor<SvrxMenuFile>());
    QVERIFY(program.editor<SvrxMenuFile>()->isVisible());
    QCOMPARE(program.subWindow()->objectName(), u"SvrxMenuFile"_s);
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - "_s);
    QCOMPARE(program.editor<SvrxMenuFile>()->minimumSize(), program.editor<SvrxMenuFile>()->maximumSize());
}

void TestSvrxMenuFileFiles::anyNameOpens_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("as saved") << u"svrxconfig_a.txt"_s;
    QTest::newRow("any other") << u"lanes of the shop.v2.txt"_s;
    QTest::newRow("upper case") << u"CONF.TXT"_s;
}

void TestSvrxMenuFileFiles::anyNameOpens()
{
    QFETCH(const QString, name);
    Program program;
    program.open(name, lanefile::text(contents));
    QVERIFY(program.editor<SvrxMenuFile>());
    QCOMPARE(program.editor<SvrxMenuFile>()->filePath(), program.path(name));
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - "_s + name);
    QCOMPARE(temperatureBox(*program.editor<SvrxMenuFile>(), 1).value(), 350);
    QCOMPARE(program.folder().names(), QStringList{name});
}

void TestSvrxMenuFileFiles::faultsAreShown_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QByteArray() << u"Invalid file format"_s;
    QTest::newRow("changed by hand") << lanefile::text(changedContents, lanefile::identifierOf(contents))
                                     << u"Invalid file identifier value"_s;
    QTest::newRow("no lane") << lanefile::text("T1=0,F1=0") << u"Invalid file contents"_s;
}

void TestSvrxMenuFileFiles::faultsAreShown()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, message);
    Program program;
    program.folder().make(u"a.txt"_s, text);
    program.expectOpenDialog(u"a.txt"_s);
    program.answers().expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    program.openNow();
    QCOMPARE(program.menuCount(), 0);
    QVERIFY(!program.window().findChild<SvrxMenuFile *>());
    QCOMPARE(program.content(u"a.txt"_s), text);
}

void TestSvrxMenuFileFiles::unreadableFileIsShown()
{
    const TestFolder folder;
    QVERIFY(QDir().mkdir(folder.path(u"folder.txt"_s)));
    QCOMPARE(mkfifo(folder.native(u"fifo.txt"_s).constData(), 0600), 0);
    for (const QString &name : {u"missing.txt"_s, u"folder.txt"_s, u"fifo.txt"_s}) {
        ModalAnswers answers;
        answers.expectBox(readFault(folder.path(name)), QMessageBox::Ok);
        const SvrxMenuFile editor(folder.path(name));
        QVERIFY(!editor.isMenuValid());
    }
}

void TestSvrxMenuFileFiles::saveInPlaceWritesTheConfigurationOnly()
{
    Program program;
    program.open(u"svrxconfig_a.txt"_s, lanefile::text(contents));
    program.folder().make(u"svrxprod_a.txt"_s, "as it was");
    changeFirstTemperature(*program.editor<SvrxMenuFile>());
    program.save();
    QCOMPARE(program.folder().names(), QStringList({u"svrxconfig_a.txt"_s, u"svrxprod_a.txt"_s}));
    QCOMPARE(program.content(u"svrxconfig_a.txt"_s), lanefile::text(changedContents));
    QCOMPARE(program.content(u"svrxprod_a.txt"_s), QByteArray("as it was"));
}

// Not even where the name is one that a cabinet would not load.
void TestSvrxMenuFileFiles::saveInPlaceAsksForNoName()
{
    Program program;
    program.open(u"other.txt"_s, lanefile::text(contents));
    changeFirstTemperature(*program.editor<SvrxMenuFile>());
    program.save();
    QCOMPARE(program.folder().names(), QStringList{u"other.txt"_s});
    QCOMPARE(program.content(u"other.txt"_s), lanefile::text(changedContents));
}

void TestSvrxMenuFileFiles::saveOfANewMenuProposesAName()
{
    Program program;
    program.newMenu(Line::Lanes);
    program.expectSaveDialog(Line::Lanes, Asking::Save, program.path(u"svrxconfig_new.txt"_s));
    program.save();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - svrxconfig_new.txt"_s);
    QCOMPARE(program.content(u"svrxconfig_new.txt"_s),
             lanefile::text("T1=375,T2=375,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0"));
    QCOMPARE(program.content(u"svrxprod_new.txt"_s),
             QByteArray("a5a50811010708017707080177ffffffffffffffff5a36"));
    program.save(); // asks no second time
}

void TestSvrxMenuFileFiles::saveCancelledWritesNothing()
{
    Program program;
    program.newMenu(Line::Lanes);
    program.expectSaveDialog(Line::Lanes, Asking::Save, {});
    program.save();
    QCOMPARE(program.editor<SvrxMenuFile>()->filePath(), QString());
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - "_s);
}

void TestSvrxMenuFileFiles::saveAsWritesBothFiles()
{
    Program program;
    program.open(u"svrxconfig_a.txt"_s, lanefile::text(contents));
    program.expectSaveDialog(Line::Lanes, Asking::SaveAs, program.path(u"svrxconfig_b.txt"_s),
                             u"svrxconfig_a.txt"_s);
    program.saveAs();
    QCOMPARE(program.subWindow()->windowTitle(), u"Menu File - svrxconfig_b.txt"_s);
    QCOMPARE(program.editor<SvrxMenuFile>()->filePath(), program.path(u"svrxconfig_b.txt"_s));
    QCOMPARE(program.folder().names(),
             QStringList({u"svrxconfig_a.txt"_s, u"svrxconfig_b.txt"_s, u"svrxprod_b.txt"_s}));
    QCOMPARE(program.content(u"svrxconfig_b.txt"_s), lanefile::text(contents));
    QCOMPARE(program.content(u"svrxprod_b.txt"_s), production);
}

void TestSvrxMenuFileFiles::saveAsOfANewMenuProposesAName()
{
    Program program;
    program.newMenu(Line::Lanes);
    program.expectSaveDialog(Line::Lanes, Asking::SaveAs, program.path(u"svrxconfig_"_s));
    program.saveAs();
    QCOMPARE(program.folder().names(), QStringList({u"svrxconfig_"_s, u"svrxprod_"_s}));
}

void TestSvrxMenuFileFiles::saveAsCancelledChangesNothing()
{
    Program program;
    program.open(u"svrxconfig_a.txt"_s, lanefile::text(contents));
    changeFirstTemperature(*program.editor<SvrxMenuFile>());
    program.expectSaveDialog(Line::Lanes, Asking::SaveAs, {}, u"svrxconfig_a.txt"_s);
    program.saveAs();
    checkUnsaved(program, u"svrxconfig_a.txt"_s);
}

void TestSvrxMenuFileFiles::saveAsEscapedChangesNothing()
{
    Program program;
    program.open(u"svrxconfig_a.txt"_s, lanefile::text(contents));
    changeFirstTemperature(*program.editor<SvrxMenuFile>());
    program.answers().expect<QFileDialog>(
        [](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    program.saveAs();
    checkUnsaved(program, u"svrxconfig_a.txt"_s);
}

void TestSvrxMenuFileFiles::wrongNamesWriteNothing_data()
{
    QTest::addColumn<bool>("isNew");
    QTest::addColumn<QString>("name");
    for (const char *name : {"config_test.txt", "SVRXCONFIG_a.txt", "svrxprod_a.txt"}) {
        QTest::addRow("new, %s", name) << true << QString::fromLatin1(name);
        QTest::addRow("opened, %s", name) << false << QString::fromLatin1(name);
    }
}

void TestSvrxMenuFileFiles::wrongNamesWriteNothing()
{
    QFETCH(const bool, isNew);
    QFETCH(const QString, name);
    Program program;
    if (isNew)
        program.newMenu(Line::Lanes);
    else
        program.open(u"a.txt"_s, lanefile::text(contents));
    const QString pathBefore = program.editor<SvrxMenuFile>()->filePath();
    const QString titleBefore = program.subWindow()->windowTitle();
    program.expectSaveDialog(Line::Lanes, Asking::SaveAs, program.path(name),
                             isNew ? u"svrxconfig_"_s : u"a.txt"_s);
    program.answers().expectBox(ModalAnswers::fileFault(wrongName), QMessageBox::Ok);
    program.saveAs();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.folder().names(), isNew ? QStringList() : QStringList{u"a.txt"_s});
    QCOMPARE(program.editor<SvrxMenuFile>()->filePath(), pathBefore);
    QCOMPARE(program.subWindow()->windowTitle(), titleBefore);
}

void TestSvrxMenuFileFiles::foldersKeepTheirNames()
{
    const TestFolder folder;
    QVERIFY(QDir().mkdir(folder.path(u"svrxconfig_folder"_s)));
    SvrxMenuFile editor({});
    QVERIFY(editor.writeToFile(folder.path(u"svrxconfig_folder/svrxconfig_a.txt"_s)));
    QCOMPARE(folder.names(), QStringList{u"svrxconfig_folder"_s});
    QCOMPARE(QDir(folder.path(u"svrxconfig_folder"_s)).entryList(QDir::Files, QDir::Name),
             QStringList({u"svrxconfig_a.txt"_s, u"svrxprod_a.txt"_s}));
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(wrongName), QMessageBox::Ok);
    QVERIFY(!editor.writeToFile(folder.path(u"svrxconfig_folder/a.txt"_s)));
}

void TestSvrxMenuFileFiles::saveWithoutAPathWritesNothing()
{
    SvrxMenuFile editor({});
    const ModalAnswers noDialogs;
    QVERIFY(!editor.save());
}

void TestSvrxMenuFileFiles::failedSaveInPlace()
{
    Program program;
    program.open(u"a.txt"_s, lanefile::text(contents));
    changeFirstTemperature(*program.editor<SvrxMenuFile>());
    QVERIFY(QFile::remove(program.path(u"a.txt"_s)));
    QVERIFY(QDir().mkdir(program.path(u"a.txt"_s)));
    program.answers().expectBox(ModalAnswers::writeFault(program.path(u"a.txt"_s)), QMessageBox::Ok);
    program.save();
    QVERIFY(program.answers().allAnswered());
    QCOMPARE(program.menuCount(), 1);
    QCOMPARE(temperatureBox(*program.editor<SvrxMenuFile>(), 1).value(), 351);
    program.answers().expectBox(ModalAnswers::writeFault(program.path(u"a.txt"_s)), QMessageBox::Ok);
    QVERIFY(!program.editor<SvrxMenuFile>()->save());
}

void TestSvrxMenuFileFiles::failedConfigurationLeavesNoProductionFile()
{
    const TestFolder folder;
    QVERIFY(QDir().mkdir(folder.path(u"svrxconfig_a.txt"_s)));
    SvrxMenuFile editor({});
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::writeFault(folder.path(u"svrxconfig_a.txt"_s)), QMessageBox::Ok);
    QVERIFY(!editor.writeToFile(folder.path(u"svrxconfig_a.txt"_s)));
    QCOMPARE(folder.names(), QStringList{u"svrxconfig_a.txt"_s});
    // The name is the current one all the same: a later Save tries again.
    QCOMPARE(editor.filePath(), folder.path(u"svrxconfig_a.txt"_s));
    QCOMPARE(editor.windowTitle(), u"Menu File - svrxconfig_a.txt"_s);
    QVERIFY(QDir().rmdir(folder.path(u"svrxconfig_a.txt"_s)));
    QVERIFY(editor.save());
}

void TestSvrxMenuFileFiles::failedProductionFileIsShown()
{
    const TestFolder folder;
    QVERIFY(QDir().mkdir(folder.path(u"svrxprod_a.txt"_s)));
    SvrxMenuFile editor({});
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::writeFault(folder.path(u"svrxprod_a.txt"_s)), QMessageBox::Ok);
    QVERIFY(!editor.writeToFile(folder.path(u"svrxconfig_a.txt"_s)));
    QVERIFY(folder.content(u"svrxconfig_a.txt"_s).endsWith("F3=0,F4=0"));
    QCOMPARE(editor.filePath(), folder.path(u"svrxconfig_a.txt"_s));
    answers.expectBox(ModalAnswers::writeFault(folder.path(u"svrxprod_a.txt"_s)), QMessageBox::Ok);
    QVERIFY(!editor.writeEolProdMenuFile(folder.path(u"svrxprod_a.txt"_s)));
}

void TestSvrxMenuFileFiles::shortWriteKeepsTheOldFile()
{
    const TestFolder folder;
    const QByteArray text = lanefile::text(contents);
    folder.make(u"svrxconfig_a.txt"_s, text);
    SvrxMenuFile editor(folder.path(u"svrxconfig_a.txt"_s));
    temperatureBox(editor, 1).setValue(351);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::writeFault(folder.path(u"svrxconfig_a.txt"_s)), QMessageBox::Ok);
    const FileSizeLimit fullDisk(20);
    QVERIFY(fullDisk.isActive());
    QVERIFY(!editor.save());
    QCOMPARE(folder.content(u"svrxconfig_a.txt"_s), text);
    QCOMPARE(folder.names(), QStringList{u"svrxconfig_a.txt"_s});
}

QTEST_MAIN(TestSvrxMenuFileFiles)
#include "tst_svrxmenufile_files.moc"
