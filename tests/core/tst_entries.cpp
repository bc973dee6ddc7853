// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menu.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

std::unique_ptr<ProductInfo> filledEntry()
{
    auto entry = std::make_unique<ProductInfo>();
    entry->set_productId(7);
    entry->set_productLocked(true);
    entry->set_productName({u"Bacon"_s, u"Tocino"_s});
    entry->set_productShortName(u"BACN"_s);
    entry->set_upperTemp(215);
    entry->set_lowerTemp(210);
    entry->set_holdTime(3600);
    entry->set_warningTime(600);
    entry->set_resetTime(90);
    entry->set_fanSpeed(60);
    entry->set_lidType(u"Vented"_s);
    entry->set_bottomType(u"False"_s);
    entry->set_zoneSplits(u"2/3"_s);
    entry->set_timerColor(u"#402100"_s);
    entry->set_productList({3, 1});
    entry->set_defaultIndex(1);
    return entry;
}

const HoldingSettings held{u"Solid"_s, u"1/3"_s, 215, 200, 60};

void setUp(ProductInfo &product, const HoldingSettings &settings)
{
    product.set_lidType(settings.lidType);
    product.set_zoneSplits(settings.zoneSplits);
    product.set_upperTemp(settings.upperTemp);
    product.set_lowerTemp(settings.lowerTemp);
    product.set_fanSpeed(settings.fanSpeed);
}

// What a group may say of one setting, and whether a product that holds as `held` may then join it.
enum Fixed { Open, Same, Other };

HoldingSettings groupSettings(Fixed lid, Fixed splits, Fixed upper, Fixed lower, Fixed fan)
{
    const QString lids[]{QString(), held.lidType, u"None"_s};
    const QString fractions[]{QString(), held.zoneSplits, u"1/2"_s};
    const int uppers[]{0, held.upperTemp, 225};
    const int lowers[]{0, held.lowerTemp, 225};
    const int fans[]{0, held.fanSpeed, 100};
    return {lids[lid], fractions[splits], uppers[upper], lowers[lower], fans[fan]};
}

} // namespace

class TestEntries : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void zoneSplits_data();
    void zoneSplits();
    void newProductDefaults();
    void newGroupDefaults();
    void duplicateProduct();
    void duplicateGroup();
    void settingsOfEntry();
    void settingsDiffer();
    void fitsGroup_data();
    void fitsGroup();
    void zeroProductFitsOpenGroup();
};

void TestEntries::zoneSplits_data()
{
    QTest::addColumn<int>("binsPerZone");
    QTest::addColumn<QString>("initially");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("2 bins") << 2 << u"1/2"_s << QStringList{u"1/2"_s, u"1/1"_s};
    QTest::newRow("3 bins") << 3 << u"1/3"_s << QStringList{u"1/3"_s, u"1/2"_s, u"2/3"_s, u"1/1"_s};
    QTest::newRow("4 bins") << 4 << u"1/4"_s << QStringList{u"1/4"_s, u"1/2"_s, u"3/4"_s, u"1/1"_s};
    QTest::newRow("unknown cabinet") << 0 << u"1/2"_s << QStringList{};
    QTest::newRow("1 bin") << 1 << u"1/2"_s << QStringList{};
    QTest::newRow("5 bins") << 5 << u"1/2"_s << QStringList{};
}

void TestEntries::zoneSplits()
{
    QFETCH(int, binsPerZone);
    QFETCH(QString, initially);
    QCOMPARE(defaultZoneSplits(binsPerZone), initially);
    QTEST(offeredZoneSplits(binsPerZone), "offered");
    QCOMPARE(newProduct(1, binsPerZone)->get_zoneSplits(), initially);
}

void TestEntries::newProductDefaults()
{
    const auto product = newProduct(42, 2);
    QCOMPARE(product->get_productId(), 42);
    QCOMPARE(product->get_isGroup(), false);
    QCOMPARE(product->get_productLocked(), false);
    QCOMPARE(product->get_productName(), QStringList(15, QString()));
    QCOMPARE(product->get_productShortName(), QString());
    QCOMPARE(product->get_upperTemp(), 200);
    QCOMPARE(product->get_lowerTemp(), 200);
    QCOMPARE(product->get_holdTime(), 1800);
    QCOMPARE(product->get_warningTime(), 300);
    QCOMPARE(product->get_resetTime(), 300);
    QCOMPARE(product->get_fanSpeed(), 0);
    QCOMPARE(product->get_lidType(), u"None"_s);
    QCOMPARE(product->get_bottomType(), u"Normal"_s);
    QCOMPARE(product->get_timerColor(), u"#fffffd"_s);
    QCOMPARE(product->get_productList(), QList<int>());
    QCOMPARE(product->get_defaultIndex(), 0);
    QCOMPARE(product->parent(), nullptr);
}

