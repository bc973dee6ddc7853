// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <limits>

#include <QTest>

#include "holding/qhximport.h"
#include "tests/support/cabinets.h"
#include "tests/support/languages.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// What old menus hold.
class TestQhxImport : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void modelCodes();
    void configuration();
    void product();
    void group();
    void kinds();
    void idsThatAreZero();
    void bitsAreKept();
    void fanSpeeds();
    void lidCodes();
    void bottomCodes();
    void zoneCodes_data();
    void zoneCodes();
    void names_data();
    void names();
    void orderOfEntries();
    void dayparts();
    void placeOfFileBin();
    void binOrder_data();
    void binOrder();
    void binsThatNoEntryHas();
};

namespace {

using Row = FixedList<int, maxSlots>;

void import(const qhx::File &file, Menu &menu)
{
    REQUIRE_EQUAL(importQhxMenu(file.bytes(), menu), QString());
}

// The only entry of a file, which is a product.
const ProductInfo &importEntry(Menu &menu, const qhx::Entry &entry, quint8 model = 8)
{
    qhx::File file;
    file.model = model;
    file.entries = {entry};
    import(file, menu);
    if (menu.products.size() != 1)
        qFatal("The product is missing");
    return *menu.products.front();
}

QString modelOf(int code)
{
    static const QHash<int, QString> models{{5, u"KTR52"_s}, {7, u"KTR42"_s},  {8, u"KTR22"_s},
                                            {9, u"KTR24"_s}, {10, u"KTR63"_s}, {11, u"KTR32"_s},
                                            {12, u"KTR63"_s}};
    return models.value(code, u"KTR54"_s);
}

} // namespace

void TestQhxImport::modelCodes()
{
    for (int code = 0; code <= 255; ++code) {
        qhx::File file;
        file.model = quint8(code);
        Menu menu;
        import(file, menu);
        QCOMPARE(menu.configuration.type, u"QHX"_s);
        QCOMPARE(menu.configuration.model, modelOf(code));
        QVERIFY(menu.shape().isKnown());
    }
}

// The other bytes of the configuration are full of ones here.
void TestQhxImport::configuration()
{
    for (const quint8 unit : {quint8(0), quint8(1)}) {
        qhx::File file;
        file.unit = unit;
        Menu menu;
        import(file, menu);
        QCOMPARE(menu.configuration.temperatureUnit, int(unit));
        QVERIFY(!menu.configuration.fanSpeedEnabled && !menu.configuration.resetTimeEnabled);
        QVERIFY(!menu.configuration.productIdEnabled && !menu.configuration.timerColorEnabled);
    }
}

void TestQhxImport::product()
{
    Menu menu;
    const ProductInfo &product = importEntry(menu, {.id = 0x01020304,
                                                    .name = "Bacon",
                                                    .holdTime = 86399,
                                                    .warningTime = 0x00010203,
                                                    .upperTemp = 215,
                                                    .lowerTemp = 185,
                                                    .lid = 2,
                                                    .bottom = 1,
                                                    .zone = 2,
                                                    .defaultIndex = 3,
                                                    .members = {1, 2, 3},
                                                    .fanSpeed = 77});
    QVERIFY(menu.groups.empty());
    QVERIFY(!product.get_isGroup() && !product.get_productLocked());
    QCOMPARE(product.get_productId(), 0x01020304);
    QCOMPARE(product.get_productName(), inEveryLanguage(u"Bacon"_s));
    QCOMPARE(product.get_holdTime(), 86399);
    QCOMPARE(product.get_warningTime(), 0x00010203);
    QCOMPARE(product.get_upperTemp(), 215);
    QCOMPARE(product.get_lowerTemp(), 185);
    QCOMPARE(product.get_lidType(), u"Vented"_s);
    QCOMPARE(product.get_bottomType(), u"False"_s);
    QCOMPARE(product.get_zoneSplits(), u"1/1"_s);
    QCOMPARE(product.get_fanSpeed(), 77);
    const ProductInfo untouched;
    QCOMPARE(product.get_resetTime(), untouched.get_resetTime());
    QCOMPARE(product.get_timerColor(), untouched.get_timerColor());
    QCOMPARE(product.get_productList(), untouched.get_productList());
    QCOMPARE(product.get_defaultIndex(), untouched.get_defaultIndex());
}

