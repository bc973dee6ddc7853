// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <memory>

#include <QDir>
#include <QTest>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "model/files.h"
#include "tests/support/hardship.h"
#include "tests/support/require.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestWriteFileFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_folder.reset(); }
    void fileSizeLimit_data();
    void fileSizeLimit();
    void fileSizeLimitForNewFile();
    void fileSizeLimitInPlace_data();
    void fileSizeLimitInPlace();
    void devices_data();
    void devices();
    void refused_data();
    void refused();

private:
    void makeSpecialFiles() const;

    std::unique_ptr<TestFolder> m_folder;
};

void TestWriteFileFaults::init()
{
    failOnWarnings();
    m_folder = std::make_unique<TestFolder>();
    QVERIFY(m_folder->isValid());
}

void TestWriteFileFaults::fileSizeLimit_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("fits");
    QTest::newRow("nothing can be written") << 0 << 100 << false;
    QTest::newRow("one byte too few, in one buffer") << 1999 << 2000 << false;
    QTest::newRow("exactly enough") << 2000 << 2000 << true;
    QTest::newRow("one byte too few, in several buffers") << 99'999 << 100'000 << false;
    QTest::newRow("cut in the first buffer of several") << 1000 << 100'000 << false;
}

void TestWriteFileFaults::fileSizeLimit()
{
    QFETCH(int, limit);
    QFETCH(int, size);
    QFETCH(bool, fits);
    const QByteArray old("the last good file");
    const QByteArray bytes(size, 'n');
    m_folder->make(u"a.json"_s, old);
    bool active = false;
    bool written = false;
    {
        const FileSizeLimit full(static_cast<rlim_t>(limit));
        active = full.isActive();
        written = writeFile(m_folder->path(u"a.json"_s), bytes);
    }
    QVERIFY(active);
    QCOMPARE(written, fits);
    QCOMPARE(m_folder->content(u"a.json"_s), fits ? bytes : old);
    QCOMPARE(m_folder->names(), QStringList{u"a.json"_s});
}

void TestWriteFileFaults::fileSizeLimitForNewFile()
{
    bool written = true;
    {
        const FileSizeLimit full(1000);
        written = writeFile(m_folder->path(u"a.json"_s), QByteArray(2000, 'n'));
    }
    QVERIFY(!written);
    QCOMPARE(m_folder->names(), QStringList());
}

void TestWriteFileFaults::fileSizeLimitInPlace_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("one byte too few") << 1001;
    QTest::newRow("several buffers") << 100'000;
}

// In a folder that takes no temporary file, the good file itself is overwritten and has to come back.
void TestWriteFileFaults::fileSizeLimitInPlace()
{
    QFETCH(int, size);
    const QByteArray old(900, 'o');
    m_folder->make(u"a.json"_s, old);
    QCOMPARE(chmod(m_folder->native(u"a.json"_s).constData(), 0666), 0);
    QCOMPARE(chmod(m_folder->native({}).constData(), 0555), 0);
    bool limited = false;
    bool written = true;
    {
        const OrdinaryUser user;
        const FileSizeLimit full(1000);
        limited = user.isActive() && full.isActive();
        written = writeFile(m_folder->path(u"a.json"_s), QByteArray(size, 'n'));
    }
    QCOMPARE(chmod(m_folder->native({}).constData(), 0755), 0);
    QVERIFY(limited);
    QVERIFY(!written);
    QCOMPARE(m_folder->content(u"a.json"_s), old);
}

void TestWriteFileFaults::devices_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("written");
    QTest::newRow("takes anything") << u"/dev/null"_s << 100'000 << true;
    QTest::newRow("is full") << u"/dev/full"_s << 10 << false;
    QTest::newRow("is full, several buffers") << u"/dev/full"_s << 100'000 << false;
}

void TestWriteFileFaults::devices()
{
    QFETCH(QString, device);
    QFETCH(int, size);
    QFETCH(bool, written);
    m_folder->link(u"device"_s, device);
    QCOMPARE(chmod(m_folder->native({}).constData(), 0755), 0);
    bool direct = !written;
    bool throughLink = !written;
    {
        const OrdinaryUser user; // for root it would be possible to replace the device, should the test fail
        direct = writeFile(device, QByteArray(size, 'n'));
        throughLink = writeFile(m_folder->path(u"device"_s), QByteArray(size, 'n'));
    }
    QCOMPARE(direct, written);
    QCOMPARE(throughLink, written);
    struct stat status = {};
    QCOMPARE(stat(device.toLocal8Bit().constData(), &status), 0);
    QVERIFY(S_ISCHR(status.st_mode));
    QCOMPARE(m_folder->names(), QStringList{u"device"_s});
}

void TestWriteFileFaults::makeSpecialFiles() const
{
    m_folder->make(u"file"_s, "content");
    REQUIRE(QDir(m_folder->path({})).mkdir(u"folder"_s));
    REQUIRE_EQUAL(mkfifo(m_folder->native(u"fifo"_s).constData(), 0600), 0);
    m_folder->link(u"loop"_s, u"loop2"_s);
    m_folder->link(u"loop2"_s, u"loop"_s);
    m_folder->link(u"linkToFifo"_s, u"fifo"_s);
    m_folder->link(u"linkToFolder"_s, u"folder"_s);

    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = m_folder->native(u"socket"_s);
    REQUIRE(static_cast<std::size_t>(name.size()) < sizeof(address.sun_path));
    std::copy(name.begin(), name.end(), address.sun_path);
    const int socketFile = socket(AF_UNIX, SOCK_STREAM, 0);
    const int bound = bind(socketFile, reinterpret_cast<const sockaddr *>(&address), sizeof(address));
    close(socketFile);
    REQUIRE_EQUAL(bound, 0);
}

void TestWriteFileFaults::refused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << u"folder"_s;
    QTest::newRow("folder with a slash") << u"folder/"_s;
    QTest::newRow("link to a folder") << u"linkToFolder"_s;
    QTest::newRow("in a folder that is not there") << u"missing/a.json"_s;
    QTest::newRow("below a file") << u"file/a.json"_s;
    QTest::newRow("FIFO that nobody reads") << u"fifo"_s;
    QTest::newRow("link to a FIFO") << u"linkToFifo"_s;
    QTest::newRow("links that run in a circle") << u"loop"_s;
    QTest::newRow("socket") << u"socket"_s;
    QTest::newRow("name too long for any file") << QString(300, u'n');
}

void TestWriteFileFaults::refused()
{
    QFETCH(QString, name);
    makeSpecialFiles();
    const QStringList before = m_folder->names();
    const auto typesOf = [this, &before] {
        QList<mode_t> types;
        for (const QString &each : before) {
            struct stat status = {};
            types.append(lstat(m_folder->native(each).constData(), &status) == 0 ? status.st_mode : 0);
        }
        return types;
    };
    const QList<mode_t> typesBefore = typesOf();
    QVERIFY(!writeFile(m_folder->path(name), "new"));
    QCOMPARE(m_folder->names(), before);
    QCOMPARE(typesOf(), typesBefore);
    QCOMPARE(m_folder->content(u"file"_s), "content");
    QVERIFY(QDir(m_folder->path(u"folder"_s)).isEmpty());
}

QTEST_APPLESS_MAIN(TestWriteFileFaults)
#include "tst_writefile_faults.moc"
