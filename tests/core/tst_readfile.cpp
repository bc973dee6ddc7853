// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

#include "model/files.h"
#include "tests/support/require.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 limit = 64LL * 1024 * 1024;

} // namespace

class TestReadFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_folder.reset(); }
    void wholeContent_data();
    void wholeContent();
    void throughLink();
    void ofUnknownSize();
    void thatFailsWhileItIsRead();
    void unknownSizeIsLimited();
    void largestSize();
    void refused_data();
    void refused();
    void lastPart_data();
    void lastPart();

private:
    void makeSparse(const QString &name, qint64 size) const;

    std::unique_ptr<TestFolder> m_folder;
};

void TestReadFile::init()
{
    failOnWarnings();
    m_folder = std::make_unique<TestFolder>();
    QVERIFY(m_folder->isValid());
}

void TestReadFile::makeSparse(const QString &name, qint64 size) const
{
    QFile file(m_folder->path(name));
    REQUIRE(file.open(QIODevice::WriteOnly));
    REQUIRE(file.resize(size));
}

void TestReadFile::wholeContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << u"a.json"_s << QByteArray("");
    QTest::newRow("text") << u"a.json"_s << QByteArray("{\r\n}\n");
    QTest::newRow("zero and high bytes") << u"a.cbr"_s << QByteArray("\0\x1a\xff\0", 4);
    QTest::newRow("more than a buffer") << u"a.json"_s << QByteArray(100'000, 'x');
    QTest::newRow("umlauts in the name") << u"Menü für Köln.json"_s << QByteArray("x");
    QTest::newRow("no ending") << u"menu"_s << QByteArray("x");
}

void TestReadFile::wholeContent()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    m_folder->make(name, bytes);
    const std::optional<QByteArray> read = readFile(m_folder->path(name));
    QVERIFY(read.has_value());
    QCOMPARE(*read, bytes);
}

void TestReadFile::throughLink()
{
    m_folder->make(u"a.json"_s, "content");
    m_folder->link(u"link"_s, u"a.json"_s);
    QCOMPARE(readFile(m_folder->path(u"link"_s)), QByteArray("content"));
}

void TestReadFile::ofUnknownSize()
{
    const std::optional<QByteArray> status = readFile(u"/proc/self/status"_s);
    QVERIFY(status.has_value());
    QVERIFY(status->startsWith("Name:"));
    QVERIFY(status->endsWith('\n'));
}

// Nothing is mapped where it begins.
void TestReadFile::thatFailsWhileItIsRead()
{
    const QString memory = u"/proc/self/mem"_s;
    QVERIFY(QFileInfo(memory).isFile());
    QVERIFY(QFile(memory).open(QIODevice::ReadOnly));
    QVERIFY(!readFile(memory));
}

// The list of this process's mappings, in which each one of a file is told with its path.
void TestReadFile::unknownSizeIsLimited()
{
    const QString longName = QString(250, u'n') + u'/';
    const QString folder = m_folder->path(longName.repeated(15));
    QVERIFY(QDir().mkpath(folder));
    QFile mapped(folder + u"file"_s);
    QVERIFY(mapped.open(QIODevice::ReadWrite) && mapped.resize(1));
    for (int i = 0; i < 18'000; ++i)
        QVERIFY(mapped.map(0, 1));
    QFile list(u"/proc/self/maps"_s);
    QCOMPARE(list.size(), 0);
    QVERIFY(list.open(QIODevice::ReadOnly));
    QVERIFY(list.read(limit + 1).size() > limit);
    QVERIFY(!readFile(list.fileName()));
}

void TestReadFile::largestSize()
{
    makeSparse(u"most.json"_s, limit);
    makeSparse(u"more.json"_s, limit + 1);
    makeSparse(u"huge.json"_s, limit * 1024);
    const std::optional<QByteArray> most = readFile(m_folder->path(u"most.json"_s));
    QVERIFY(most.has_value());
    QCOMPARE(most->size(), limit);
    QVERIFY(!readFile(m_folder->path(u"more.json"_s)));
    QVERIFY(!readFile(m_folder->path(u"huge.json"_s)));
}

void TestReadFile::refused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no file") << u"missing.json"_s;
    QTest::newRow("no folder") << u"missing/a.json"_s;
    QTest::newRow("folder") << u"."_s;
    QTest::newRow("below a file") << u"file/a.json"_s;
    QTest::newRow("FIFO that nobody writes to") << u"fifo"_s;
    QTest::newRow("link to itself") << u"loop"_s;
    QTest::newRow("link to nothing") << u"dangling"_s;
    QTest::newRow("endless device") << u"zero"_s;
    QTest::newRow("empty device") << u"null"_s;
    QTest::newRow("name too long for any file") << QString(300, u'n');
    QTest::newRow("no name") << QString();
}

void TestReadFile::refused()
{
    QFETCH(QString, name);
    m_folder->make(u"file"_s, "content");
    QCOMPARE(mkfifo(m_folder->native(u"fifo"_s).constData(), 0600), 0);
    m_folder->link(u"loop"_s, u"loop"_s);
    m_folder->link(u"dangling"_s, u"missing"_s);
    m_folder->link(u"zero"_s, u"/dev/zero"_s);
    m_folder->link(u"null"_s, u"/dev/null"_s);
    QVERIFY(!readFile(name.isEmpty() ? name : m_folder->path(name)));
}

void TestReadFile::lastPart_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("last");
    QTest::newRow("in a folder") << u"/menus/cook/menu.json"_s << u"menu.json"_s;
    QTest::newRow("in the root folder") << u"/menu.json"_s << u"menu.json"_s;
    QTest::newRow("no folder") << u"menu.json"_s << u"menu.json"_s;
    QTest::newRow("ends in a slash") << u"/menus/cook/"_s << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("backslash is part of the name") << u"/menus/a\\b.json"_s << u"a\\b.json"_s;
}

void TestReadFile::lastPart()
{
    QFETCH(QString, path);
    QTEST(lastPathPart(path), "last");
}

QTEST_APPLESS_MAIN(TestReadFile)
#include "tst_readfile.moc"
