// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menujson.h"
#include "holding/qhximport.h"
#include "tests/support/corruption.h"
#include "tests/support/languages.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// Old menus of which a part is missing or a byte is another one.
class TestQhxImportDamage : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void truncations();
    void bytesMoreAreNotLookedAt();
    void changedBytes();
    void changedBytesUnderAGoodChecksum();
    void changedBitsCanBeSaved();
};

namespace {

constexpr int entryCount = 3;

// The record of the sample that a byte belongs to: 0 header, 1 configuration, then entries, then day parts.
int recordOf(qsizetype offset)
{
    const QList<qsizetype> offsets = qhx::recordOffsets(entryCount);
    int record = 0;
    while (offset >= offsets[record + 1])
        ++record;
    return record;
}

QString faultIn(int record, QLatin1StringView what)
{
    if (record == 0)
        return u"Invalid file header "_s + what;
    if (record == 1)
        return u"Invalid configuration "_s + what;
    return (record < 2 + entryCount ? u"Invalid product "_s : u"Invalid daypart "_s) + what;
}

void checkEntries(const Entries &entries, bool groups)
{
    for (const auto &entry : entries) {
        REQUIRE(entry->get_productId() != 0);
        REQUIRE_EQUAL(entry->get_isGroup(), groups);
        REQUIRE_EQUAL(entry->get_productName().size(), languageCount);
        REQUIRE(entry->get_productName().constFirst().size() <= 64);
        REQUIRE_EQUAL(entry->get_productList().size(), groups ? 8 : 0);
    }
}

void checkBins(const Menu &menu)
{
    const CabinetShape shape = menu.shape();
    for (const Daypart &daypart : menu.dayparts) {
        for (int row = 0; row < maxRows; ++row) {
            for (int slot = 0; slot < maxSlots; ++slot) {
                const Bin bin{row, slot};
                REQUIRE(shape.hasBin(bin) || daypart.bins[bin] == emptyBin);
            }
        }
    }
}

void checkCanBeSaved(const Menu &menu)
{
    const QByteArray written = writeMenu(menu);
    Menu again;
    REQUIRE_EQUAL(readMenu(written, again, [](CabinetConfiguration &) { return false; }), QString());
    REQUIRE_EQUAL(writeMenu(again), written);
}

void checkSane(const Menu &menu)
{
    REQUIRE(menu.shape().isKnown());
    REQUIRE_EQUAL(menu.daypartCount, 2);
    checkEntries(menu.products, false);
    checkEntries(menu.groups, true);
    checkBins(menu);
}

// Calls `check` with every byte changed to every other value.
template <typename Check>
void forEachByteChange(const QByteArray &bytes, Check check)
{
    QByteArray copy = bytes;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        for (int change = 1; change < 256 && !QTest::currentTestFailed(); ++change) {
            copy[i] = static_cast<char>(bytes[i] ^ change);
            check(i, copy);
        }
        copy[i] = bytes[i];
    }
}

} // namespace

void TestQhxImportDamage::truncations()
{
    const QByteArray bytes = qhx::sample().bytes();
    forEachTruncation(bytes, [](const QByteArray &damaged) {
        Menu menu;
        REQUIRE_EQUAL(importQhxMenu(damaged, menu), faultIn(recordOf(damaged.size()), "size!"_L1));
    });
    Menu menu;
    QCOMPARE(importQhxMenu(bytes, menu), QString());
    checkSane(menu);
    checkCanBeSaved(menu);
}

void TestQhxImportDamage::bytesMoreAreNotLookedAt()
{
    const QByteArray bytes = qhx::sample().bytes();
    Menu menu;
    Menu longer;
    QCOMPARE(importQhxMenu(bytes, menu), QString());
    QCOMPARE(importQhxMenu(bytes + "more", longer), QString());
    QCOMPARE(writeMenu(longer), writeMenu(menu));
}

// Every byte stands under a checksum, that of its record.
void TestQhxImportDamage::changedBytes()
{
    forEachByteChange(qhx::sample().bytes(), [](qsizetype offset, const QByteArray &damaged) {
        Menu menu;
        REQUIRE_EQUAL(importQhxMenu(damaged, menu), faultIn(recordOf(offset), "CRC!"_L1));
    });
}

namespace {

// The record that the byte stands in gets its checksum anew; empty for a byte of a checksum.
QByteArray resealed(QByteArray bytes, qsizetype offset)
{
    const QList<qsizetype> offsets = qhx::recordOffsets(entryCount);
    const qsizetype start = offsets[recordOf(offset)];
    const qsizetype size = offsets[recordOf(offset) + 1] - start;
    if (offset < start + 2)
        return {};
    return bytes.replace(start, size, qhx::sealed(bytes.sliced(start, size)));
}

} // namespace

// What another program may have written: nothing but the contents is to be trusted.
void TestQhxImportDamage::changedBytesUnderAGoodChecksum()
{
    QMap<QString, int> outcomes;
    forEachByteChange(qhx::sample().bytes(), [&outcomes](qsizetype offset, const QByteArray &changed) {
        const QByteArray bytes = resealed(changed, offset);
        if (bytes.isEmpty())
            return;
        Menu menu;
        const QString fault = importQhxMenu(bytes, menu);
        ++outcomes[fault];
        if (fault.isEmpty())
            checkSane(menu);
        else
            REQUIRE_EQUAL(recordOf(offset), 0); // only the header can be wrong in itself
    });
    const QStringList expected{QString(),
                               u"Invalid configuration CRC!"_s,
                               u"Invalid configuration size!"_s,
                               u"Invalid daypart CRC!"_s,
                               u"Invalid daypart size!"_s,
                               u"Invalid product CRC!"_s,
                               u"Invalid product size!"_s,
                               u"Invalid products count!"_s,
                               u"Unsupported file revision!"_s};
    QCOMPARE(QStringList(outcomes.keys()), expected);
}

void TestQhxImportDamage::changedBitsCanBeSaved()
{
    const QByteArray bytes = qhx::sample().bytes();
    for (qsizetype offset = 0; offset < bytes.size() && !QTest::currentTestFailed(); ++offset) {
        QByteArray changed = bytes;
        changed[offset] = static_cast<char>(bytes[offset] ^ (1 << offset % 8));
        Menu menu;
        if (const QByteArray good = resealed(changed, offset);
            !good.isEmpty() && importQhxMenu(good, menu).isEmpty())
            checkCanBeSaved(menu);
    }
}

QTEST_APPLESS_MAIN(TestQhxImportDamage)
#include "tst_qhximport_damage.moc"
