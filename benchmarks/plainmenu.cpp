// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benchmarks/plainmenu.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "model/names.h"

using namespace Qt::StringLiterals;

namespace plain {

namespace {

QStringList readNames(const QJsonObject &json)
{
    QStringList names;
    names.reserve(static_cast<qsizetype>(nameLanguages.size()));
    for (const QLatin1StringView language : nameLanguages)
        names.append(json[language].toString());
    return names;
}

QJsonObject writeNames(const QStringList &names)
{
    QJsonObject json;
    for (std::size_t i = 0; i < nameLanguages.size(); ++i)
        json.insert(nameLanguages[i], names[static_cast<qsizetype>(i)]);
    return json;
}

Header readHeader(const QJsonObject &json)
{
    return {.note = json["Note"_L1].toString(),
            .description = json["menuDescription"_L1].toString(),
            .type = json["cabinetType"_L1].toString(),
            .model = json["cabinetModel"_L1].toString(),
            .version = json["menuVersion"_L1].toInt(),
            .temperatureUnit = json["temperatureUnit"_L1].toInt(),
            .fanSpeedEnabled = json["fanSpeedEnabled"_L1].toBool(),
            .resetTimeEnabled = json["resetTimeEnabled"_L1].toBool(),
            .timerColorEnabled = json["timerColorEnabled"_L1].toBool(),
            .productIdEnabled = json["prodcutIdEnabled"_L1].toBool()};
}

QJsonObject writeHeader(const Header &header)
{
    return {{"Note"_L1, header.note},
            {"menuDescription"_L1, header.description},
            {"cabinetType"_L1, header.type},
            {"cabinetModel"_L1, header.model},
            {"menuVersion"_L1, header.version},
            {"temperatureUnit"_L1, header.temperatureUnit},
            {"fanSpeedEnabled"_L1, header.fanSpeedEnabled},
            {"resetTimeEnabled"_L1, header.resetTimeEnabled},
            {"timerColorEnabled"_L1, header.timerColorEnabled},
            {"prodcutIdEnabled"_L1, header.productIdEnabled}};
}

Product readProduct(const QJsonObject &json)
{
    return {.id = json["productId"_L1].toInt(),
            .names = readNames(json["productName"_L1].toObject()),
            .holdingTime = json["holdingTime"_L1].toInt(),
            .warningTime = json["warningTime"_L1].toInt(),
            .lowerTemp = json["lowerTemp"_L1].toInt(),
            .upperTemp = json["upperTemp"_L1].toInt(),
            .fanSpeed = json["fanSpeed"_L1].toInt(),
            .resetTime = json["resetTime"_L1].toInt(),
            .zoneSplits = json["zoneSplits"_L1].toString(),
            .timerColor = json["timerColor"_L1].toString(),
            .lidType = json["lidType"_L1].toString(),
            .bottomType = json["bottomType"_L1].toString(),
            .locked = json["productLocked"_L1].toBool()};
}

QJsonObject writeProduct(const Product &product)
{
    return {{"productId"_L1, product.id},
            {"productName"_L1, writeNames(product.names)},
            {"holdingTime"_L1, product.holdingTime},
            {"warningTime"_L1, product.warningTime},
            {"lowerTemp"_L1, product.lowerTemp},
            {"upperTemp"_L1, product.upperTemp},
            {"fanSpeed"_L1, product.fanSpeed},
            {"resetTime"_L1, product.resetTime},
            {"zoneSplits"_L1, product.zoneSplits},
            {"timerColor"_L1, product.timerColor},
            {"lidType"_L1, product.lidType},
            {"bottomType"_L1, product.bottomType},
            {"productLocked"_L1, product.locked}};
}

Group readGroup(const QJsonObject &json)
{
    Group group{.id = json["groupId"_L1].toInt(),
                .names = readNames(json["groupName"_L1].toObject()),
                .zoneSplits = json["zoneSplits"_L1].toString(),
                .lidType = json["lidType"_L1].toString(),
                .lowerTemp = json["lowerTemp"_L1].toInt(),
                .upperTemp = json["upperTemp"_L1].toInt(),
                .fanSpeed = json["fanSpeed"_L1].toInt(),
                .defaultProduct = json["defaultProd"_L1].toInt(),
                .products = {}};
    const QJsonArray products = json["products"_L1].toArray();
    group.products.reserve(products.size());
    for (const QJsonValue product : products)
        group.products.append(product.toInt());
    return group;
}

QJsonObject writeGroup(const Group &group)
{
    QJsonArray products;
    for (const int product : group.products)
        products.append(product);
    return {{"groupId"_L1, group.id},
            {"groupName"_L1, writeNames(group.names)},
            {"zoneSplits"_L1, group.zoneSplits},
            {"lidType"_L1, group.lidType},
            {"lowerTemp"_L1, group.lowerTemp},
            {"upperTemp"_L1, group.upperTemp},
            {"fanSpeed"_L1, group.fanSpeed},
            {"defaultProd"_L1, group.defaultProduct},
            {"products"_L1, products}};
}

Daypart readDaypart(const QJsonObject &json)
{
    Daypart daypart{.names = readNames(json["daypartName"_L1].toObject()),
                    .locations = {},
                    .inUse = json["inUse"_L1].toBool()};
    const QJsonArray locations = json["productLocations"_L1].toArray();
    daypart.locations.reserve(static_cast<std::size_t>(locations.size()));
    for (const QJsonValue element : locations) {
        const QJsonObject location = element.toObject();
        daypart.locations.push_back({location["bin"_L1].toInt(), location["productId"_L1].toInt()});
    }
    return daypart;
}

QJsonObject writeDaypart(const Daypart &daypart)
{
    QJsonArray locations;
    for (const Location &location : daypart.locations)
        locations.append(QJsonObject{{"bin"_L1, location.bin}, {"productId"_L1, location.productId}});
    return {{"daypartName"_L1, writeNames(daypart.names)},
            {"productLocations"_L1, locations},
            {"inUse"_L1, daypart.inUse}};
}

template <typename Record>
std::vector<Record> readAll(const QJsonArray &array, Record (*readOne)(const QJsonObject &))
{
    std::vector<Record> records;
    records.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue element : array)
        records.push_back(readOne(element.toObject()));
    return records;
}

template <typename Record>
QJsonArray writeAll(const std::vector<Record> &records, QJsonObject (*writeOne)(const Record &))
{
    QJsonArray array;
    for (const Record &record : records)
        array.append(writeOne(record));
    return array;
}

} // namespace

Menu read(const QByteArray &json)
{
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    const QJsonObject menu = root["menu"_L1].toObject();
    return {.header = readHeader(root["header"_L1].toObject()),
            .products = readAll(menu["products"_L1].toArray(), readProduct),
            .groups = readAll(menu["productGroups"_L1].toArray(), readGroup),
            .layout = readAll(menu["layout"_L1].toArray(), readDaypart)};
}

QByteArray write(const Menu &menu)
{
    const QJsonObject content{{"products"_L1, writeAll(menu.products, writeProduct)},
                              {"productGroups"_L1, writeAll(menu.groups, writeGroup)},
                              {"layout"_L1, writeAll(menu.layout, writeDaypart)}};
    const QJsonObject root{{"header"_L1, writeHeader(menu.header)}, {"menu"_L1, content}};
    return QJsonDocument(root).toJson();
}

} // namespace plain
