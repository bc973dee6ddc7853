// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QTest>

#include "tests/support/corruption.h"
#include "tests/support/require.h"
#include "tests/support/sampletimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/cbrfile.h"

using namespace Qt::StringLiterals;

class TestCbrReadFaults : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void brokenFiles_data();
    void brokenFiles();
    void earlierFaultIsTold();
    void productsBeforeTheFaultAreLeft();
    void truncations_data() { cbr::addModelRows(); }
    void truncations();
    void changedBytes_data();
    void changedBytes();
};

namespace {

const QString crcFault = u"Invalid menu file CRC!"_s;
const QString headerFault = u"Invalid header size!"_s;
const QString versionFault = u"Invalid menu file version!"_s;
const QString productSizeFault = u"Invalid product size value!"_s;
const QString countFault = u"Invalid total products value!"_s;
const QString modelFault = u"Uknown cabinet model!"_s;
const QString daypartFault = u"Daypart read failed!"_s;
const QString indexFault = u"Invalid daypart index detected!"_s;

QString productFault(qsizetype index)
{
    return u"Product read failed! Index =%1"_s.arg(index);
}

QString faultOf(const QByteArray &bytes)
{
    timerbar::Menu menu;
    return timerbar::readMenu(bytes, menu);
}

// 13 bytes of header, 2 products, 6 records of 9 bytes.
QByteArray goodFile()
{
    return cbr::manyInBins(u"KTR22"_s, 2).bytes();
}

constexpr qsizetype daypartsAt = cbr::headerSize + 2 * cbr::productSize;

QByteArray cutAt(qsizetype length)
{
    return cbr::withChecksum(goodFile().first(length));
}

QByteArray withModel(int rows, int columns)
{
    return cbr::withByte(cbr::withByte(goodFile(), 6, rows), 7, columns);
}

} // namespace

void TestCbrReadFaults::brokenFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::newRow("whole") << goodFile() << QString();
    QTest::newRow("empty file") << QByteArray() << crcFault;
    QTest::newRow("one byte") << QByteArray(1, '\xff') << crcFault;
    QTest::newRow("two bytes, wrong checksum") << QByteArray("\0\0", 2) << crcFault;
    QTest::newRow("two bytes, right checksum") << QByteArray("\xff\xff") << headerFault;
    QTest::newRow("12 bytes") << cutAt(12) << headerFault;
    QTest::newRow("header alone") << cutAt(13) << productFault(0);
    QTest::newRow("checksum of other bytes") << goodFile().append('\0') << crcFault;
    QTest::newRow("checksum with its bytes swapped")
        << goodFile().first(1).prepend(goodFile()[1]).append(goodFile().sliced(2)) << crcFault;
    QTest::newRow("text") << QByteArray("{ \"header\": 1 }") << crcFault;
    for (const auto &[major, minor] : {std::pair{2, 0}, {3, 1}, {4, 0}, {0, 3}, {0, 0}, {3, 255}})
        QTest::addRow("version %d.%d", major, minor)
            << cbr::withByte(cbr::withByte(goodFile(), 4, major), 5, minor) << versionFault;
    for (const int size : {0, 38, 40, 255})
        QTest::addRow("product size %d", size) << cbr::withByte(goodFile(), 10, size) << productSizeFault;
    for (const int count : {101, 128, 255})
        QTest::addRow("%d products", count) << cbr::withByte(goodFile(), 9, count) << countFault;
    QTest::newRow("100 products announced") << cbr::withByte(goodFile(), 9, 100) << productFault(3);
    for (const auto &[rows, columns] : {std::pair{0, 0},
                                        {2, 0},
                                        {0, 2},
                                        {2, 1},
                                        {2, 5},
                                        {3, 3},
                                        {4, 3},
                                        {4, 4},
                                        {5, 2},
                                        {1, 2},
                                        {22, 22},
                                        {255, 255}})
        QTest::addRow("%d rows, %d columns", rows, columns) << withModel(rows, columns) << modelFault;
    QTest::newRow("first product cut") << cutAt(13 + 38) << productFault(0);
    QTest::newRow("second product missing") << cutAt(13 + 39) << productFault(1);
    QTest::newRow("no day parts") << cutAt(daypartsAt) << daypartFault;
    QTest::newRow("last day part cut") << cutAt(goodFile().size() - 1) << daypartFault;
    QTest::newRow("a larger model's day parts missing") << withModel(2, 3) << daypartFault;
    for (const int place : {0, 5})
        QTest::addRow("day part 6 in record %d", place)
            << cbr::withByte(goodFile(), daypartsAt + place * 9, 6) << indexFault;
    QTest::newRow("day part 255") << cbr::withByte(goodFile(), daypartsAt, 255) << indexFault;
}

void TestCbrReadFaults::brokenFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    QCOMPARE(faultOf(bytes), message);
}

