// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "model/entries.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

Entries entriesWith(const QList<int> &ids)
{
    Entries entries;
    for (const int id : ids) {
        entries.push_back(std::make_unique<ProductInfo>());
        entries.back()->set_productId(id);
        entries.back()->set_productName({u"Name %1"_s.arg(id), u"Nombre %1"_s.arg(id)});
    }
    return entries;
}

} // namespace

/// What both bin editors' menus do with their lists of entries.
class TestEntryLists : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void find();
    void index();
    void rows();
    void nextFreeId_data();
    void nextFreeId();
    void namesAndPointers();
};

void TestEntryLists::find()
{
    const Entries entries = entriesWith({5, 7, 5, -1, 0});
    QCOMPARE(findEntry(entries, 5), entries[0].get());
    QCOMPARE(findEntry(entries, 7), entries[1].get());
    QCOMPARE(findEntry(entries, -1), entries[3].get());
    QCOMPARE(findEntry(entries, 0), entries[4].get());
    QCOMPARE(findEntry(entries, 6), nullptr);
    QCOMPARE(findEntry(Entries(), 5), nullptr);
}

void TestEntryLists::index()
{
    const Entries entries = entriesWith({5, 7, 5, -1});
    const EntryIndex index = indexById(pointersTo(entries));
    QCOMPARE(int(index.size()), 3);
    for (const int id : {5, 7, -1, 6})
        QCOMPARE(findEntry(index, id), findEntry(entries, id));
}

void TestEntryLists::rows()
{
    const Entries entries = entriesWith({5, 7});
    QCOMPARE(entryAt(entries, 0), entries[0].get());
    QCOMPARE(entryAt(entries, 1), entries[1].get());
    QCOMPARE(entryAt(entries, 2), nullptr);
    QCOMPARE(entryAt(entries, -1), nullptr);
    QCOMPARE(entryAt({}, 0), nullptr);
}

void TestEntryLists::nextFreeId_data()
{
    QTest::addColumn<QList<int>>("first");
    QTest::addColumn<QList<int>>("second");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("next");
    QTest::newRow("none from 0") << QList<int>{} << QList<int>{} << 0 << 0;
    QTest::newRow("none from 1") << QList<int>{} << QList<int>{} << 1 << 1;
    QTest::newRow("gap in the first list") << QList<int>{0, 2} << QList<int>{} << 0 << 1;
    QTest::newRow("filled by the second list") << QList<int>{0, 2} << QList<int>{1} << 0 << 3;
    QTest::newRow("ids before the first one do not count") << QList<int>{-1, 0} << QList<int>{} << 1 << 1;
    QTest::newRow("in any order") << QList<int>{3, 1} << QList<int>{4, 2} << 1 << 5;
    QTest::newRow("repeated") << QList<int>{1, 1} << QList<int>{1} << 1 << 2;
}

void TestEntryLists::nextFreeId()
{
    QFETCH(QList<int>, first);
    QFETCH(QList<int>, second);
    QFETCH(int, from);
    const Entries one = entriesWith(first);
    const Entries other = entriesWith(second);
    QTEST(::nextFreeId({&one, &other}, from), "next");
}

void TestEntryLists::namesAndPointers()
{
    const Entries entries = entriesWith({7, 5});
    entries[1]->set_productName({});
    QCOMPARE(namesOf(entries), (QStringList{u"Name 7"_s, QString()}));
    QCOMPARE(pointersTo(entries), (QList<ProductInfo *>{entries[0].get(), entries[1].get()}));
    QCOMPARE(namesOf({}), QStringList());
}

QTEST_APPLESS_MAIN(TestEntryLists)
#include "tst_entrylists.moc"
