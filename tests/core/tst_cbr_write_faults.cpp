// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QTest>

#include "tests/core/failingdevice.h"
#include "tests/support/hardship.h"
#include "tests/support/sampletimerbar.h"
#include "tests/support/testfolder.h"
#include "tests/support/warnings.h"
#include "timerbar/cbrfile.h"

using namespace Qt::StringLiterals;

class TestCbrWriteFaults : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void deviceFailsAfter_data();
    void deviceFailsAfter();
    void sequentialDeviceTakesTheHeaderLast();
    void deviceThatCannotSeek_data();
    void deviceThatCannotSeek();
    void fullDevice_data();
    void fullDevice();
    void fullDisk_data();
    void fullDisk();
};

namespace {

const QString productFault = u"Failed to write product info to the file"_s;
const QString daypartFault = u"Failed to write daypart info to the file"_s;
const QString headerFault = u"Failed to write header info to the file"_s;

cbr::Menu fileOf(int products)
{
    return cbr::manyInBins(u"KTR23"_s, products);
}

// The message after so many bytes: products come first, the header last.
QString faultAfter(qsizetype bytes, const cbr::Menu &file)
{
    const qsizetype daypartsAt = file.products.size() * cbr::productSize;
    const qsizetype headerAt = daypartsAt + 6 * file.daypartRecord(0).size();
    if (bytes < daypartsAt)
        return productFault;
    if (bytes < headerAt)
        return daypartFault;
    return bytes < headerAt + cbr::headerSize ? headerFault : QString();
}

} // namespace

Q_DECLARE_METATYPE(FailingDevice::Kind)

void TestCbrWriteFaults::deviceFailsAfter_data()
{
    using Kind = FailingDevice::Kind;
    QTest::addColumn<FailingDevice::Kind>("kind");
    QTest::addColumn<int>("products");
    for (const int products : {0, 1, 3}) {
        QTest::addRow("cuts short, %d products", products) << Kind::CutsShort << products;
        QTest::addRow("refuses, %d products", products) << Kind::Refuses << products;
        QTest::addRow("sequential, %d products", products) << Kind::Sequential << products;
    }
}

void TestCbrWriteFaults::deviceFailsAfter()
{
    QFETCH(FailingDevice::Kind, kind);
    QFETCH(int, products);
    const cbr::Menu file = fileOf(products);
    const timerbar::Menu menu = sample::timerBarMenu(file);
    const qsizetype size = file.bytes().size();
    for (qsizetype room = 0; room <= size + 1; ++room) {
        FailingDevice device(kind, room);
        QCOMPARE(timerbar::writeMenu(device, menu), faultAfter(room, file));
        QVERIFY(device.content().size() <= qMin(room + cbr::headerSize, size));
    }
}

void TestCbrWriteFaults::sequentialDeviceTakesTheHeaderLast()
{
    const cbr::Menu file = fileOf(2);
    FailingDevice device(FailingDevice::Kind::Sequential, 10'000);
    QCOMPARE(timerbar::writeMenu(device, sample::timerBarMenu(file)), QString());
    const QByteArray bytes = file.bytes();
    QCOMPARE(device.content().toHex(' '),
             bytes.sliced(cbr::headerSize).append(bytes.first(cbr::headerSize)).toHex(' '));
}

namespace {

// Random access by what it says, but only so many seeks succeed.
class UnseekableDevice final : public QIODevice
{
public:
    explicit UnseekableDevice(int seeks)
        : m_seeks(seeks)
    {
        open(QIODevice::WriteOnly);
    }
    bool seek(qint64 offset) override { return m_seeks-- > 0 && QIODevice::seek(offset); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override { return size; }

private:
    int m_seeks;
};

} // namespace

void TestCbrWriteFaults::deviceThatCannotSeek_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<int>("seeks");
    QTest::addColumn<QString>("message");
    QTest::newRow("before the first product") << 1 << 0 << productFault;
    QTest::newRow("before the first day part") << 0 << 0 << daypartFault;
    QTest::newRow("before the header") << 1 << 1 << headerFault;
    QTest::newRow("at all times") << 1 << 2 << QString();
}

void TestCbrWriteFaults::deviceThatCannotSeek()
{
    QFETCH(int, products);
    QFETCH(int, seeks);
    QFETCH(QString, message);
    UnseekableDevice device(seeks);
    QCOMPARE(timerbar::writeMenu(device, sample::timerBarMenu(fileOf(products))), message);
}

void TestCbrWriteFaults::fullDevice_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<QString>("message");
    QTest::newRow("with products") << 2 << productFault;
    QTest::newRow("without products") << 0 << daypartFault;
}

void TestCbrWriteFaults::fullDevice()
{
    QFETCH(int, products);
    QFETCH(QString, message);
    QFile device(u"/dev/full"_s);
    QVERIFY(device.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered));
    QCOMPARE(timerbar::writeMenu(device, sample::timerBarMenu(fileOf(products))), message);
}

void TestCbrWriteFaults::fullDisk_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("message");
    QTest::newRow("no room behind the header's place") << 13 << productFault;
    QTest::newRow("cut in the second product") << 13 + 39 + 1 << productFault;
    QTest::newRow("cut before the day parts") << 13 + 2 * 39 << daypartFault;
    QTest::newRow("cut in the last day part") << 13 + 2 * 39 + 6 * 13 - 1 << daypartFault;
    QTest::newRow("exactly enough") << 13 + 2 * 39 + 6 * 13 << QString();
}

void TestCbrWriteFaults::fullDisk()
{
    QFETCH(int, limit);
    QFETCH(QString, message);
    const TestFolder folder;
    const cbr::Menu file = fileOf(2);
    QFile device(folder.path(u"menu.cbr"_s));
    QString fault;
    bool limited = false;
    {
        const FileSizeLimit full(static_cast<rlim_t>(limit));
        limited = full.isActive() &&
                  device.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
        fault = timerbar::writeMenu(device, sample::timerBarMenu(file));
        device.close();
    }
    QVERIFY(limited);
    QCOMPARE(fault, message);
    if (message.isEmpty())
        QCOMPARE(folder.content(u"menu.cbr"_s).toHex(' '), file.bytes().toHex(' '));
}

QTEST_APPLESS_MAIN(TestCbrWriteFaults)
#include "tst_cbr_write_faults.moc"
