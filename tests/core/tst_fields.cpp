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
    void detailsTellTheValues_data();
    void detailsTellTheValues();
    void detailsThatACabinetHas_data();
    void detailsThatACabinetHas();
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

void TestFields::detailsTellTheValues_data()
{
    QTest::addColumn<QString>("detail");
    QTest::addColumn<QString>("text");
    QTest::newRow("id") << u"ProductId"_s << u"7"_s;
    QTest::newRow("name") << u"Name"_s << u"Bacon"_s;
    QTest::newRow("upper temperature") << u"Temp1"_s << u"102°C"_s;
    QTest::newRow("lower temperature") << u"Temp2"_s << u"93°C"_s;
    QTest::newRow("holding time") << u"HoldTime"_s << u"01:00:05"_s;
    QTest::newRow("alert time") << u"WarningTime"_s << u"00:10:00"_s;
    QTest::newRow("reset time") << u"ResetTime"_s << u"00:01:30"_s;
    QTest::newRow("fan speed") << u"FanSpeed"_s << u"60 (RPM)"_s;
    QTest::newRow("lid") << u"LidType"_s << u"Vented"_s;
    QTest::newRow("bottom") << u"BottomType"_s << u"False"_s;
    QTest::newRow("zone splits") << u"ZoneSplits"_s << u"2/3"_s;
}

void TestFields::detailsTellTheValues()
{
    QFETCH(QString, detail);
    ProductInfo product;
    product.set_productId(7);
    product.set_productName({u"Bacon"_s, u"Tocino"_s});
    product.set_upperTemp(215);
    product.set_lowerTemp(200);
    product.set_holdTime(3605);
    product.set_warningTime(600);
    product.set_resetTime(90);
    product.set_fanSpeed(60);
    product.set_lidType(u"Vented"_s);
    product.set_bottomType(u"False"_s);
    product.set_zoneSplits(u"2/3"_s);
    CabinetConfiguration celsius = fullCabinet();
    celsius.temperatureUnit = unitCelsius;
    for (const ProductField &field : productFields()) {
        if (field.detail.name == detail)
            QTEST(field.detail.text(product, celsius), "text");
    }
}

void TestFields::detailsThatACabinetHas_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("switchesOn");
    QTest::addColumn<QString>("missing");
    QTest::newRow("QHX, all on") << u"QHX"_s << true << QString();
    QTest::newRow("QHX, all off") << u"QHX"_s << false << u"ProductId ResetTime FanSpeed TimerColor"_s;
    QTest::newRow("ZPV, all on") << u"ZPV"_s << true << u"Temp2 LidType"_s;
    QTest::newRow("ZPV, all off") << u"ZPV"_s << false
                                  << u"ProductId Temp2 ResetTime FanSpeed LidType TimerColor"_s;
}

void TestFields::detailsThatACabinetHas()
{
    QFETCH(QString, type);
    QFETCH(bool, switchesOn);
    CabinetConfiguration configuration = switchesOn ? fullCabinet() : CabinetConfiguration();
    configuration.type = type;
    QStringList missing;
    for (const ProductField &field : productFields()) {
        if (!field.detail.isShown(configuration))
            missing.append(field.detail.name);
    }
    QTEST(missing.join(u' '), "missing");
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
