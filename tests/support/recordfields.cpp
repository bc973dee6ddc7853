// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/recordfields.h"

#include <QMetaMethod>

#include "model/productinfo.h"

using namespace Qt::StringLiterals;

namespace recordfields {

namespace {

QVariant read(const ProductInfo &record, const QMetaMethod &getter)
{
    QVariant value(getter.returnMetaType());
    // Getters change nothing, but are called through an object that could be changed.
    if (!getter.invoke(const_cast<ProductInfo *>(&record), Qt::DirectConnection,
                       QGenericReturnArgument(getter.typeName(), value.data())))
        qFatal("%s cannot be called", getter.name().constData());
    return value;
}

void write(ProductInfo &record, const QString &field, const QVariant &value)
{
    if (!QMetaObject::invokeMethod(&record, QByteArray("set_" + field.toLatin1()).constData(),
                                   Qt::DirectConnection,
                                   QGenericArgument(value.typeName(), value.constData())))
        qFatal("%s cannot be set", qPrintable(field));
}

QVariant otherValue(const QVariant &value, int number)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return 1000 + number;
    case QMetaType::QString:
        return u"text %1"_s.arg(number);
    case QMetaType::QStringList:
        return QStringList{u"text %1"_s.arg(number), u"another %1"_s.arg(number)};
    default:
        if (value.metaType() != QMetaType::fromType<QList<int>>())
            qFatal("There is no other value for a %s", value.typeName());
        return QVariant::fromValue(QList<int>{number, 2000 + number});
    }
}

} // namespace

Values valuesOf(const ProductInfo &record)
{
    Values values;
    const QMetaObject &meta = ProductInfo::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.name().startsWith("get_"))
            values.insert(QString::fromLatin1(method.name().sliced(4)), read(record, method));
    }
    return values;
}

QStringList differences(const Values &left, const Values &right)
{
    QStringList names;
    for (auto field = left.begin(); field != left.end(); ++field) {
        if (field.value() != right.value(field.key()))
            names.append(field.key());
    }
    return names;
}

void fill(ProductInfo &record)
{
    const Values values = valuesOf(record);
    int number = 0;
    for (auto field = values.begin(); field != values.end(); ++field)
        write(record, field.key(), otherValue(field.value(), ++number));
}

} // namespace recordfields
