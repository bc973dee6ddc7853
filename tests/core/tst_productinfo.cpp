// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QMetaMethod>
#include <QTest>

#include "model/productinfo.h"
#include "tests/support/recordfields.h"
#include "tests/support/slotlist.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

struct Field
{
    const char *name;
    QVariant initially;
    QVariant other;
};

const QList<Field> &fields()
{
    static const QList<Field> list{
        {"productId", 0, 17},
        {"isGroup", false, true},
        {"productLocked", false, true},
        {"productName", QStringList{QString()}, QStringList{u"Bacon"_s, u"Tocino"_s}},
        {"productShortName", QString(), u"BACN"_s},
        {"upperTemp", 0, 215},
        {"lowerTemp", 0, -40},
        {"holdTime", 0, 3600},
        {"warningTime", 0, 600},
        {"zoneSplits", QString(), u"1/3"_s},
        {"lidType", QString(), u"Solid"_s},
        {"bottomType", QString(), u"False"_s},
        {"fanSpeed", 0, 60},
        {"resetTime", 0, 300},
        {"timerColor", u"#fffffd"_s, u"#402100"_s},
        {"productList", QVariant::fromValue(QList<int>{}), QVariant::fromValue(QList<int>{3, 1, 3})},
        {"defaultIndex", 0, 2},
    };
    return list;
}

QVariant get(ProductInfo &record, const char *field, const QMetaType &type)
{
    QVariant value(type);
    const bool called =
        QMetaObject::invokeMethod(&record, QByteArray("get_").append(field).constData(), Qt::DirectConnection,
                                  QGenericReturnArgument(type.name(), value.data()));
    return called ? value : QVariant();
}

bool set(ProductInfo &record, const char *field, const QVariant &value)
{
    return QMetaObject::invokeMethod(&record, QByteArray("set_").append(field).constData(),
                                     Qt::DirectConnection,
                                     QGenericArgument(value.typeName(), value.constData()));
}

QString parameterType(const QVariant &value)
{
    return QString::fromLatin1(value.typeName());
}

// The same text in memory of its own.
QString copyOf(const QString &text)
{
    return QString(text.constData(), text.size());
}

} // namespace

class TestProductInfo : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void publicSurface();
    void slotTypes();
    void defaults_data();
    void defaults();
    void setsOneField_data() { defaults_data(); }
    void setsOneField();
    void equalTextKeepsStoredData_data();
    void equalTextKeepsStoredData();
    void listsAreAlwaysAssigned();
    void copiesEveryField();
    void validatesNothing();
    void metaTypeMakesRecords();
    void takesParent();
};

void TestProductInfo::publicSurface()
{
    QStringList expected;
    for (const Field &field : fields()) {
        const QString name = QString::fromLatin1(field.name);
        expected.append(u"get_"_s + name + u"()"_s);
        expected.append(u"set_"_s + name + u'(' + parameterType(field.initially) + u" value)"_s);
    }
    const QMetaObject &meta = ProductInfo::staticMetaObject;
    QCOMPARE(differenceOf(ownSlots(meta), expected), QString());
    QCOMPARE(meta.methodCount() - meta.methodOffset(), expected.size()); // and so no signals
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
}

void TestProductInfo::slotTypes()
{
    const QMetaObject &meta = ProductInfo::staticMetaObject;
    for (int i = 0; i < fields().size(); ++i) {
        const QMetaMethod getter = meta.method(meta.methodOffset() + 2 * i);
        const QMetaMethod setter = meta.method(meta.methodOffset() + 2 * i + 1);
        QCOMPARE(getter.returnMetaType(), fields().at(i).initially.metaType());
        QCOMPARE(setter.returnMetaType(), QMetaType::fromType<void>());
        QCOMPARE(getter.access(), QMetaMethod::Public);
        QCOMPARE(setter.access(), QMetaMethod::Public);
    }
}

void TestProductInfo::defaults_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < fields().size(); ++i)
        QTest::newRow(fields().at(i).name) << i;
}

