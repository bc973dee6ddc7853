// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QBuffer>
#include <QTest>

#include "tests/support/sampletimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/cbrfile.h"
#include "timerbar/newentries.h"

using namespace Qt::StringLiterals;

class TestCbrWrite : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void emptyMenuIsTheDocumentedFile();
    void goldenFiles_data() { cbr::addMenuRows(); }
    void goldenFiles();
    void lengthOfTheFile_data() { cbr::addModelRows(); }
    void lengthOfTheFile();
    void texts_data();
    void texts();
    void nameListWithoutNames();
    void onlyTheFirstNameIsWritten();
    void times_data();
    void times();
    void temperatures_data();
    void temperatures();
    void binsHoldIdsNotPlaces();
    void hiddenBinsAreNotWritten();
    void lowBytesAreWritten();
    void unknownModel_data();
    void unknownModel();
};

namespace {

QByteArray written(const timerbar::Menu &menu)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QString fault = timerbar::writeMenu(buffer, menu);
    return fault.isEmpty() ? buffer.data() : fault.toUtf8();
}

QByteArray writtenRecord(const ProductInfo &product)
{
    timerbar::Menu menu;
    menu.products.push_back(timerbar::duplicateOf(product, 0));
    return written(menu).sliced(cbr::headerSize, cbr::productSize);
}

} // namespace

void TestCbrWrite::emptyMenuIsTheDocumentedFile()
{
    const QByteArray daypart = "00 64 01 64 02 64 03 64";
    QByteArray expected = "01 00 03 00 02 02 00 00 27 43 00";
    for (const char index : QByteArray("012345"))
        expected += " 0" + QByteArray(1, index) + ' ' + daypart;
    const QByteArray bytes = written(timerbar::Menu());
    QCOMPARE(bytes.size(), 67);
    QCOMPARE(bytes.sliced(2).toHex(' '), expected);
    QCOMPARE(bytes.first(2).toHex(' '), "9d d2");
}

void TestCbrWrite::goldenFiles()
{
    QFETCH(QString, model);
    QFETCH(int, products);
    QFETCH(int, unit);
    const cbr::Menu file = cbr::manyInBins(model, products, unit);
    QCOMPARE(written(sample::timerBarMenu(file)).toHex(' '), file.bytes().toHex(' '));
}

void TestCbrWrite::lengthOfTheFile()
{
    QFETCH(QString, model);
    const qsizetype withoutProducts = 19 + 12 * cbr::model(model).bins.size(); // 67 for four bins
    for (const int count : {0, 1, 2, 100})
        QCOMPARE(written(sample::timerBarMenu(cbr::manyInBins(model, count))).size(),
                 withoutProducts + 39 * count);
}