void TestQhxImport::group()
{
    qhx::File file;
    file.entries = {{.kind = 'g',
                     .id = 9,
                     .name = "Meats",
                     .holdTime = 3600,
                     .warningTime = 600,
                     .upperTemp = 215,
                     .lowerTemp = 185,
                     .lid = 1,
                     .bottom = 1,
                     .zone = 2,
                     .defaultIndex = 255,
                     .members = {5, 0, 7, 5},
                     .fanSpeed = 77}};
    Menu menu;
    import(file, menu);
    QVERIFY(menu.products.empty());
    QCOMPARE(qsizetype(menu.groups.size()), 1);
    const ProductInfo &group = *menu.groups.front();
    QVERIFY(group.get_isGroup());
    QCOMPARE(group.get_productId(), 9);
    QCOMPARE(group.get_productName(), inEveryLanguage(u"Meats"_s));
    QCOMPARE(group.get_upperTemp(), 215);
    QCOMPARE(group.get_lowerTemp(), 185);
    QCOMPARE(group.get_fanSpeed(), 77);
    QCOMPARE(group.get_lidType(), u"Solid"_s);
    QCOMPARE(group.get_zoneSplits(), u"1/1"_s);
    QCOMPARE(group.get_defaultIndex(), 255);
    QCOMPARE(group.get_productList(), (QList<int>{5, 0, 7, 5, 0, 0, 0, 0}));
    const ProductInfo untouched;
    QCOMPARE(group.get_holdTime(), untouched.get_holdTime());
    QCOMPARE(group.get_warningTime(), untouched.get_warningTime());
    QCOMPARE(group.get_bottomType(), untouched.get_bottomType());
}

void TestQhxImport::kinds()
{
    for (int kind = 0; kind <= 255; ++kind) {
        qhx::File file;
        file.entries = {{.kind = quint8(kind), .id = 3}, {.id = 4}};
        Menu menu;
        import(file, menu);
        QCOMPARE(qsizetype(menu.products.size()), kind == 0x70 ? 2 : 1);
        QCOMPARE(qsizetype(menu.groups.size()), kind == 0x67 ? 1 : 0);
        QCOMPARE(menu.products.back()->get_productId(), 4);
    }
}

void TestQhxImport::idsThatAreZero()
{
    qhx::File file;
    file.entries = {{.id = 0}, {.kind = 'g', .id = 0}, {.id = 4}, {.kind = 'g', .id = 5}, {.id = 0}};
    Menu menu;
    import(file, menu);
    QCOMPARE(qsizetype(menu.products.size()), 1);
    QCOMPARE(qsizetype(menu.groups.size()), 1);
    QCOMPARE(menu.products.front()->get_productId(), 4);
    QCOMPARE(menu.groups.front()->get_productId(), 5);
}

void TestQhxImport::bitsAreKept()
{
    constexpr int lowest = std::numeric_limits<int>::min();
    Menu menu;
    const ProductInfo &product = importEntry(menu, {.id = 0x80000000,
                                                    .holdTime = 0xFFFFFFFF,
                                                    .warningTime = 0x80000001,
                                                    .upperTemp = 0xFFFFFFFE,
                                                    .lowerTemp = 0x7FFFFFFF});
    QCOMPARE(product.get_productId(), lowest);
    QCOMPARE(product.get_holdTime(), -1);
    QCOMPARE(product.get_warningTime(), lowest + 1);
    QCOMPARE(product.get_upperTemp(), -2);
    QCOMPARE(product.get_lowerTemp(), std::numeric_limits<int>::max());
    qhx::File file;
    file.entries = {{.kind = 'g', .id = 0xFFFFFFFF, .members = {0x80000000, 0xFFFFFFFE}}};
    file.dayparts[0][0] = 0xFFFFFFFF;
    Menu other;
    import(file, other);
    QCOMPARE(other.groups.front()->get_productId(), -1);
    QCOMPARE(other.groups.front()->get_productList().first(3), (QList<int>{lowest, -2, 0}));
    QCOMPARE(other.dayparts[0].bins[1][0], -1);
}

