// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QBuffer>
#include <QTest>

#include "tests/support/require.h"
#include "tests/support/sampletimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/cbrfile.h"
#include "timerbar/defaultproducts.h"

using namespace Qt::StringLiterals;

class TestCbrRead : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void goldenFiles_data() { cbr::addMenuRows(); }
    void goldenFiles();
    void texts_data();
    void texts();
    void highBytesOfShortNamesAreIgnored();
    void times_data();
    void times();
    void temperatures_data();
    void temperatures();
    void uncheckedBytes_data();
    void uncheckedBytes();
    void bytesBehindTheLastRecord();
    void cellsOfMissingProducts();
    void hundredProductsLeaveNoEmptyNumber();
    void daypartsInAnyOrder();
    void daypartsRepeated();
    void binsInAnyOrder();
    void binsRepeated();
    void binsThatTheCabinetLacks();
    void whatWasWrittenReadsBackEqual();
};

namespace {

timerbar::Menu read(const QByteArray &bytes)
{
    timerbar::Menu menu;
    const QString fault = timerbar::readMenu(bytes, menu);
    if (!fault.isEmpty())
        require::fail(fault, {__FILE__, __LINE__});
    return menu;
}

const ProductInfo &firstOf(const timerbar::Menu &menu)
{
    if (menu.products.empty())
        qFatal("No product was read");
    return *menu.products.front();
}

// The first product's record changed from an offset on.
QByteArray withRecordBytes(const QByteArray &bytes, qsizetype offset, const QByteArray &part)
{
    QByteArray changed = bytes;
    changed.replace(cbr::headerSize + offset, part.size(), part);
    return cbr::withChecksum(changed);
}

QByteArray oneProduct()
{
    return cbr::Menu{.products = cbr::manyProducts(1)}.bytes();
}

// The six records of a KTR22 with so many products replaced.
QByteArray withDayparts(int products, const QList<QByteArray> &records)
{
    const QByteArray bytes = cbr::Menu{.products = cbr::manyProducts(products)}.bytes();
    return cbr::withChecksum(bytes.first(cbr::headerSize + products * cbr::productSize) + records.join());
}

QByteArray record(int index, const QByteArray &pairs)
{
    return QByteArray(1, static_cast<char>(index)) + QByteArray::fromHex(pairs);
}

// The cells of a KTR22 as "top left, top right, bottom left, bottom right".
QList<int> cells(const timerbar::Menu &menu, int daypart)
{
    const timerbar::DaypartCells &all = menu.dayparts[daypart];
    return {all[0][0], all[0][1], all[1][0], all[1][1]};
}

const QByteArray noCells = "0064016402640364";
const QList<int> emptyCells{100, 100, 100, 100};

} // namespace

void TestCbrRead::goldenFiles()
{
    QFETCH(QString, model);
    QFETCH(int, products);
    QFETCH(int, unit);
    const cbr::Menu file = cbr::manyInBins(model, products, unit);
    QCOMPARE(sample::describe(read(file.bytes())), sample::describe(sample::timerBarMenu(file)));
}

void TestCbrRead::texts_data()
{
    QTest::addColumn<QByteArray>("bytes"); // zeros follow
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shortName"); // of the first four bytes
    QTest::newRow("nothing") << QByteArray() << QString() << QString();
    QTest::newRow("plain") << QByteArray("Bacon") << u"Bacon"_s << u"Baco"_s;
    QTest::newRow("lower case stays") << QByteArray("ham") << u"ham"_s << u"ham"_s;
    QTest::newRow("full") << QByteArray("1234567890123456789012345") << u"1234567890123456789012345"_s
                          << u"1234"_s;
    QTest::newRow("ends at NUL") << QByteArray("ab\0cd", 5) << u"ab"_s << u"ab"_s;
    QTest::newRow("starts with NUL") << QByteArray("\0ab", 3) << QString() << QString();
    QTest::newRow("trailing blanks go") << QByteArray("ab  ") << u"ab"_s << u"ab"_s;
    QTest::newRow("leading and inner ones stay") << QByteArray(" a b") << u" a b"_s << u" a b"_s;
    QTest::newRow("blanks before NUL go") << QByteArray("a \0b", 4) << u"a"_s << u"a"_s;
    QTest::newRow("only blanks") << QByteArray("    ") << QString() << QString();
    QTest::newRow("other white space stays") << QByteArray("a\t\xa0") << u"a\t\u00a0"_s << u"a\t\u00a0"_s;
    QTest::newRow("Latin-1") << QByteArray("\xc8\xff\x80\x01") << u"\u00c8\u00ff\u0080\u0001"_s
                             << u"\u00c8\u00ff\u0080\u0001"_s;
}

