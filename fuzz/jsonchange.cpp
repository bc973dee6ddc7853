// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/jsonchange.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace fuzzing {

namespace {

constexpr char oddValues[] = R"([
    null, true, false, 0, 1, 2, 13, -1, 0.5, 1e300, 2147483647, -2147483648, 2147483648, 4294967297,
    9223372036854775807, "", "QHX", "ZPV", "KTR23", "KTR63", "KTR82", "ZPV43", "#fffffd", "\u0000",
    "\ud800", "\udc00a", "\uffff", "\u00e9", {}, [], [7, 0, -7, 7], [{}], {"bin": 4, "productId": 7}
])";

qsizetype placeIn(qsizetype size, Random &random)
{
    return static_cast<qsizetype>(random() % static_cast<unsigned>(size));
}

QJsonValue oddValue(Random &random)
{
    static const QJsonArray values = QJsonDocument::fromJson(oddValues).array();
    return values.at(placeIn(values.size(), random));
}

QJsonValue changed(const QJsonValue &value, Random &random);

QJsonArray changed(QJsonArray array, Random &random)
{
    const qsizetype place = placeIn(array.size(), random);
    switch (random() % 8) {
    case 0:
        array.removeAt(place);
        break;
    case 1:
        array.insert(place, QJsonValue(array[placeIn(array.size(), random)]));
        break;
    default:
        array[place] = changed(array[place], random);
    }
    return array;
}

QJsonObject changed(QJsonObject object, Random &random)
{
    const QStringList keys = object.keys();
    const QString &key = keys[placeIn(keys.size(), random)];
    switch (random() % 12) {
    case 0:
        object.remove(key);
        break;
    case 1:
        object.insert(key, object.value(keys[placeIn(keys.size(), random)]));
        break;
    default:
        object.insert(key, changed(object.value(key), random));
    }
    return object;
}

QJsonValue changed(const QJsonValue &value, Random &random)
{
    const bool goesDown = random() % 16 != 0;
    if (goesDown && value.isArray() && !value.toArray().isEmpty())
        return changed(value.toArray(), random);
    if (goesDown && value.isObject() && !value.toObject().isEmpty())
        return changed(value.toObject(), random);
    return oddValue(random);
}

} // namespace

QJsonObject withOneChange(const QJsonObject &document, Random &random)
{
    return document.isEmpty() ? document : changed(document, random);
}

} // namespace fuzzing
