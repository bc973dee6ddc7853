// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>

#include "model/files.h"
#include "tests/support/hardship.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

// Beside a file with such a name there is no room for a temporary one, whose name is longer.
QString longName()
{
    return QString(250, u'n');
}

} // namespace

class TestWriteFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_folder.reset(); }
    void wholeContent_data();
    void wholeContent();
    void newFileFollowsUmask();
    void keepsPermissions();
    void throughLinks_data();
    void throughLinks();
    void replacesWhole();
    void inPlaceWithoutTemporaryFile_data();
    void inPlaceWithoutTemporaryFile();
    void unwritableFolder();
    void stickyFolder();
    void readOnlyFile();
    void whatCannotBeReadIsNotWritten();

private:
    std::unique_ptr<TestFolder> m_folder;
};

void TestWriteFile::init()
{
    failOnWarnings();
    m_folder = std::make_unique<TestFolder>();
    QVERIFY(m_folder->isValid());
}

void TestWriteFile::wholeContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray much(100'000, 'x');
    QTest::newRow("new file") << u"a.json"_s << QByteArray() << QByteArray("{}\n");
    QTest::newRow("new empty file") << u"a.json"_s << QByteArray() << QByteArray("");
    QTest::newRow("shorter than before") << u"a.json"_s << much << QByteArray("{}\n");
    QTest::newRow("longer than before") << u"a.json"_s << QByteArray("{}\n") << much;
    QTest::newRow("nothing remains") << u"a.json"_s << much << QByteArray("");
    QTest::newRow("zero and high bytes") << u"a.cbr"_s << QByteArray("old") << QByteArray("\0\n\xff\r\0", 5);
    QTest::newRow("umlauts in the name") << u"Menü für Köln.json"_s << QByteArray("old") << QByteArray("x");
}

void TestWriteFile::wholeContent()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, bytes);
    if (!old.isNull())
        m_folder->make(name, old);
    QVERIFY(writeFile(m_folder->path(name), bytes));
    QCOMPARE(m_folder->content(name), bytes);
    QCOMPARE(m_folder->names(), QStringList{name});
}

void TestWriteFile::newFileFollowsUmask()
{
    const mode_t old = umask(0027);
    const bool written = writeFile(m_folder->path(u"a.json"_s), "x");
    umask(old);
    QVERIFY(written);
    struct stat status = {};
    QCOMPARE(stat(m_folder->native(u"a.json"_s).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0640);
}

void TestWriteFile::keepsPermissions()
{
    m_folder->make(u"a.json"_s, "old");
    QCOMPARE(chmod(m_folder->native(u"a.json"_s).constData(), 0604), 0);
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), "new"));
    struct stat status = {};
    QCOMPARE(stat(m_folder->native(u"a.json"_s).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0604);
}

void TestWriteFile::throughLinks_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("file");
    QTest::newRow("link") << u"link"_s << u"a.json"_s;
    QTest::newRow("link to a link") << u"link2"_s << u"a.json"_s;
    QTest::newRow("link to a file not there yet") << u"dangling"_s << u"b.json"_s;
}

void TestWriteFile::throughLinks()
{
    QFETCH(QString, link);
    QFETCH(QString, file);
    m_folder->make(u"a.json"_s, "old");
    m_folder->link(u"link"_s, u"a.json"_s);
    m_folder->link(u"link2"_s, u"link"_s);
    m_folder->link(u"dangling"_s, u"b.json"_s);
    QStringList expected = m_folder->names();
    QVERIFY(writeFile(m_folder->path(link), "new"));
    QVERIFY(QFileInfo(m_folder->path(link)).isSymLink());
    QVERIFY(!QFileInfo(m_folder->path(file)).isSymLink());
    QCOMPARE(m_folder->content(file), "new");
    if (!expected.contains(file))
        expected.append(file);
    expected.sort();
    QCOMPARE(m_folder->names(), expected);
}

