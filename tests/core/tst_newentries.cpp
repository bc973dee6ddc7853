// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/newentries.h"
#include "holding/settings.h"
#include "tests/support/languages.h"
#include "tests/support/recordfields.h"
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

} // namespace

/// What new entries and copies of entries start with.
class TestNewEntries : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newProductDefaults();
    void newGroupDefaults();
    void duplicateProduct();
    void duplicateGroup();
    void duplicateHasEveryField();
};

void TestNewEntries::newProductDefaults()
{
    const auto product = newProduct(42, 2);
    QCOMPARE(product->get_productId(), 42);
    QCOMPARE(product->get_isGroup(), false);
    QCOMPARE(product->get_productLocked(), false);
    QCOMPARE(product->get_productName(), inEveryLanguage({}));
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

void TestNewEntries::newGroupDefaults()
{
    const auto group = newGroup(42);
    QCOMPARE(group->get_productId(), 42);
    QCOMPARE(group->get_isGroup(), true);
    QCOMPARE(group->get_productName(), inEveryLanguage({}));
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

void TestNewEntries::duplicateProduct()
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

void TestNewEntries::duplicateGroup()
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

void TestNewEntries::duplicateHasEveryField()
{
    ProductInfo source;
    recordfields::fill(source);
    recordfields::Values expected = recordfields::valuesOf(source);
    expected[u"productId"_s] = 8;
    expected[u"productLocked"_s] = false;
    QCOMPARE(recordfields::valuesOf(*duplicateOf(source, 8)), expected);
}

QTEST_APPLESS_MAIN(TestNewEntries)
#include "tst_newentries.moc"