void TestQhxImport::fanSpeeds()
{
    for (int speed = 0; speed <= 255; ++speed) {
        Menu menu;
        QCOMPARE(importEntry(menu, {.fanSpeed = quint8(speed)}).get_fanSpeed(), speed);
    }
}

void TestQhxImport::lidCodes()
{
    for (int code = 0; code <= 255; ++code) {
        const QString expected = code == 1 ? u"Solid"_s : code == 2 ? u"Vented"_s : u"None"_s;
        Menu menu;
        QCOMPARE(importEntry(menu, {.lid = quint8(code)}).get_lidType(), expected);
    }
}

void TestQhxImport::bottomCodes()
{
    for (int code = 0; code <= 255; ++code) {
        Menu menu;
        QCOMPARE(importEntry(menu, {.bottom = quint8(code)}).get_bottomType(),
                 code == 0 ? u"Normal"_s : u"False"_s);
    }
}

void TestQhxImport::zoneCodes_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("two bins a zone") << 8 << u"1/2"_s << u"1/1"_s;
    QTest::newRow("two zones of two bins") << 9 << u"1/2"_s << u"1/1"_s;
    QTest::newRow("three bins a zone") << 10 << u"1/3"_s << u"2/3"_s;
}

void TestQhxImport::zoneCodes()
{
    QFETCH(int, model);
    QFETCH(QString, first);
    QFETCH(QString, second);
    for (int code = 0; code <= 255; ++code) {
        const QString expected = code == 1 ? first : code == 2 ? second : code == 3 ? u"1/1"_s : u"1/2"_s;
        Menu menu;
        QCOMPARE(importEntry(menu, {.zone = quint8(code)}, quint8(model)).get_zoneSplits(), expected);
    }
}

void TestQhxImport::names_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    const QByteArray letters = QByteArray(8, 'x') + QByteArray(56, 'y');
    QTest::newRow("none") << QByteArray() << QString();
    QTest::newRow("ASCII") << QByteArray("Ham & Eggs") << u"Ham & Eggs"_s;
    QTest::newRow("ends at the first zero") << QByteArray("Ham\0Eggs", 8) << u"Ham"_s;
    QTest::newRow("63 bytes") << letters.first(63) << QString::fromLatin1(letters.first(63));
    QTest::newRow("64 bytes without a zero") << letters << QString::fromLatin1(letters);
    QTest::newRow("UTF-8") << QByteArray("K\xC3\xA4se \xE5\xAF\xBF\xE5\x8F\xB8") << u"Käse 寿司"_s;
    QTest::newRow("UTF-8 beyond 16 bits") << QByteArray("\xF0\x9F\x8D\xA3") << u"🍣"_s;
    QTest::newRow("Latin-1") << QByteArray("K\xE4se") << u"Käse"_s;
    QTest::newRow("Latin-1, the whole upper half")
        << QByteArray("\x80\x9F\xA0\xDF\xFF") << QString::fromLatin1("\x80\x9F\xA0\xDF\xFF");
    QTest::newRow("UTF-8 and Latin-1 mixed") << QByteArray("\xC3\xA4 \xE4") << u"Ã¤ ä"_s;
    QTest::newRow("64 bytes that end within a character")
        << QByteArray(63, 'x') + '\xC3' << QString(63, u'x') + u'Ã';
    QTest::newRow("ends within a character") << QByteArray("Caf\xC3") << u"CafÃ"_s;
    QTest::newRow("overlong UTF-8") << QByteArray("\xC0\xAF") << u"À¯"_s;
    QTest::newRow("blanks stay") << QByteArray(" Ham ") << u" Ham "_s;
}