// Every two of the faults in one file, in the order in which they are looked for.
void TestCbrReadFaults::earlierFaultIsTold()
{
    struct Fault
    {
        QString message;
        std::function<QByteArray(const QByteArray &)> make; // the checksum stays right
    };
    const auto byteIs = [](qsizetype offset, int value) {
        return [=](const QByteArray &bytes) { return cbr::withByte(bytes, offset, value); };
    };
    const auto cut = [](qsizetype length) {
        return [=](const QByteArray &bytes) {
            return cbr::withChecksum(bytes.first(qMin(length, bytes.size())));
        };
    };
    const QList<Fault> faults{
        {headerFault, cut(12)},
        {versionFault, byteIs(5, 1)},
        {productSizeFault, byteIs(10, 3)},
        {countFault, byteIs(9, 101)},
        {modelFault, byteIs(6, 9)},
        {productFault(0), cut(20)},
        {productFault(1), cut(60)},
        {indexFault, byteIs(daypartsAt, 6)},
        {daypartFault, cut(daypartsAt + 17)},
    };
    for (qsizetype first = 0; first < faults.size(); ++first) {
        QCOMPARE(faultOf(faults[first].make(goodFile())), faults[first].message);
        for (qsizetype second = first + 1; second < faults.size(); ++second) {
            const QByteArray bytes = faults[first].make(faults[second].make(goodFile()));
            QCOMPARE(faultOf(bytes), faults[first].message);
        }
        QByteArray wrongSum = faults[first].make(goodFile());
        wrongSum[0] = static_cast<char>(wrongSum[0] ^ 1);
        QCOMPARE(faultOf(wrongSum), crcFault);
    }
}

void TestCbrReadFaults::productsBeforeTheFaultAreLeft()
{
    timerbar::Menu menu;
    QCOMPARE(timerbar::readMenu(cutAt(13 + 39 + 20), menu), productFault(1));
    QCOMPARE(menu.products.size(), std::size_t(1));
    QCOMPARE(menu.products[0]->get_productId(), 0);
    timerbar::Menu untouched;
    QCOMPARE(timerbar::readMenu(withModel(3, 3), untouched), modelFault);
    QCOMPARE(untouched.model, u"KTR22"_s);
    QVERIFY(untouched.products.empty());
}

namespace {

QString faultOfLength(qsizetype length, const cbr::Menu &file)
{
    if (length < 2)
        return crcFault;
    if (length < cbr::headerSize)
        return headerFault;
    const qsizetype product = (length - cbr::headerSize) / cbr::productSize;
    return product < file.products.size() ? productFault(product) : daypartFault;
}

} // namespace

void TestCbrReadFaults::truncations()
{
    QFETCH(QString, model);
    const cbr::Menu file = cbr::manyInBins(model, 3);
    forEachTruncation(file.bytes(), [&file](const QByteArray &cutFile) {
        REQUIRE_EQUAL(faultOf(cutFile), crcFault);
        REQUIRE_EQUAL(faultOf(cbr::withChecksum(cutFile)), faultOfLength(cutFile.size(), file));
    });
    QCOMPARE(faultOf(file.bytes()), QString());
}

namespace {

void checkSane(const timerbar::Menu &menu)
{
    const timerbar::CabinetShape shape = menu.shape();
    REQUIRE(timerbar::cabinetModels().contains(menu.model));
    REQUIRE(menu.products.size() <= 100);
    for (std::size_t i = 0; i < menu.products.size(); ++i)
        REQUIRE_EQUAL(menu.products[i]->get_productId(), static_cast<int>(i));
    for (const timerbar::DaypartCells &cells : menu.dayparts) {
        for (int row = 0; row < timerbar::maxRows; ++row) {
            for (int column = 0; column < timerbar::maxColumns; ++column) {
                const int cell = cells[row][column];
                const bool exists = row < shape.rows && column < shape.columns();
                REQUIRE(cell == timerbar::emptyCell || (exists && menu.product(cell)));
            }
        }
    }
}

// Whether the file was taken.
bool checkMessageOrSaneMenu(const QByteArray &bytes)
{
    const QStringList messages{versionFault, productSizeFault, countFault,
                               modelFault,   daypartFault,     indexFault};
    timerbar::Menu menu;
    const QString fault = timerbar::readMenu(bytes, menu);
    if (fault.isEmpty())
        checkSane(menu);
    else if (!messages.contains(fault) && !fault.startsWith(u"Product read failed! Index ="_s))
        require::fail(u"Unknown message: "_s + fault, {__FILE__, __LINE__});
    return fault.isEmpty();
}

} // namespace

void TestCbrReadFaults::changedBytes_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("products");
    QTest::newRow("KTR22 without products") << u"KTR22"_s << 0;
    QTest::newRow("KTR23") << u"KTR23"_s << 1;
    QTest::newRow("KTR34") << u"KTR34"_s << 2;
}

// Any other value in any byte: without its checksum no file is taken.
void TestCbrReadFaults::changedBytes()
{
    QFETCH(QString, model);
    QFETCH(int, products);
    const QByteArray bytes = cbr::manyInBins(model, products).bytes();
    int taken = 0;
    int refused = 0;
    for (qsizetype i = 0; i < bytes.size() && !QTest::currentTestFailed(); ++i) {
        for (int change = 1; change < 256; ++change) {
            QByteArray changed = bytes;
            changed[i] = static_cast<char>(bytes[i] ^ change);
            QCOMPARE(faultOf(changed), crcFault);
            if (i >= 2)
                ++(checkMessageOrSaneMenu(cbr::withChecksum(changed)) ? taken : refused);
        }
    }
    QVERIFY(taken > 0 && refused > 0);
}

QTEST_APPLESS_MAIN(TestCbrReadFaults)
#include "tst_cbr_read_faults.moc"
