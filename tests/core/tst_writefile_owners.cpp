// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QTest>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include "model/files.h"
#include "tests/support/hardship.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

struct stat statusOf(const QByteArray &path)
{
    struct stat status = {};
    if (stat(path.constData(), &status) != 0)
        qFatal("%s cannot be looked at", path.constData());
    return status;
}

/// A group other than the one that new files get: any for root, else another one of the user's; the same one
/// where the user has no other.
gid_t anotherGroup()
{
    if (geteuid() == 0)
        return 20;
    QList<gid_t> groups(getgroups(0, nullptr));
    const int count = getgroups(int(groups.size()), groups.data());
    for (int i = 0; i < count; ++i) {
        if (groups[i] != getegid())
            return groups[i];
    }
    return getegid();
}

} // namespace

/// A file that several people share, or that has several names, stays the file that it is.
class TestWriteFileOwners : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_folder.reset(); }
    void sharedByGroup();
    void someoneElses();
    void sharedByGroupBehindALink();
    void severalNames();
    void ownFileIsReplacedWhole();
    void nothingIsLeftBeside();
    void failureRestoresSharedFile();

private:
    [[nodiscard]] QByteArray native() const { return m_folder->native(u"a.json"_s); }

    std::unique_ptr<TestFolder> m_folder;
};

void TestWriteFileOwners::init()
{
    failOnWarnings();
    m_folder = std::make_unique<TestFolder>();
    QVERIFY(m_folder->isValid());
    m_folder->make(u"a.json"_s, "old and longer");
}

void TestWriteFileOwners::sharedByGroup()
{
    const gid_t group = anotherGroup();
    QCOMPARE(chown(native().constData(), uid_t(-1), group), 0);
    QCOMPARE(chmod(native().constData(), 0660), 0);
    const struct stat before = statusOf(native());
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), "new"));
    QCOMPARE(m_folder->content(u"a.json"_s), "new");
    const struct stat after = statusOf(native());
    QCOMPARE(after.st_gid, group);
    QCOMPARE(after.st_uid, before.st_uid);
    QCOMPARE(after.st_mode, before.st_mode);
}

// Root saves the file of an ordinary user, or an ordinary user a file of that user: it keeps its owner either
// way.
void TestWriteFileOwners::someoneElses()
{
    const uid_t owner = geteuid() == 0 ? 65534 : geteuid();
    QCOMPARE(chown(native().constData(), owner, gid_t(-1)), 0);
    const struct stat before = statusOf(native());
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), "new"));
    QCOMPARE(m_folder->content(u"a.json"_s), "new");
    const struct stat after = statusOf(native());
    QCOMPARE(after.st_uid, owner);
    QCOMPARE(after.st_gid, before.st_gid);
    if (owner != geteuid())
        QCOMPARE(after.st_ino, before.st_ino);
}

// New files in the link's folder get the group, those beside the file itself do not.
void TestWriteFileOwners::sharedByGroupBehindALink()
{
    const gid_t group = anotherGroup();
    const QByteArray folder = m_folder->native(u"links"_s);
    const QByteArray linked = folder + "/b.json";
    QCOMPARE(mkdir(folder.constData(), 0770), 0);
    QCOMPARE(chown(folder.constData(), uid_t(-1), group), 0);
    QCOMPARE(chmod(folder.constData(), 02770), 0);
    QCOMPARE(chown(native().constData(), uid_t(-1), group), 0);
    QCOMPARE(symlink(native().constData(), linked.constData()), 0);
    QVERIFY(writeFile(QFile::decodeName(linked), "new"));
    QCOMPARE(m_folder->content(u"a.json"_s), "new");
    QCOMPARE(statusOf(native()).st_gid, group);
}

void TestWriteFileOwners::severalNames()
{
    QCOMPARE(link(native().constData(), m_folder->native(u"b.json"_s).constData()), 0);
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), "new"));
    QCOMPARE(m_folder->content(u"b.json"_s), "new");
    QCOMPARE(statusOf(native()).st_nlink, nlink_t(2));
    QCOMPARE(m_folder->names(), (QStringList{u"a.json"_s, u"b.json"_s}));
}

void TestWriteFileOwners::ownFileIsReplacedWhole()
{
    const ino_t before = statusOf(native()).st_ino;
    QFile reader(m_folder->path(u"a.json"_s));
    QVERIFY(reader.open(QIODevice::ReadOnly)); // keeps the old file's number from being given again
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), "new"));
    QVERIFY(statusOf(native()).st_ino != before);
}

void TestWriteFileOwners::nothingIsLeftBeside()
{
    QCOMPARE(chown(native().constData(), uid_t(-1), anotherGroup()), 0);
    QVERIFY(writeFile(m_folder->path(u"a.json"_s), "new"));
    QCOMPARE(m_folder->names(), QStringList{u"a.json"_s});
}

void TestWriteFileOwners::failureRestoresSharedFile()
{
    QCOMPARE(link(native().constData(), m_folder->native(u"b.json"_s).constData()), 0);
    bool limited = false;
    bool written = true;
    {
        const FileSizeLimit limit(20);
        limited = limit.isActive();
        written = writeFile(m_folder->path(u"a.json"_s), QByteArray(21, 'n'));
    }
    QVERIFY(limited);
    QVERIFY(!written);
    QCOMPARE(m_folder->content(u"b.json"_s), "old and longer");
}

QTEST_APPLESS_MAIN(TestWriteFileOwners)
#include "tst_writefile_owners.moc"