void TestQhxImport::names()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    Menu menu;
    QCOMPARE(importEntry(menu, {.name = bytes}).get_productName(), inEveryLanguage(name));
}

void TestQhxImport::orderOfEntries()
{
    qhx::File file;
    file.entries = {{.kind = 'g', .id = 9}, {.id = 3}, {.id = 1}, {.kind = 'g', .id = 8}, {.id = 3}};
    Menu menu;
    import(file, menu);
    QList<int> products;
    QList<int> groups;
    for (const auto &entry : menu.products)
        products.append(entry->get_productId());
    for (const auto &entry : menu.groups)
        groups.append(entry->get_productId());
    QCOMPARE(products, (QList<int>{3, 1, 3}));
    QCOMPARE(groups, (QList<int>{9, 8}));
}

void TestQhxImport::dayparts()
{
    Menu menu;
    import(qhx::sample(), menu);
    QCOMPARE(menu.daypartCount, 2);
    QCOMPARE(menu.dayparts[0].names, inEveryLanguage(u"BREAKFAST"_s));
    QCOMPARE(menu.dayparts[1].names, inEveryLanguage(u"LUNCH/DINNER"_s));
    for (int i = 0; i < menu.dayparts.size(); ++i) {
        QCOMPARE(menu.dayparts[i].inUse, i < 2);
        QCOMPARE(menu.dayparts[i].bins == Daypart().bins, i >= 2);
    }
    QCOMPARE(menu.dayparts[0].bins[4], (Row{12, 0, 0, 12}));
    QCOMPARE(menu.dayparts[1].bins[0], (Row{7, 300, 7, 300}));
}

void TestQhxImport::placeOfFileBin()
{
    const CabinetShape shape = cabinetShape(u"ZPV"_s, u"ZPV43"_s); // 4 rows of 3 bins
    QVERIFY(holding::placeOfFileBin(shape, 0) == (Bin{3, 0}));
    QVERIFY(holding::placeOfFileBin(shape, 2) == (Bin{3, 2}));
    QVERIFY(holding::placeOfFileBin(shape, 3) == (Bin{2, 0}));
    QVERIFY(holding::placeOfFileBin(shape, 11) == (Bin{0, 2}));
}

void TestQhxImport::binOrder_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {5, 6, 7, 8, 9, 10, 11, 12})
        QTest::addRow("%s, code %d", qPrintable(modelOf(code)), code) << code;
}

void TestQhxImport::binOrder()
{
    QFETCH(int, code);
    const cabinets::Model &model = cabinets::model(modelOf(code));
    qhx::File file;
    file.model = quint8(code);
    for (std::size_t i = 0; i < 20; ++i) {
        file.dayparts[0][i] = quint32(100 + i);
        file.dayparts[1][i] = quint32(200 + i);
    }
    Menu menu;
    import(file, menu);
    for (int daypart = 0; daypart < 2; ++daypart) {
        BinTable<int, maxRows, maxSlots> expected;
        int next = 100 + 100 * daypart;
        for (int row = model.rows; row-- > 0;) {
            for (int bin = 0; bin < model.places(); ++bin)
                expected[Bin{row, bin}] = next++;
        }
        QVERIFY(menu.dayparts[daypart].bins == expected);
    }
}

void TestQhxImport::binsThatNoEntryHas()
{
    qhx::File file;
    file.entries = {{.id = 4}};
    file.dayparts[0] = {4, 99};
    Menu menu;
    import(file, menu);
    QCOMPARE(menu.dayparts[0].bins[1], (Row{4, 99, 0, 0}));
}

QTEST_APPLESS_MAIN(TestQhxImport)
#include "tst_qhximport.moc"
