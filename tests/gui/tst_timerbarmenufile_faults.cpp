// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>

#include <sys/stat.h>

#include "tests/gui/opentimerbar.h"
#include "tests/support/hardship.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestTimerBarMenuFileFaults : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void readFaultsAreTold_data();
    void readFaultsAreTold();
    void filesThatCannotBeOpened_data();
    void filesThatCannotBeOpened();
    void unreadableFile();
    void writingTakesOverThePath();
    void targetsThatCannotBeOpened_data();
    void targetsThatCannotBeOpened();
    void unwritableFolder();
    void fullDevice_data();
    void fullDevice();
};

void TestTimerBarMenuFileFaults::readFaultsAreTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QByteArray good = baconHamChili().bytes();
    QTest::newRow("empty file") << QByteArray() << u"Invalid menu file CRC!"_s;
    QTest::newRow("wrong checksum") << good.chopped(1) << u"Invalid menu file CRC!"_s;
    QTest::newRow("no header") << QByteArray("\xff\xff") << u"Invalid header size!"_s;
    QTest::newRow("version") << cbr::withByte(good, 4, 2) << u"Invalid menu file version!"_s;
    QTest::newRow("product size") << cbr::withByte(good, 10, 38) << u"Invalid product size value!"_s;
    QTest::newRow("101 products") << cbr::withByte(good, 9, 101) << u"Invalid total products value!"_s;
    QTest::newRow("model") << cbr::withByte(good, 6, 5) << u"Uknown cabinet model!"_s;
    QTest::newRow("missing product") << cbr::withChecksum(good.first(13 + 39))
                                     << u"Product read failed! Index =1"_s;
    QTest::newRow("missing day part") << cbr::withChecksum(good.chopped(1)) << u"Daypart read failed!"_s;
    QTest::newRow("day part 6") << cbr::withByte(good, 13 + 3 * 39, 6)
                                << u"Invalid daypart index detected!"_s;
}

void TestTimerBarMenuFileFaults::readFaultsAreTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    const TestFolder folder;
    const QString path = folder.make(u"menu.cbr"_s, bytes);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    const TimerBarMenuFile editor(path);
    QVERIFY(!editor.isMenuValid());
    QCOMPARE(contentOf(path), bytes);
}

void TestTimerBarMenuFileFaults::filesThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"missing.cbr"_s;
    QTest::newRow("folder") << u"folder"_s;
    QTest::newRow("FIFO that nobody writes") << u"fifo"_s;
    QTest::newRow("endless device") << u"zero"_s;
}

void TestTimerBarMenuFileFaults::filesThatCannotBeOpened()
{
    QFETCH(QString, name);
    const TestFolder folder;
    QVERIFY(QDir(folder.path({})).mkdir(u"folder"_s));
    QCOMPARE(mkfifo(folder.native(u"fifo"_s).constData(), 0600), 0);
    folder.link(u"zero"_s, u"/dev/zero"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + folder.path(name)),
                      QMessageBox::Ok);
    const TimerBarMenuFile editor(folder.path(name));
    QVERIFY(!editor.isMenuValid());
}

void TestTimerBarMenuFileFaults::unreadableFile()
{
    const TestFolder folder;
    folder.make(u"menu.cbr"_s, baconHamChili().bytes());
    QCOMPARE(chmod(folder.native(u"menu.cbr"_s).constData(), 0), 0);
    QCOMPARE(chmod(folder.native({}).constData(), 0755), 0);
    const QString path = folder.path(u"menu.cbr"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    const OrdinaryUser user;
    QVERIFY(user.isActive());
    const TimerBarMenuFile editor(path);
    QVERIFY(!editor.isMenuValid());
}

void TestTimerBarMenuFileFaults::writingTakesOverThePath()
{
    OpenTimerBar editor(baconHamChili());
    const TestFolder folder;
    const QString path = folder.path(u"new.cbr"_s);
    QVERIFY(editor->writeMenuFile(path));
    QCOMPARE(editor->filePath(), path);
    QCOMPARE(editor->windowTitle(), u"Menu File - new.cbr"_s);
    QCOMPARE(contentOf(path).toHex(' '), hex(baconHamChili()));
    // A longer file is truncated, not overwritten in part.
    folder.make(u"new.cbr"_s, QByteArray(5000, 'x'));
    QVERIFY(editor->save());
    QCOMPARE(contentOf(path).toHex(' '), hex(baconHamChili()));
}

void TestTimerBarMenuFileFaults::targetsThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << u"missing/menu.cbr"_s;
    QTest::newRow("folder") << u"folder"_s;
    QTest::newRow("FIFO that nobody reads") << u"fifo"_s;
}

// The path is the editor's all the same, and the title says so.
void TestTimerBarMenuFileFaults::targetsThatCannotBeOpened()
{
    QFETCH(QString, name);
    const TestFolder folder;
    QVERIFY(QDir(folder.path({})).mkdir(u"folder"_s));
    QCOMPARE(mkfifo(folder.native(u"fifo"_s).constData(), 0600), 0);
    const QStringList names = folder.names();
    OpenTimerBar editor(baconHamChili());
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + folder.path(name)),
                      QMessageBox::Ok);
    QVERIFY(!editor->writeMenuFile(folder.path(name)));
    QVERIFY(!editor->isMenuValid());
    QCOMPARE(editor->filePath(), folder.path(name));
    QCOMPARE(editor->windowTitle(), u"Menu File - "_s + name.split(u'/').constLast());
    QCOMPARE(folder.names(), names);
}

void TestTimerBarMenuFileFaults::unwritableFolder()
{
    const TestFolder folder;
    QCOMPARE(chmod(folder.native({}).constData(), 0555), 0);
    OpenTimerBar editor(baconHamChili());
    const QString path = folder.path(u"menu.cbr"_s);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"Failed to open the file:"_s + path), QMessageBox::Ok);
    {
        const OrdinaryUser user;
        QVERIFY(user.isActive());
        QVERIFY(!editor->writeMenuFile(path));
    }
    QVERIFY(!editor->isMenuValid());
    QCOMPARE(chmod(folder.native({}).constData(), 0755), 0);
    QVERIFY(editor->save()); // the editor works on
    QCOMPARE(folder.content(u"menu.cbr"_s).toHex(' '), hex(baconHamChili()));
}

void TestTimerBarMenuFileFaults::fullDevice_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<QString>("message");
    QTest::newRow("with products") << 3 << u"Failed to write product info to the file"_s;
    QTest::newRow("without products") << 0 << u"Failed to write daypart info to the file"_s;
}

void TestTimerBarMenuFileFaults::fullDevice()
{
    QFETCH(int, products);
    QFETCH(QString, message);
    OpenTimerBar editor({.products = cbr::manyProducts(products)});
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(message), QMessageBox::Ok);
    QVERIFY(!editor->writeMenuFile(u"/dev/full"_s));
    QVERIFY(!editor->isMenuValid());
    QCOMPARE(editor->windowTitle(), u"Menu File - full"_s);
}

QTEST_MAIN(TestTimerBarMenuFileFaults)
#include "tst_timerbarmenufile_faults.moc"
