// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/fields.h"

#include <limits>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

#include "holding/menunames.h"
#include "holding/producttypes.h"
#include "model/names.h"
#include "model/times.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

using Entry = ProductInfo;
using Cabinet = CabinetConfiguration;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProductDetails)
};

template <auto get, auto set>
constexpr StoredField number(QLatin1StringView key)
{
    return {key, [](const QJsonValue &value, Entry &entry) { (entry.*set)(intFromJson(value)); },
            [](const Entry &entry, const Cabinet &) { return QJsonValue((entry.*get)()); }};
}

/// Written as 0 while the cabinet does not use it.
template <auto get, auto set, auto isEnabled>
constexpr StoredField switchedNumber(QLatin1StringView key)
{
    StoredField field = number<get, set>(key);
    field.write = [](const Entry &entry, const Cabinet &cabinet) {
        return QJsonValue(cabinet.*isEnabled ? (entry.*get)() : 0);
    };
    return field;
}

template <auto get, auto set>
constexpr StoredField text(QLatin1StringView key)
{
    return {key, [](const QJsonValue &value, Entry &entry) { (entry.*set)(value.toString()); },
            [](const Entry &entry, const Cabinet &) { return QJsonValue((entry.*get)()); }};
}

constexpr StoredField names(QLatin1StringView key)
{
    return {
        key,
        [](const QJsonValue &value, Entry &entry) { entry.set_productName(namesFromJson(value.toObject())); },
        [](const Entry &entry, const Cabinet &) { return QJsonValue(namesToJson(entry.get_productName())); }};
}

constexpr StoredField locked(QLatin1StringView key)
{
    return {key, [](const QJsonValue &value, Entry &entry) { entry.set_productLocked(value.toBool()); },
            [](const Entry &entry, const Cabinet &) { return QJsonValue(entry.get_productLocked()); }};
}

/// A record starts with the marker of no colour, which a missing text leaves.
constexpr StoredField timerColor(QLatin1StringView key)
{
    StoredField field = text<&Entry::get_timerColor, &Entry::set_timerColor>(key);
    field.read = [](const QJsonValue &value, Entry &entry) {
        entry.set_timerColor(value.toString(entry.get_timerColor()));
    };
    return field;
}

void readMembers(const QJsonValue &value, Entry &group)
{
    const QJsonArray array = value.toArray();
    QList<int> members;
    members.reserve(array.size());
    for (const QJsonValueConstRef member : array)
        members.append(intFromJson(member));
    group.set_productList(members);
}

QJsonValue writeMembers(const Entry &group, [[maybe_unused]] const Cabinet &cabinet)
{
    QJsonArray array;
    const QList<int> members = group.get_productList();
    for (const int id : members)
        array.append(id);
    return array;
}

template <auto get>
QString temperature(const Entry &entry, const Cabinet &cabinet)
{
    return temperatureText((entry.*get)(), cabinet.temperatureUnit);
}

template <auto get>
QString duration(const Entry &entry, [[maybe_unused]] const Cabinet &cabinet)
{
    return timeText((entry.*get)());
}

template <auto isEnabled>
bool isSwitchedOn(const Cabinet &cabinet)
{
    return cabinet.*isEnabled;
}

bool hasTwoTemperaturesAndLids(const Cabinet &cabinet)
{
    return !isZpv(cabinet.type);
}

// The details' rows come in the order of their form.
QList<ProductField> makeProductFields()
{
    return {
        {number<&Entry::get_productId, &Entry::set_productId>("productId"_L1),
         {"ProductId"_L1, [](const Entry &e, const Cabinet &) { return QString::number(e.get_productId()); },
          isSwitchedOn<&Cabinet::productIdEnabled>}},
        {names("productName"_L1),
         {"Name"_L1, [](const Entry &e, const Cabinet &) { return shownName(e.get_productName()); }}},
        {number<&Entry::get_upperTemp, &Entry::set_upperTemp>("upperTemp"_L1),
         {"Temp1"_L1, temperature<&Entry::get_upperTemp>}},
        {number<&Entry::get_lowerTemp, &Entry::set_lowerTemp>("lowerTemp"_L1),
         {"Temp2"_L1, temperature<&Entry::get_lowerTemp>, hasTwoTemperaturesAndLids}},
        {number<&Entry::get_holdTime, &Entry::set_holdTime>("holdingTime"_L1),
         {"HoldTime"_L1, duration<&Entry::get_holdTime>}},
        {number<&Entry::get_warningTime, &Entry::set_warningTime>("warningTime"_L1),
         {"WarningTime"_L1, duration<&Entry::get_warningTime>}},
        {switchedNumber<&Entry::get_resetTime, &Entry::set_resetTime, &Cabinet::resetTimeEnabled>(
             "resetTime"_L1),
         {"ResetTime"_L1, duration<&Entry::get_resetTime>, isSwitchedOn<&Cabinet::resetTimeEnabled>}},
        {switchedNumber<&Entry::get_fanSpeed, &Entry::set_fanSpeed, &Cabinet::fanSpeedEnabled>("fanSpeed"_L1),
         {"FanSpeed"_L1,
          [](const Entry &e, const Cabinet &) { return Text::tr("%1 (RPM)").arg(e.get_fanSpeed()); },
          isSwitchedOn<&Cabinet::fanSpeedEnabled>}},
        {text<&Entry::get_lidType, &Entry::set_lidType>("lidType"_L1),
         {"LidType"_L1, [](const Entry &e, const Cabinet &) { return lidText(e.get_lidType()); },
          hasTwoTemperaturesAndLids}},
        {text<&Entry::get_bottomType, &Entry::set_bottomType>("bottomType"_L1),
         {"BottomType"_L1, [](const Entry &e, const Cabinet &) { return bottomText(e.get_bottomType()); }}},
        {text<&Entry::get_zoneSplits, &Entry::set_zoneSplits>("zoneSplits"_L1),
         {"ZoneSplits"_L1, [](const Entry &e, const Cabinet &) { return e.get_zoneSplits(); }}},
        {timerColor("timerColor"_L1), // shown as a sample, not as a text
         {"TimerColor"_L1, nullptr, isSwitchedOn<&Cabinet::timerColorEnabled>}},
        {locked("productLocked"_L1)},
    };
}

QList<StoredField> makeGroupFields()
{
    return {
        number<&Entry::get_productId, &Entry::set_productId>("groupId"_L1),
        names("groupName"_L1),
        text<&Entry::get_zoneSplits, &Entry::set_zoneSplits>("zoneSplits"_L1),
        number<&Entry::get_lowerTemp, &Entry::set_lowerTemp>("lowerTemp"_L1),
        number<&Entry::get_upperTemp, &Entry::set_upperTemp>("upperTemp"_L1),
        number<&Entry::get_fanSpeed, &Entry::set_fanSpeed>("fanSpeed"_L1),
        text<&Entry::get_lidType, &Entry::set_lidType>("lidType"_L1),
        number<&Entry::get_defaultIndex, &Entry::set_defaultIndex>("defaultProd"_L1),
        {"products"_L1, readMembers, writeMembers},
    };
}

} // namespace

int intFromJson(const QJsonValue &value)
{
    using Limits = std::numeric_limits<int>;
    const qint64 number = value.toInteger(0);
    return number < Limits::min() || number > Limits::max() ? 0 : static_cast<int>(number);
}

const QList<ProductField> &productFields()
{
    static const QList<ProductField> fields = makeProductFields();
    return fields;
}

const QList<StoredField> &groupFields()
{
    static const QList<StoredField> fields = makeGroupFields();
    return fields;
}

} // namespace holding
