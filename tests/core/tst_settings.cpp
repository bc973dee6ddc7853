// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/settings.h"
#include "tests/core/holdas.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

const HoldingSettings held{u"Solid"_s, u"1/3"_s, 215, 200, 60};

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

/// Which settings of an entry decide where it may be.
class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void settingsOfEntry();
    void binSettingsOfGroup();
    void settingsDiffer();
    void fitsGroup_data();
    void fitsGroup();
    void zeroProductFitsOpenGroup();
};

void TestSettings::settingsOfEntry()
{
    ProductInfo entry;
    holdAs(entry, {u"Vented"_s, u"2/3"_s, 215, 210, 60});
    QVERIFY(holdingSettings(entry, true) == (HoldingSettings{u"Vented"_s, u"2/3"_s, 215, 210, 60}));
    QVERIFY(holdingSettings(entry, false) == (HoldingSettings{u"Vented"_s, u"2/3"_s, 215, 210, 0}));
}

void TestSettings::binSettingsOfGroup()
{
    ProductInfo group;
    holdAs(group, {u"Vented"_s, u"2/3"_s, 215, 210, 60});
    QVERIFY(groupBinSettings(group, true) == (HoldingSettings{QString(), u"2/3"_s, 215, 210, 60}));
    QVERIFY(groupBinSettings(group, false) == (HoldingSettings{QString(), u"2/3"_s, 215, 210, 0}));
}

// Any of the five decides whether an entry stays where it is assigned.
void TestSettings::settingsDiffer()
{
    QVERIFY(groupSettings(Same, Same, Same, Same, Same) == held);
    QVERIFY(groupSettings(Other, Same, Same, Same, Same) != held);
    QVERIFY(groupSettings(Same, Other, Same, Same, Same) != held);
    QVERIFY(groupSettings(Same, Same, Other, Same, Same) != held);
    QVERIFY(groupSettings(Same, Same, Same, Other, Same) != held);
    QVERIFY(groupSettings(Same, Same, Same, Same, Other) != held);
}

void TestSettings::fitsGroup_data()
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

void TestSettings::fitsGroup()
{
    QFETCH(int, lid);
    QFETCH(int, splits);
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(int, fan);
    ProductInfo product;
    holdAs(product, held);
    const HoldingSettings group =
        groupSettings(Fixed(lid), Fixed(splits), Fixed(upper), Fixed(lower), Fixed(fan));
    const bool fitsWithoutFan = lid != Other && splits != Other && upper != Other && lower != Other;
    QCOMPARE(holding::fitsGroup(product, group, false), fitsWithoutFan);
    QCOMPARE(holding::fitsGroup(product, group, true), fitsWithoutFan && fan != Other);
}

void TestSettings::zeroProductFitsOpenGroup()
{
    const ProductInfo product;
    QVERIFY(holding::fitsGroup(product, {}, true));
    QVERIFY(!holding::fitsGroup(product, held, true));
    QVERIFY(!holding::fitsGroup(product, {QString(), QString(), 1, 0, 0}, true));
}

QTEST_APPLESS_MAIN(TestSettings)
#include "tst_settings.moc"
