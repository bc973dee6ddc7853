// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QTest>

#include "holding/qhximport.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// What old menus are refused for, and in which order.
class TestQhxImportFaults : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void soundFile();
    void faults_data();
    void faults();
    void firstFaultIsReported();
    void headerSizes();
    void revisions();
    void counts_data();
    void counts();
    void offsets_data();
    void offsets();
    void sectionsInAnyOrder();
    void recordsAreReadInOrder();
    void noEntriesNeedNoPlace();
};

namespace {

struct Fault
{
    QString message;
    std::function<void(qhx::File &)> make;
};

constexpr quint32 beyond = 1'000'000;

// In the order in which they are to be noticed. The sample has three entries, records 2 to 4.
const QList<Fault> &allFaults()
{
    static const QList<Fault> all{
        {u"Invalid file header CRC!"_s, [](qhx::File &file) { file.brokenChecksums.append(0); }},
        {u"Unsupported file revision!"_s, [](qhx::File &file) { file.revision = 4; }},
        {u"Invalid products count!"_s, [](qhx::File &file) { file.count = 101; }},
        {u"Invalid configuration size!"_s, [](qhx::File &file) { file.configurationOffset = beyond; }},
        {u"Invalid configuration CRC!"_s, [](qhx::File &file) { file.brokenChecksums.append(1); }},
        {u"Invalid product size!"_s, [](qhx::File &file) { file.entriesOffset = beyond; }},
        {u"Invalid product CRC!"_s, [](qhx::File &file) { file.brokenChecksums.append(3); }},
        {u"Invalid daypart size!"_s, [](qhx::File &file) { file.daypartsOffset = beyond; }},
        {u"Invalid daypart CRC!"_s, [](qhx::File &file) { file.brokenChecksums.append(6); }},
    };
    return all;
}

QString faultOf(const QByteArray &bytes)
{
    Menu menu;
    return importQhxMenu(bytes, menu);
}

QString faultOf(const qhx::File &file)
{
    return faultOf(file.bytes());
}

} // namespace

void TestQhxImportFaults::soundFile()
{
    QCOMPARE(faultOf(qhx::sample()), QString());
    QCOMPARE(qhx::sealed(QByteArray(2, 0) + "123456789").first(2), QByteArray("\x37\x4B"));
}

void TestQhxImportFaults::faults_data()
{
    QTest::addColumn<qsizetype>("index");
    for (qsizetype i = 0; i < allFaults().size(); ++i)
        QTest::newRow(qPrintable(allFaults()[i].message)) << i;
}

void TestQhxImportFaults::faults()
{
    QFETCH(qsizetype, index);
    qhx::File file = qhx::sample();
    allFaults()[index].make(file);
    QCOMPARE(faultOf(file), allFaults()[index].message);
}

void TestQhxImportFaults::firstFaultIsReported()
{
    for (qsizetype first = 0; first < allFaults().size(); ++first) {
        for (qsizetype second = first + 1; second < allFaults().size(); ++second) {
            qhx::File file = qhx::sample();
            allFaults()[second].make(file);
            allFaults()[first].make(file);
            QCOMPARE(faultOf(file), allFaults()[first].message);
        }
    }
}

void TestQhxImportFaults::headerSizes()
{
    const QByteArray zeros(1000, '\0');
    for (qsizetype size = 0; size < 18; ++size)
        QCOMPARE(faultOf(zeros.first(size)), u"Invalid file header size!"_s);
    QCOMPARE(faultOf(zeros.first(18)), u"Invalid file header CRC!"_s);
    QCOMPARE(faultOf(zeros), u"Invalid file header CRC!"_s);
}

void TestQhxImportFaults::revisions()
{
    qhx::File file = qhx::sample();
    for (int revision = 0; revision <= 0xFFFF; ++revision) {
        file.revision = quint16(revision);
        QCOMPARE(faultOf(file), revision == 5 ? QString() : u"Unsupported file revision!"_s);
    }
}

void TestQhxImportFaults::counts_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("fault");
    QTest::newRow("none") << 0 << 0 << QString();
    QTest::newRow("fewer than there are") << 3 << 2 << QString();
    QTest::newRow("one more than fits into the file") << 3 << 5 << u"Invalid product size!"_s;
    QTest::newRow("100") << 100 << 100 << QString();
    QTest::newRow("101") << 101 << 101 << u"Invalid products count!"_s;
    QTest::newRow("101 announced") << 3 << 101 << u"Invalid products count!"_s;
    QTest::newRow("255") << 3 << 255 << u"Invalid products count!"_s;
}