void TestProductInfo::defaults()
{
    QFETCH(int, index);
    const Field &field = fields().at(index);
    ProductInfo record;
    QCOMPARE(get(record, field.name, field.initially.metaType()), field.initially);
}

void TestProductInfo::setsOneField()
{
    QFETCH(int, index);
    ProductInfo record;
    QVERIFY(set(record, fields().at(index).name, fields().at(index).other));
    for (int i = 0; i < fields().size(); ++i) {
        const Field &field = fields().at(i);
        QVERIFY2(get(record, field.name, field.other.metaType()) ==
                     (i == index ? field.other : field.initially),
                 field.name);
    }
    QVERIFY(set(record, fields().at(index).name, fields().at(index).initially));
    QCOMPARE(get(record, fields().at(index).name, fields().at(index).initially.metaType()),
             fields().at(index).initially);
}

void TestProductInfo::equalTextKeepsStoredData_data()
{
    QTest::addColumn<QByteArray>("field");
    for (const Field &field : fields()) {
        if (field.initially.metaType() == QMetaType::fromType<QString>())
            QTest::newRow(field.name) << QByteArray(field.name);
    }
}

void TestProductInfo::equalTextKeepsStoredData()
{
    QFETCH(QByteArray, field);
    const auto type = QMetaType::fromType<QString>();
    const QString first = copyOf(u"some text"_s);
    const QString second = copyOf(first);
    QVERIFY(first.constData() != second.constData());

    ProductInfo record;
    QVERIFY(set(record, field.constData(), first));
    QCOMPARE(get(record, field.constData(), type).toString().constData(), first.constData());
    QVERIFY(set(record, field.constData(), second));
    QCOMPARE(get(record, field.constData(), type).toString().constData(), first.constData());
}

void TestProductInfo::listsAreAlwaysAssigned()
{
    ProductInfo record;
    record.set_productName({u"Bacon"_s});
    const QStringList names{u"Bacon"_s};
    record.set_productName(names);
    QCOMPARE(record.get_productName().constData(), names.constData());

    record.set_productList({1, 2});
    const QList<int> members{1, 2};
    record.set_productList(members);
    QCOMPARE(record.get_productList().constData(), members.constData());
}

void TestProductInfo::copiesEveryField()
{
    const ProductInfo fresh;
    ProductInfo source;
    recordfields::fill(source);
    const recordfields::Values values = recordfields::valuesOf(source);
    QCOMPARE(values.size(), fields().size());
    const recordfields::Values before = recordfields::valuesOf(fresh);
    for (auto field = values.begin(); field != values.end(); ++field)
        QVERIFY2(field.value() != before.value(field.key()), qPrintable(field.key()));

    ProductInfo copy;
    copyFields(source, copy);
    QCOMPARE(recordfields::valuesOf(copy), values);
}

void TestProductInfo::validatesNothing()
{
    ProductInfo record;
    record.set_productId(-1);
    record.set_defaultIndex(99);
    record.set_timerColor(u"no colour at all"_s);
    record.set_productName({});
    QCOMPARE(record.get_productId(), -1);
    QCOMPARE(record.get_defaultIndex(), 99);
    QCOMPARE(record.get_timerColor(), u"no colour at all"_s);
    QCOMPARE(record.get_productName(), QStringList());
}

void TestProductInfo::metaTypeMakesRecords()
{
    const QMetaType type = QMetaType::fromName("ProductInfo");
    QVERIFY(type.isValid());
    auto *record = static_cast<ProductInfo *>(type.create());
    QVERIFY(record);
    QCOMPARE(record->get_productName(), QStringList{QString()});
    QCOMPARE(record->get_timerColor(), u"#fffffd"_s);
    type.destroy(record);
}

void TestProductInfo::takesParent()
{
    QCOMPARE(ProductInfo().parent(), nullptr);
    QObject parent;
    const auto *record = new ProductInfo(&parent);
    QCOMPARE(record->parent(), &parent);
}

QTEST_APPLESS_MAIN(TestProductInfo)
#include "tst_productinfo.moc"
