// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/fields.h"
#include "tests/support/languages.h"
#include "tests/support/recordfields.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

/// Every setting that a cabinet can use is used.
CabinetConfiguration fullCabinet()
{
    return {.type = u"QHX"_s,
            .model = u"KTR33"_s,
            .fanSpeedEnabled = true,
            .resetTimeEnabled = true,
            .productIdEnabled = true,
            .timerColorEnabled = true};
}

QList<StoredField> storedProductFields()
{
    QList<StoredField> stored;
    for (const ProductField &field : productFields())
        stored.append(field.stored);
    return stored;
}

/// The names of the fields that differ.
QStringList differences(const ProductInfo &left, const ProductInfo &right)
{
    return recordfields::differences(recordfields::valuesOf(left), recordfields::valuesOf(right));
}

/// Writes each field to a value of its own and reads all of them into a new record.
void pass(const QList<StoredField> &fields, const ProductInfo &from, ProductInfo &to)
{
    for (const StoredField &field : fields)
        field.read(field.write(from, fullCabinet()), to);
}

} // namespace

/// The tables of fields: nothing of a record is forgotten in the file.
class TestFields : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void productsStoreEveryField();
    void groupsStoreTheirFields();
    void everyFieldIsFoundUnderItsKeyOnly();
    void detailsShowAllButTheLock();
    void detailsNeedNoMoreThanARecord();
    void wholeNumbers_data();
    void wholeNumbers();
};

void TestFields::productsStoreEveryField()
{
    ProductInfo product;
    recordfields::fill(product);
    product.set_productName(inEveryLanguage(u"Bacon"_s));
    ProductInfo read;
    pass(storedProductFields(), product, read);
    // What a product of this line does not have.
    const QStringList others{u"defaultIndex"_s, u"isGroup"_s, u"productList"_s, u"productShortName"_s};
    QCOMPARE(differenceOf(differences(product, read), others), QString());
}

void TestFields::groupsStoreTheirFields()
{
    ProductInfo group;
    recordfields::fill(group);
    group.set_productName(inEveryLanguage(u"Meats"_s));
    ProductInfo read;
    pass(groupFields(), group, read);
    const QStringList others{u"bottomType"_s,       u"holdTime"_s,  u"isGroup"_s,    u"productLocked"_s,
                             u"productShortName"_s, u"resetTime"_s, u"timerColor"_s, u"warningTime"_s};
    QCOMPARE(differenceOf(differences(group, read), others), QString());
}

void TestFields::everyFieldIsFoundUnderItsKeyOnly()
{
    for (const QList<StoredField> &fields : {storedProductFields(), groupFields()}) {
        QStringList keys;
        for (const StoredField &field : fields)
            keys.append(field.key);
        QCOMPARE(keys.removeDuplicates(), 0);
    }
}

void TestFields::detailsShowAllButTheLock()
{
    QStringList unseen;
    for (const ProductField &field : productFields()) {
        if (field.detail.name.isEmpty())
            unseen.append(field.stored.key);
    }
    QCOMPARE(differenceOf(unseen, {u"productLocked"_s}), QString());
}

void TestFields::detailsNeedNoMoreThanARecord()
{
    const ProductInfo fresh;
    for (const ProductField &field : productFields()) {
        const FieldDetail &detail = field.detail;
        QVERIFY2(detail.isShown(fullCabinet()), field.stored.key.data());
        QVERIFY2(!detail.text || !detail.name.isEmpty(), field.stored.key.data());
        if (detail.text)
            QVERIFY2(detail.text(fresh, {}) == detail.text(ProductInfo(), {}), field.stored.key.data());
    }
}

void TestFields::wholeNumbers_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("whole") << QJsonValue(17) << 17;
    QTest::newRow("negative") << QJsonValue(-17) << -17;
    QTest::newRow("fraction") << QJsonValue(1.5) << 0;
    QTest::newRow("largest") << QJsonValue(2147483647) << 2147483647;
    QTest::newRow("too large") << QJsonValue(2147483648.0) << 0;
    QTest::newRow("smallest") << QJsonValue(-2147483648.0) << std::numeric_limits<int>::min();
    QTest::newRow("too small") << QJsonValue(-2147483649.0) << 0;
    QTest::newRow("text") << QJsonValue(u"17"_s) << 0;
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << 0;
}

void TestFields::wholeNumbers()
{
    QFETCH(QJsonValue, value);
    QTEST(intFromJson(value), "number");
}

QTEST_APPLESS_MAIN(TestFields)
#include "tst_fields.moc"