// Who has the old file open goes on to see all of it: at no time is there half a file.
void TestWriteFile::replacesWhole()
{
    m_folder->make(u"a.json"_s, "old");
    QFile reader(m_folder->path(u"a.json"_s));
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), "new"));
    QCOMPARE(reader.readAll(), "old");
    QCOMPARE(m_folder->content(u"a.json"_s), "new");
}

void TestWriteFile::inPlaceWithoutTemporaryFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("shorter than before") << QByteArray("new");
    QTest::newRow("longer than before") << QByteArray(200'000, 'n');
    QTest::newRow("nothing remains") << QByteArray("");
}

void TestWriteFile::inPlaceWithoutTemporaryFile()
{
    QFETCH(QByteArray, bytes);
    m_folder->make(longName(), QByteArray(100'000, 'o'));
    QVERIFY(writeFile(m_folder->path(longName()), bytes));
    QCOMPARE(m_folder->content(longName()), bytes);
    QCOMPARE(m_folder->names(), QStringList{longName()});
}

void TestWriteFile::unwritableFolder()
{
    m_folder->make(u"a.json"_s, "old and longer");
    QCOMPARE(chmod(m_folder->native(u"a.json"_s).constData(), 0666), 0);
    QCOMPARE(chmod(m_folder->native({}).constData(), 0555), 0);
    bool ordinary = false;
    bool existing = false;
    bool absent = true;
    {
        const OrdinaryUser user;
        ordinary = user.isActive();
        existing = writeFile(m_folder->path(u"a.json"_s), "new");
        absent = writeFile(m_folder->path(u"b.json"_s), "new");
    }
    QCOMPARE(chmod(m_folder->native({}).constData(), 0755), 0);
    QVERIFY(ordinary);
    QVERIFY(existing);
    QVERIFY(!absent);
    QCOMPARE(m_folder->content(u"a.json"_s), "new");
    QCOMPARE(m_folder->names(), QStringList{u"a.json"_s});
}

// There everybody may make files, but only its owner may replace one.
void TestWriteFile::stickyFolder()
{
    m_folder->make(u"a.json"_s, "old and longer");
    QCOMPARE(chmod(m_folder->native(u"a.json"_s).constData(), 0666), 0);
    QCOMPARE(chmod(m_folder->native({}).constData(), 01777), 0);
    bool ordinary = false;
    bool written = false;
    {
        const OrdinaryUser user;
        ordinary = user.isActive();
        written = writeFile(m_folder->path(u"a.json"_s), "new");
    }
    QVERIFY(ordinary);
    QVERIFY(written);
    QCOMPARE(m_folder->content(u"a.json"_s), "new");
    QCOMPARE(m_folder->names(), QStringList{u"a.json"_s});
}

void TestWriteFile::readOnlyFile()
{
    m_folder->make(u"a.json"_s, "old");
    QCOMPARE(chmod(m_folder->native(u"a.json"_s).constData(), 0444), 0);
    QCOMPARE(chmod(m_folder->native({}).constData(), 0555), 0);
    bool ordinary = false;
    bool written = true;
    {
        const OrdinaryUser user;
        ordinary = user.isActive();
        written = writeFile(m_folder->path(u"a.json"_s), "new");
    }
    QCOMPARE(chmod(m_folder->native({}).constData(), 0755), 0);
    QVERIFY(ordinary);
    QVERIFY(!written);
    QCOMPARE(m_folder->content(u"a.json"_s), "old");
}

void TestWriteFile::whatCannotBeReadIsNotWritten()
{
    m_folder->make(u"a.json"_s, "old");
    const QByteArray largest(largestFile, 'x');
    QVERIFY(!writeFile(m_folder->path(u"a.json"_s), largest + 'x'));
    QCOMPARE(m_folder->content(u"a.json"_s), "old");
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), largest));
    QVERIFY(readFile(m_folder->path(u"a.json"_s)) == largest);
    QCOMPARE(m_folder->names(), QStringList{u"a.json"_s});
}

QTEST_APPLESS_MAIN(TestWriteFile)
#include "tst_writefile.moc"