void TestQhxImportFaults::counts()
{
    QFETCH(int, entries);
    QFETCH(int, count);
    QFETCH(QString, fault);
    qhx::File file;
    for (int i = 0; i < entries; ++i)
        file.entries.append(qhx::Entry{.id = quint32(i + 1)});
    file.count = quint8(count);
    // Where the records end, the file ends too.
    QByteArray bytes = file.bytes();
    if (count > entries) {
        file.daypartsOffset = qhx::headerSize;
        bytes = file.bytes().first(qhx::recordOffsets(entries)[2 + entries]);
    }
    Menu menu;
    QCOMPARE(importQhxMenu(bytes, menu), fault);
    if (fault.isEmpty())
        QCOMPARE(qsizetype(menu.products.size()), count);
}

void TestQhxImportFaults::offsets_data()
{
    QTest::addColumn<quint32>("offset");
    const auto end = quint32(qhx::sample().bytes().size());
    QTest::newRow("at the end") << end;
    QTest::newRow("one byte before the end") << end - 1;
    QTest::newRow("beyond the end") << end + 1;
    QTest::newRow("largest positive") << 0x7FFFFFFFU;
    QTest::newRow("smallest negative") << 0x80000000U;
    QTest::newRow("so that the record's end wraps round to the start") << 0U - 26U;
    QTest::newRow("so that the last byte wraps round") << 0U - 82U;
    QTest::newRow("so that an entry's end wraps round") << 0U - 134U;
    QTest::newRow("largest") << 0xFFFFFFFFU;
}

void TestQhxImportFaults::offsets()
{
    QFETCH(quint32, offset);
    qhx::File file = qhx::sample();
    file.configurationOffset = offset;
    QCOMPARE(faultOf(file), u"Invalid configuration size!"_s);
    file = qhx::sample();
    file.entriesOffset = offset;
    QCOMPARE(faultOf(file), u"Invalid product size!"_s);
    file = qhx::sample();
    file.daypartsOffset = offset;
    QCOMPARE(faultOf(file), u"Invalid daypart size!"_s);
}

// Only the offsets say where a section is; two may even be the same bytes.
void TestQhxImportFaults::sectionsInAnyOrder()
{
    const qhx::File file = qhx::sample();
    const QList<qsizetype> offsets = qhx::recordOffsets(file.entries.size());
    const QByteArray bytes = file.bytes();
    const QByteArray configuration = bytes.sliced(offsets[1], qhx::configurationSize);
    const QByteArray entries = bytes.sliced(offsets[2], 3 * qhx::entrySize);
    const QByteArray dayparts = bytes.sliced(offsets[5]);
    qhx::File moved = file;
    moved.daypartsOffset = quint32(qhx::headerSize + 5);
    moved.entriesOffset = quint32(*moved.daypartsOffset + dayparts.size());
    moved.configurationOffset = quint32(*moved.entriesOffset + entries.size() + 1);
    const QByteArray turned =
        moved.bytes().first(qhx::headerSize) + "12345" + dayparts + entries + "6" + configuration;
    Menu menu;
    QCOMPARE(importQhxMenu(turned, menu), QString());
    QCOMPARE(menu.configuration.model, u"KTR54"_s);
    QCOMPARE(qsizetype(menu.products.size()), 2);
    QCOMPARE(menu.dayparts[1].bins[4][0], 7);
    QCOMPARE(faultOf(turned.chopped(1)), u"Invalid configuration size!"_s);
}

void TestQhxImportFaults::recordsAreReadInOrder()
{
    const qhx::File file = qhx::sample();
    const QList<qsizetype> offsets = qhx::recordOffsets(file.entries.size());
    qhx::File broken = file;
    broken.brokenChecksums = {2};
    QCOMPARE(faultOf(broken.bytes().first(offsets[4])), u"Invalid product CRC!"_s);
    broken.brokenChecksums = {4};
    QCOMPARE(faultOf(broken.bytes().first(offsets[4])), u"Invalid product size!"_s);
    broken.brokenChecksums = {5};
    QCOMPARE(faultOf(broken.bytes().chopped(1)), u"Invalid daypart CRC!"_s);
    broken.brokenChecksums = {6};
    QCOMPARE(faultOf(broken.bytes().chopped(1)), u"Invalid daypart size!"_s);
    // A record that would be skipped or discarded has to be whole all the same.
    qhx::File skipped = file;
    skipped.entries[1].kind = 'x';
    skipped.brokenChecksums = {3};
    QCOMPARE(faultOf(skipped), u"Invalid product CRC!"_s);
    skipped.entries[1] = {.id = 0};
    QCOMPARE(faultOf(skipped), u"Invalid product CRC!"_s);
}

void TestQhxImportFaults::noEntriesNeedNoPlace()
{
    qhx::File file;
    file.entriesOffset = 0xFFFFFFFF;
    Menu menu;
    QCOMPARE(importQhxMenu(file.bytes(), menu), QString());
    QVERIFY(menu.products.empty() && menu.groups.empty());
}

QTEST_APPLESS_MAIN(TestQhxImportFaults)
#include "tst_qhximport_faults.moc"