void TestEntries::newGroupDefaults()
{
    const auto group = newGroup(42);
    QCOMPARE(group->get_productId(), 42);
    QCOMPARE(group->get_isGroup(), true);
    QCOMPARE(group->get_productName(), QStringList(15, QString()));
    QVERIFY(holdingSettings(*group, true) == HoldingSettings());
    QCOMPARE(group->get_holdTime(), 0);
    QCOMPARE(group->get_warningTime(), 0);
    QCOMPARE(group->get_resetTime(), 0);
    QCOMPARE(group->get_bottomType(), QString());
    QCOMPARE(group->get_timerColor(), u"#fffffd"_s);
    QCOMPARE(group->get_productList(), QList<int>());
    QCOMPARE(group->get_defaultIndex(), 0);
    QCOMPARE(group->parent(), nullptr);
}

void TestEntries::duplicateProduct()
{
    const auto source = filledEntry();
    const auto copy = duplicateOf(*source, 8);
    QCOMPARE(copy->get_productId(), 8);
    QCOMPARE(copy->get_isGroup(), false);
    QCOMPARE(copy->get_productLocked(), false);
    QCOMPARE(copy->get_productName(), (QStringList{u"Bacon"_s, u"Tocino"_s}));
    QCOMPARE(copy->get_upperTemp(), 215);
    QCOMPARE(copy->get_lowerTemp(), 210);
    QCOMPARE(copy->get_holdTime(), 3600);
    QCOMPARE(copy->get_warningTime(), 600);
    QCOMPARE(copy->get_resetTime(), 90);
    QCOMPARE(copy->get_fanSpeed(), 60);
    QCOMPARE(copy->get_lidType(), u"Vented"_s);
    QCOMPARE(copy->get_bottomType(), u"False"_s);
    QCOMPARE(copy->get_zoneSplits(), u"2/3"_s);
    QCOMPARE(copy->get_timerColor(), u"#402100"_s);
    QCOMPARE(source->get_productId(), 7);
    QCOMPARE(source->get_productLocked(), true);
}

void TestEntries::duplicateGroup()
{
    const auto source = filledEntry();
    source->set_isGroup(true);
    const auto copy = duplicateOf(*source, 8);
    QCOMPARE(copy->get_productId(), 8);
    QCOMPARE(copy->get_isGroup(), true);
    QCOMPARE(copy->get_productName(), (QStringList{u"Bacon"_s, u"Tocino"_s}));
    QVERIFY(holdingSettings(*copy, true) == holdingSettings(*source, true));
    QCOMPARE(copy->get_productList(), (QList<int>{3, 1}));
    QCOMPARE(copy->get_defaultIndex(), 1);
}

void TestEntries::settingsOfEntry()
{
    const auto entry = filledEntry();
    QVERIFY(holdingSettings(*entry, true) == (HoldingSettings{u"Vented"_s, u"2/3"_s, 215, 210, 60}));
    QVERIFY(holdingSettings(*entry, false) == (HoldingSettings{u"Vented"_s, u"2/3"_s, 215, 210, 0}));
}

// Any of the five decides whether an entry stays where it is assigned.
void TestEntries::settingsDiffer()
{
    QVERIFY(groupSettings(Same, Same, Same, Same, Same) == held);
    QVERIFY(groupSettings(Other, Same, Same, Same, Same) != held);
    QVERIFY(groupSettings(Same, Other, Same, Same, Same) != held);
    QVERIFY(groupSettings(Same, Same, Other, Same, Same) != held);
    QVERIFY(groupSettings(Same, Same, Same, Other, Same) != held);
    QVERIFY(groupSettings(Same, Same, Same, Same, Other) != held);
}

void TestEntries::fitsGroup_data()
{
    QTest::addColumn<int>("lid");
    QTest::addColumn<int>("splits");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("fan");
    const char *const words[]{"open", "same", "other"};
    for (int lid = Open; lid <= Other; ++lid)
        for (int splits = Open; splits <= Other; ++splits)
            for (int upper = Open; upper <= Other; ++upper)
                for (int lower = Open; lower <= Other; ++lower)
                    for (int fan = Open; fan <= Other; ++fan)
                        QTest::addRow("lid %s, splits %s, upper %s, lower %s, fan %s", words[lid],
                                      words[splits], words[upper], words[lower], words[fan])
                            << lid << splits << upper << lower << fan;
}

void TestEntries::fitsGroup()
{
    QFETCH(int, lid);
    QFETCH(int, splits);
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(int, fan);
    ProductInfo product;
    setUp(product, held);
    const HoldingSettings group =
        groupSettings(Fixed(lid), Fixed(splits), Fixed(upper), Fixed(lower), Fixed(fan));
    const bool fitsWithoutFan = lid != Other && splits != Other && upper != Other && lower != Other;
    QCOMPARE(holding::fitsGroup(product, group, false), fitsWithoutFan);
    QCOMPARE(holding::fitsGroup(product, group, true), fitsWithoutFan && fan != Other);
}

void TestEntries::zeroProductFitsOpenGroup()
{
    const ProductInfo product;
    QVERIFY(holding::fitsGroup(product, {}, true));
    QVERIFY(!holding::fitsGroup(product, held, true));
    QVERIFY(!holding::fitsGroup(product, {QString(), QString(), 1, 0, 0}, true));
}

QTEST_APPLESS_MAIN(TestEntries)
#include "tst_entries.moc"