void TestCbrRead::texts()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(QString, shortName);
    const timerbar::Menu menu = read(cbr::Menu{.products = {{.name = bytes, .shortName = bytes}}}.bytes());
    QCOMPARE(firstOf(menu).get_productName(), QStringList{name});
    QCOMPARE(firstOf(menu).get_productShortName(), shortName);
}

void TestCbrRead::highBytesOfShortNamesAreIgnored()
{
    const QByteArray shortName("\x01H\xff"
                               "A\0M\x20\0",
                               8);
    QCOMPARE(firstOf(read(withRecordBytes(oneProduct(), 6, shortName))).get_productShortName(), u"HAM"_s);
}

void TestCbrRead::times_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("seconds");
    QTest::newRow("0") << QByteArray("\0\0", 2) << 0;
    QTest::newRow("1 min") << QByteArray("\0\x01", 2) << 60;
    QTest::newRow("256 min") << QByteArray("\x01\0", 2) << 256 * 60;
    QTest::newRow("32768 min") << QByteArray("\x80\0", 2) << 32768 * 60;
    QTest::newRow("65535 min") << QByteArray("\xff\xff", 2) << 65535 * 60;
}

void TestCbrRead::times()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, seconds);
    QCOMPARE(firstOf(read(withRecordBytes(oneProduct(), 0, bytes))).get_holdTime(), seconds);
    QCOMPARE(firstOf(read(withRecordBytes(oneProduct(), 4, bytes))).get_warningTime(), seconds);
}

void TestCbrRead::temperatures_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("fahrenheit");
    QTest::newRow("none") << 0 << 99;
    QTest::newRow("lowest") << 1 << 100;
    QTest::newRow("215") << 116 << 215;
    QTest::newRow("highest") << 255 << 354;
}

void TestCbrRead::temperatures()
{
    QFETCH(int, byte);
    QFETCH(int, fahrenheit);
    const timerbar::Menu upper = read(cbr::withByte(oneProduct(), cbr::headerSize + 2, byte));
    QCOMPARE(firstOf(upper).get_upperTemp(), fahrenheit);
    QCOMPARE(firstOf(upper).get_lowerTemp(), 254);
    const timerbar::Menu lower = read(cbr::withByte(oneProduct(), cbr::headerSize + 3, byte));
    QCOMPARE(firstOf(lower).get_upperTemp(), 100);
    QCOMPARE(firstOf(lower).get_lowerTemp(), fahrenheit);
}

void TestCbrRead::uncheckedBytes_data()
{
    QTest::addColumn<int>("offset");
    QTest::newRow("byte 2") << 2;
    QTest::newRow("byte 3") << 3;
    QTest::newRow("length, low") << 11;
    QTest::newRow("length, high") << 12;
}

void TestCbrRead::uncheckedBytes()
{
    QFETCH(int, offset);
    const cbr::Menu file = cbr::manyInBins(u"KTR34"_s, 3);
    const QStringList expected = sample::describe(sample::timerBarMenu(file));
    for (int value = 0; value < 256; ++value)
        QCOMPARE(sample::describe(read(cbr::withByte(file.bytes(), offset, value))), expected);
    for (int unit = 0; unit < 256; ++unit)
        QCOMPARE(read(cbr::withByte(file.bytes(), 8, unit)).temperatureUnit, unit);
}

void TestCbrRead::bytesBehindTheLastRecord()
{
    const cbr::Menu file = cbr::manyInBins(u"KTR42"_s, 2);
    const QStringList expected = sample::describe(sample::timerBarMenu(file));
    QByteArray bytes = file.bytes();
    for (int i = 0; i < 60; ++i) {
        bytes.append(static_cast<char>(i + 1));
        QCOMPARE(sample::describe(read(cbr::withChecksum(bytes))), expected);
    }
    timerbar::Menu menu;
    QCOMPARE(timerbar::readMenu(file.bytes() + 'x', menu), u"Invalid menu file CRC!"_s); // they count for it
}