void TestCbrWrite::texts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shortName");
    QTest::addColumn<QByteArray>("writtenName"); // without the zeros behind it
    QTest::addColumn<QByteArray>("writtenShortName");
    QTest::newRow("plain") << u"Bacon"_s << u"BACN"_s << QByteArray("Bacon") << QByteArray("\0B\0A\0C\0N", 8);
    QTest::newRow("nothing") << QString() << QString() << QByteArray() << QByteArray();
    QTest::newRow("lower-case short name")
        << u"bacon"_s << u"bacn"_s << QByteArray("bacon") << QByteArray("\0B\0A\0C\0N", 8);
    QTest::newRow("short short name") << u"Ham"_s << u"Hm"_s << QByteArray("Ham") << QByteArray("\0H\0M", 4);
    QTest::newRow("long short name") << u"Ham"_s << u"Hams!"_s << QByteArray("Ham")
                                     << QByteArray("\0H\0A\0M\0S", 8);
    QTest::newRow("25 characters") << u"1234567890123456789012345"_s << QString()
                                   << QByteArray("1234567890123456789012345") << QByteArray();
    QTest::newRow("26 characters") << u"12345678901234567890123456"_s << QString()
                                   << QByteArray("1234567890123456789012345") << QByteArray();
    QTest::newRow("Latin-1") << u"Cr\u00e8me \u00ff"_s << u"\u00e8\u00df"_s << QByteArray("Cr\xe8me \xff")
                             << QByteArray("\0\xc8\0S\0S", 6);
    QTest::newRow("beyond Latin-1") << u"a\u0100\u20ac\u0142b"_s << u"a\u20acb"_s << QByteArray("a\0\0\0b", 5)
                                    << QByteArray("\0A\0\0\0B", 6);
    QTest::newRow("beyond it in upper case") << u"\u00b5"_s
                                             << u"\u00b5\u00ff"
                                                "a"_s
                                             << QByteArray("\xb5") << QByteArray("\0\0\0\0\0A", 6);
    QTest::newRow("made longer by upper case, then cut")
        << QString() << u"abc\u00df"_s << QByteArray() << QByteArray("\0A\0B\0C\0S", 8);
    QTest::newRow("two units a character") << u"a\U0001f953"_s
                                              "b"_s
                                           << u"a\U0001f953"_s
                                              "b"_s
                                           << QByteArray("a\0\0b", 4) << QByteArray("\0A\0\0\0\0\0B", 8);
    QTest::newRow("blanks stay") << u" a  "_s << u" a "_s << QByteArray(" a  ") << QByteArray("\0 \0A\0 ", 6);
    QTest::newRow("NUL inside") << QString(u"a\0b"_s) << QString(u"a\0b"_s) << QByteArray("a\0b", 3)
                                << QByteArray("\0A\0\0\0B", 6);
}

void TestCbrWrite::texts()
{
    QFETCH(QString, name);
    QFETCH(QString, shortName);
    QFETCH(QByteArray, writtenName);
    QFETCH(QByteArray, writtenShortName);
    ProductInfo product;
    product.set_productName({name});
    product.set_productShortName(shortName);
    const QByteArray record = writtenRecord(product);
    QCOMPARE(record.sliced(6, 8).toHex(' '), writtenShortName.leftJustified(8, '\0').toHex(' '));
    QCOMPARE(record.sliced(14).toHex(' '), writtenName.leftJustified(25, '\0').toHex(' '));
}

void TestCbrWrite::nameListWithoutNames()
{
    ProductInfo product;
    product.set_productName({});
    QCOMPARE(writtenRecord(product).sliced(14), QByteArray(25, '\0'));
}

void TestCbrWrite::onlyTheFirstNameIsWritten()
{
    ProductInfo product;
    product.set_productName({u"Bacon"_s, u"Speck"_s});
    QCOMPARE(writtenRecord(product).sliced(14), QByteArray("Bacon").leftJustified(25, '\0'));
}

void TestCbrWrite::times_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QByteArray>("minutes");
    QTest::newRow("0") << 0 << QByteArray("00 00");
    QTest::newRow("59 s") << 59 << QByteArray("00 00");
    QTest::newRow("60 s") << 60 << QByteArray("00 01");
    QTest::newRow("119 s") << 119 << QByteArray("00 01");
    QTest::newRow("256 min") << 256 * 60 << QByteArray("01 00");
    QTest::newRow("8 h") << 8 * 3600 << QByteArray("01 e0");
    QTest::newRow("65535 min") << 65535 * 60 + 59 << QByteArray("ff ff");
    QTest::newRow("65536 min wraps") << 65536 * 60 << QByteArray("00 00");
    QTest::newRow("negative, toward zero") << -59 << QByteArray("00 00");
    QTest::newRow("-1 min") << -60 << QByteArray("ff ff");
}

void TestCbrWrite::times()
{
    QFETCH(int, seconds);
    QFETCH(QByteArray, minutes);
    ProductInfo product;
    product.set_holdTime(seconds);
    product.set_warningTime(120);
    QCOMPARE(writtenRecord(product).first(6).toHex(' '), minutes + " 00 00 00 02");
    product.set_holdTime(300);
    product.set_warningTime(seconds);
    QCOMPARE(writtenRecord(product).first(6).toHex(' '), "00 05 00 00 " + minutes);
}

