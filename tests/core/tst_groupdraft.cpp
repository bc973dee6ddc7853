// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/groupdraft.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

CabinetConfiguration cabinet(const QString &type = u"QHX"_s, bool fanSpeedEnabled = true)
{
    CabinetConfiguration configuration;
    configuration.type = type;
    configuration.fanSpeedEnabled = fanSpeedEnabled;
    return configuration;
}

std::unique_ptr<ProductInfo> product(int id, const QString &lid = u"Solid"_s, int fanSpeed = 60)
{
    auto made = std::make_unique<ProductInfo>();
    made->set_productId(id);
    made->set_lidType(lid);
    made->set_zoneSplits(u"1/3"_s);
    made->set_upperTemp(215);
    made->set_lowerTemp(200);
    made->set_fanSpeed(fanSpeed);
    return made;
}

/// A group that stores the settings of product().
std::unique_ptr<ProductInfo> group(const QList<int> &members, int defaultIndex = 0)
{
    auto made = product(9);
    made->set_isGroup(true);
    made->set_productList(members);
    made->set_defaultIndex(defaultIndex);
    return made;
}

const HoldingSettings held{u"Solid"_s, u"1/3"_s, 215, 200, 60};

} // namespace

/// A group while it is edited: members, default, shared settings.
class TestGroupDraft : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void startsFromTheGroup();
    void settingsThatCount_data();
    void settingsThatCount();
    void add();
    void remove_data();
    void remove();
    void settleDefault_data();
    void settleDefault();
    void writesAllButTheName();
};

void TestGroupDraft::startsFromTheGroup()
{
    const GroupDraft draft(*group({3, 1}, 1), cabinet());
    QCOMPARE(draft.members(), (QList<int>{3, 1}));
    QCOMPARE(draft.defaultPosition(), 1);
    QVERIFY(draft.settings() == held);
    QVERIFY(GroupDraft(*group({}), cabinet()).settings() == HoldingSettings());
}

void TestGroupDraft::settingsThatCount_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("fanSpeedEnabled");
    QTest::addColumn<bool>("lidCounts");
    QTest::newRow("QHX") << u"QHX"_s << true << true;
    QTest::newRow("QHX without fan speed") << u"QHX"_s << false << true;
    QTest::newRow("ZPV") << u"ZPV"_s << true << false;
    QTest::newRow("ZPV without fan speed") << u"ZPV"_s << false << false;
}

void TestGroupDraft::settingsThatCount()
{
    QFETCH(QString, type);
    QFETCH(bool, fanSpeedEnabled);
    QFETCH(bool, lidCounts);
    const HoldingSettings expected{lidCounts ? u"Solid"_s : QString(), u"1/3"_s, 215, 200,
                                   fanSpeedEnabled ? 60 : 0};
    GroupDraft draft(*group({}), cabinet(type, fanSpeedEnabled));
    draft.add(*product(1));
    QVERIFY(draft.settings() == expected);
    QVERIFY(GroupDraft(*group({1}), cabinet(type, fanSpeedEnabled)).settings() == expected);
    QCOMPARE(draft.fits(*product(2, u"Vented"_s)), !lidCounts);
    QCOMPARE(draft.fits(*product(2, u"Solid"_s, 80)), !fanSpeedEnabled);
    QVERIFY(draft.fits(*product(2)));
}

void TestGroupDraft::add()
{
    GroupDraft draft(*group({}), cabinet());
    QVERIFY(draft.fits(*product(1, u"Vented"_s, 80)));
    draft.add(*product(1));
    draft.add(*product(2));
    draft.add(*product(1));
    QCOMPARE(draft.members(), (QList<int>{1, 2}));
    QCOMPARE(draft.defaultPosition(), 0);
    draft.add(*product(3, u"Vented"_s, 80)); // only the first one fixes settings
    QVERIFY(draft.settings() == held);
}

void TestGroupDraft::remove_data()
{
    QTest::addColumn<QList<int>>("members");
    QTest::addColumn<int>("defaultPosition");
    QTest::addColumn<int>("removed");
    QTest::addColumn<int>("newDefault");
    QTest::newRow("before the default") << QList<int>{1, 2, 3} << 2 << 0 << 1;
    QTest::newRow("behind the default") << QList<int>{1, 2, 3} << 0 << 2 << 0;
    QTest::newRow("the default: the next one follows") << QList<int>{1, 2, 3} << 1 << 1 << 1;
    QTest::newRow("the last, the default") << QList<int>{1, 2, 3} << 2 << 2 << 1;
    QTest::newRow("the only one") << QList<int>{1} << 0 << 0 << 0;
}

void TestGroupDraft::remove()
{
    QFETCH(QList<int>, members);
    QFETCH(int, defaultPosition);
    QFETCH(int, removed);
    GroupDraft draft(*group(members, defaultPosition), cabinet());
    draft.remove(removed);
    members.removeAt(removed);
    QList<int> positions;
    for (int position = 0; position < members.size(); ++position)
        positions.append(position);
    draft.settleDefault(positions);
    QVERIFY(draft.members() == members);
    QTEST(draft.defaultPosition(), "newDefault");
    QVERIFY(draft.settings() == (members.isEmpty() ? HoldingSettings() : held));
}

void TestGroupDraft::settleDefault_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QList<int>>("listed");
    QTest::addColumn<int>("settled");
    QTest::newRow("as stored") << 2 << QList<int>{0, 1, 2, 3} << 2;
    QTest::newRow("beyond the members") << 99 << QList<int>{0, 1, 2, 3} << 3;
    QTest::newRow("negative") << -5 << QList<int>{0, 1, 2, 3} << 0;
    QTest::newRow("not listed: the next one") << 1 << QList<int>{0, 2, 3} << 2;
    QTest::newRow("not listed, none behind it") << 3 << QList<int>{0, 2} << 2;
    QTest::newRow("beyond the members, the last is not listed") << 99 << QList<int>{0, 1} << 1;
    QTest::newRow("none listed") << 1 << QList<int>{} << 1;
    QTest::newRow("none listed, beyond the members") << 99 << QList<int>{} << 3;
}

void TestGroupDraft::settleDefault()
{
    QFETCH(int, stored);
    QFETCH(QList<int>, listed);
    GroupDraft draft(*group({5, 6, 7, 8}, stored), cabinet());
    draft.settleDefault(listed);
    QTEST(draft.defaultPosition(), "settled");
}

void TestGroupDraft::writesAllButTheName()
{
    GroupDraft draft(*group({}), cabinet());
    draft.add(*product(4));
    draft.add(*product(5));
    draft.setDefault(1);
    ProductInfo record;
    record.set_productId(9);
    record.set_productName({u"Meats"_s});
    draft.writeTo(record);
    QVERIFY(holdingSettings(record, true) == held);
    QCOMPARE(record.get_productList(), (QList<int>{4, 5}));
    QCOMPARE(record.get_defaultIndex(), 1);
    QCOMPARE(record.get_productId(), 9);
    QCOMPARE(record.get_productName(), QStringList{u"Meats"_s});
}

QTEST_APPLESS_MAIN(TestGroupDraft)
#include "tst_groupdraft.moc"