void TestCbrRead::cellsOfMissingProducts()
{
    const QByteArray bytes =
        cbr::Menu{.products = cbr::manyProducts(2), .dayparts = {{{0, 1, 2, 3}, {99, 100, 101, 255}}}}
            .bytes();
    QCOMPARE(cells(read(bytes), 0), (QList<int>{100, 100, 0, 1}));
    QCOMPARE(cells(read(bytes), 1), emptyCells);
}

void TestCbrRead::hundredProductsLeaveNoEmptyNumber()
{
    const QByteArray bytes =
        cbr::Menu{.products = cbr::manyProducts(100), .dayparts = {{{98, 99, 100, 101}}}}.bytes();
    QCOMPARE(cells(read(bytes), 0), (QList<int>{100, 100, 98, 99}));
}

void TestCbrRead::daypartsInAnyOrder()
{
    QList<QByteArray> records;
    for (int index = 5; index >= 0; --index)
        records.append(
            record(index, "00" + QByteArray(1, static_cast<char>(index)).toHex() + "016402640364"));
    const timerbar::Menu menu = read(withDayparts(6, records));
    for (int index = 0; index < 6; ++index)
        QCOMPARE(cells(menu, index), (QList<int>{100, 100, index, 100}));
}

// The later record wins bin by bin; a day part without a record stays empty.
void TestCbrRead::daypartsRepeated()
{
    const timerbar::Menu menu = read(
        withDayparts(4, {record(2, "0000010102020303"), record(1, noCells), record(2, "0003090009000900"),
                         record(1, "0002016402640364"), record(1, "0301030203030302"), record(0, noCells)}));
    QCOMPARE(cells(menu, 2), (QList<int>{2, 3, 3, 1}));
    QCOMPARE(cells(menu, 1), (QList<int>{100, 2, 2, 100}));
    for (const int index : {0, 3, 4, 5})
        QCOMPARE(cells(menu, index), emptyCells);
}

void TestCbrRead::binsInAnyOrder()
{
    const timerbar::Menu menu =
        read(withDayparts(4, {record(0, "0303020201010000"), record(1, noCells), record(2, noCells),
                              record(3, noCells), record(4, noCells), record(5, noCells)}));
    QCOMPARE(cells(menu, 0), (QList<int>{2, 3, 0, 1}));
}

void TestCbrRead::binsRepeated()
{
    const timerbar::Menu menu = read(
        withDayparts(4, {record(0, "0100010101640102"), record(1, "0300030103020364"), record(2, noCells),
                         record(3, noCells), record(4, noCells), record(5, noCells)}));
    QCOMPARE(cells(menu, 0), (QList<int>{100, 100, 100, 2}));
    QCOMPARE(cells(menu, 1), emptyCells);
}

void TestCbrRead::binsThatTheCabinetLacks()
{
    const timerbar::Menu menu =
        read(withDayparts(4, {record(0, "04000501ff020303"), record(1, noCells), record(2, noCells),
                              record(3, noCells), record(4, noCells), record(5, noCells)}));
    QCOMPARE(cells(menu, 0), (QList<int>{100, 3, 100, 100}));
    for (const timerbar::DaypartCells &all : menu.dayparts) {
        for (int row = 0; row < timerbar::maxRows; ++row) {
            for (int column = 0; column < timerbar::maxColumns; ++column)
                QVERIFY((row < 2 && column < 2) || all[row][column] == timerbar::emptyCell);
        }
    }
}

void TestCbrRead::whatWasWrittenReadsBackEqual()
{
    timerbar::Menu menu = sample::timerBarMenu({.model = u"KTR23"_s, .unit = 1});
    menu.products = timerbar::defaultProducts();
    menu.dayparts[3][1][2] = 32;
    menu.dayparts[5][0][0] = 7;
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QCOMPARE(timerbar::writeMenu(buffer, menu), QString());
    }
    QCOMPARE(sample::describe(read(bytes)), sample::describe(menu));
}

QTEST_APPLESS_MAIN(TestCbrRead)
#include "tst_cbr_read.moc"