void TestCbrWrite::temperatures_data()
{
    QTest::addColumn<int>("fahrenheit");
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("none") << 0 << QByteArray("00");
    QTest::newRow("negative") << -40 << QByteArray("00");
    QTest::newRow("98") << 98 << QByteArray("00");
    QTest::newRow("99") << 99 << QByteArray("00");
    QTest::newRow("100") << 100 << QByteArray("01");
    QTest::newRow("215") << 215 << QByteArray("74");
    QTest::newRow("354") << 354 << QByteArray("ff");
    QTest::newRow("355 wraps") << 355 << QByteArray("00");
    QTest::newRow("356 wraps") << 356 << QByteArray("01");
    QTest::newRow("100000") << 100000 << QByteArray("3d");
}

void TestCbrWrite::temperatures()
{
    QFETCH(int, fahrenheit);
    QFETCH(QByteArray, byte);
    ProductInfo product;
    product.set_upperTemp(fahrenheit);
    product.set_lowerTemp(101);
    QCOMPARE(writtenRecord(product).sliced(2, 2).toHex(' '), byte + " 02");
    product.set_upperTemp(102);
    product.set_lowerTemp(fahrenheit);
    QCOMPARE(writtenRecord(product).sliced(2, 2).toHex(' '), "03 " + byte);
}

void TestCbrWrite::binsHoldIdsNotPlaces()
{
    cbr::Menu file{.products = cbr::manyProducts(3), .dayparts = {{{2, 1, 100, 2}}}};
    timerbar::Menu menu = sample::timerBarMenu(file);
    menu.products.erase(menu.products.begin());
    file.products.removeFirst();
    QCOMPARE(written(menu).toHex(' '), file.bytes().toHex(' '));
}

void TestCbrWrite::hiddenBinsAreNotWritten()
{
    for (const cbr::Model &model : cbr::models()) {
        const cbr::Menu file{.model = model.name, .products = cbr::manyProducts(1)};
        timerbar::Menu menu = sample::timerBarMenu(file);
        for (timerbar::DaypartCells &cells : menu.dayparts) {
            for (int row = 0; row < cells.size(); ++row) {
                for (int column = 0; column < cells[row].size(); ++column) {
                    if (row >= model.rows || column >= model.columns)
                        cells[row][column] = 0;
                }
            }
        }
        QCOMPARE(written(menu).toHex(' '), file.bytes().toHex(' '));
    }
}

void TestCbrWrite::lowBytesAreWritten()
{
    timerbar::Menu menu;
    menu.temperatureUnit = 0x102;
    menu.dayparts[0][0][0] = 0x1FE;
    menu.dayparts[5][1][1] = -1;
    const QByteArray bytes = written(menu);
    QCOMPARE(bytes[8], '\x02');
    QCOMPARE(bytes[cbr::headerSize + 1 + 2 * 2 + 1], '\xFE');
    QCOMPARE(bytes[cbr::headerSize + 5 * 9 + 1 + 2 * 1 + 1], '\xFF');
}

void TestCbrWrite::unknownModel_data()
{
    QTest::addColumn<QString>("model");
    QTest::newRow("none") << QString();
    QTest::newRow("another line's") << u"KTR33"_s;
    QTest::newRow("lower case") << u"ktr22"_s;
    QTest::newRow("trailing blank") << u"KTR22 "_s;
}

// It is written as a cabinet without bins, and no message tells.
void TestCbrWrite::unknownModel()
{
    QFETCH(QString, model);
    const cbr::Product product = cbr::manyProducts(1).constFirst();
    timerbar::Menu menu = sample::timerBarMenu({.products = {product}, .dayparts = {{{0, 0, 0, 0}}}});
    menu.model = model;
    const QByteArray expected = QByteArray::fromHex("0000 0100 0300 0000 00 01 27 3a00") + product.record() +
                                QByteArray::fromHex("000102030405");
    QCOMPARE(expected.size(), 13 + 39 + 6);
    QCOMPARE(written(menu).toHex(' '), cbr::withChecksum(expected).toHex(' '));
}

QTEST_APPLESS_MAIN(TestCbrWrite)
#include "tst_cbr_write.moc"
