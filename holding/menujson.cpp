// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menujson.h"

#include <array>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "holding/fields.h"
#include "holding/menunames.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

constexpr auto fixedNote = "Manual edits may render this file useless"_L1;
constexpr auto fixedDescription = "Varno Holding Menu File"_L1;
constexpr int fixedVersion = 1;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MenuFile)
};

void readIfPresent(const QJsonValue &value, QString &field)
{
    if (value.isString())
        field = value.toString();
}

void readIfPresent(const QJsonValue &value, bool &field)
{
    field = value.toBool(field);
}

void readIfPresent(const QJsonValue &value, int &field)
{
    if (value.isDouble())
        field = intFromJson(value);
}

struct Switch
{
    QLatin1StringView key;
    bool CabinetConfiguration::*isEnabled;
};

constexpr auto switches = std::to_array<Switch>({
    {"fanSpeedEnabled"_L1, &CabinetConfiguration::fanSpeedEnabled},
    {"resetTimeEnabled"_L1, &CabinetConfiguration::resetTimeEnabled},
    {"timerColorEnabled"_L1, &CabinetConfiguration::timerColorEnabled},
    {"prodcutIdEnabled"_L1, &CabinetConfiguration::productIdEnabled},
});

void readHeader(const QJsonObject &header, CabinetConfiguration &configuration)
{
    readIfPresent(header.value("cabinetModel"_L1), configuration.model);
    readIfPresent(header.value("cabinetType"_L1), configuration.type);
    readIfPresent(header.value("temperatureUnit"_L1), configuration.temperatureUnit);
    for (const Switch &each : switches)
        readIfPresent(header.value(each.key), configuration.*each.isEnabled);
}

QJsonObject writeHeader(const CabinetConfiguration &configuration)
{
    QJsonObject header{
        {"Note"_L1, fixedNote},
        {"menuVersion"_L1, fixedVersion},
        {"menuDescription"_L1, fixedDescription},
        {"cabinetType"_L1, configuration.type},
        {"cabinetModel"_L1, configuration.model},
        {"temperatureUnit"_L1, configuration.temperatureUnit},
    };
    for (const Switch &each : switches)
        header.insert(each.key, configuration.*each.isEnabled);
    return header;
}

std::unique_ptr<ProductInfo> readProduct(const QJsonObject &json)
{
    auto product = std::make_unique<ProductInfo>();
    for (const ProductField &field : productFields())
        field.stored.read(json.value(field.stored.key), *product);
    return product;
}

std::unique_ptr<ProductInfo> readGroup(const QJsonObject &json)
{
    auto group = std::make_unique<ProductInfo>();
    group->set_isGroup(true);
    for (const StoredField &field : groupFields())
        field.read(json.value(field.key), *group);
    return group;
}

QJsonObject writeProduct(const ProductInfo &product, const CabinetConfiguration &configuration)
{
    QJsonObject json;
    for (const ProductField &field : productFields())
        json.insert(field.stored.key, field.stored.write(product, configuration));
    return json;
}

QJsonObject writeGroup(const ProductInfo &group, const CabinetConfiguration &configuration)
{
    QJsonObject json;
    for (const StoredField &field : groupFields())
        json.insert(field.key, field.write(group, configuration));
    return json;
}

// Entries without an id of their own are placeholders. They are left out before anything is made of them, as
// a hostile file may hold millions.
void readEntries(const QJsonArray &array, QLatin1StringView idKey,
                 std::unique_ptr<ProductInfo> (*readOne)(const QJsonObject &), Entries &entries)
{
    for (const QJsonValueConstRef element : array) {
        const QJsonObject json = element.toObject();
        if (intFromJson(json.value(idKey)) != 0)
            entries.push_back(readOne(json));
    }
}

Daypart readDaypart(const QJsonObject &json, const CabinetShape &shape)
{
    Daypart daypart;
    daypart.names = namesFromJson(json.value("daypartName"_L1).toObject());
    daypart.inUse = json.value("inUse"_L1).toBool(true);
    const int binsPerRow = shape.binsPerRow();
    const QJsonArray locations = json.value("productLocations"_L1).toArray();
    for (const QJsonValueConstRef element : locations) {
        const QJsonObject location = element.toObject();
        const int number = intFromJson(location.value("bin"_L1));
        if (number < 1 || binsPerRow == 0)
            continue;
        const Bin bin{(number - 1) / binsPerRow, (number - 1) % binsPerRow};
        if (shape.hasBin(bin))
            daypart.bins[bin] = intFromJson(location.value("productId"_L1));
    }
    return daypart;
}

QJsonObject writeDaypart(const Daypart &daypart, const CabinetShape &shape)
{
    QJsonArray locations;
    const int binsPerRow = shape.binsPerZone * shape.zones;
    for (int row = 0; row < shape.rows; ++row) {
        for (int slot = 0; slot < binsPerRow; ++slot)
            locations.append(QJsonObject{{"bin"_L1, row * binsPerRow + slot + 1},
                                         {"productId"_L1, daypart.bins[Bin{row, slot}]}});
    }
    return {
        {"daypartName"_L1, namesToJson(daypart.names)},
        {"productLocations"_L1, locations},
        {"inUse"_L1, daypart.inUse},
    };
}

QString readLayout(const QJsonValue &layout, Menu &menu)
{
    const QJsonArray array = layout.toArray();
    if (!layout.isArray() || array.size() > maxDayparts)
        return Text::tr("Dayparts read failed!");
    const CabinetShape shape = menu.shape();
    menu.dayparts = {};
    menu.daypartCount = static_cast<int>(array.size());
    auto place = menu.dayparts.begin();
    for (const QJsonValueConstRef element : array)
        *place++ = readDaypart(element.toObject(), shape);
    return {};
}

QString readProductsAndGroups(const QJsonObject &json, Menu &menu)
{
    const QJsonValue products = json.value("products"_L1);
    if (!products.isArray())
        return Text::tr("Products list read failed!");
    readEntries(products.toArray(), "productId"_L1, readProduct, menu.products);

    const QJsonValue groups = json.value("productGroups"_L1);
    if (!groups.isArray())
        return Text::tr("Groups list read failed!");
    readEntries(groups.toArray(), "groupId"_L1, readGroup, menu.groups);
    return {};
}

QString readRoot(const QByteArray &json, QJsonObject &root)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return Text::tr("File format is corrupted!");
    root = document.object();
    if (root.value("header"_L1).toObject().isEmpty())
        return Text::tr("File header read failed");
    return {};
}

} // namespace

QString readMenu(const QByteArray &json, Menu &menu, const AskConfiguration &askConfiguration)
{
    QJsonObject root;
    if (QString fault = readRoot(json, root); !fault.isEmpty())
        return fault;
    readHeader(root.value("header"_L1).toObject(), menu.configuration);
    if (!menu.shape().isKnown() && !askConfiguration(menu.configuration))
        return Text::tr("File read canceled. Unkown configuration!");
    const QJsonObject content = root.value("menu"_L1).toObject();
    if (content.isEmpty())
        return Text::tr("Menu is empty!");
    menu.products.clear();
    menu.groups.clear();
    if (QString fault = readProductsAndGroups(content, menu); !fault.isEmpty())
        return fault;
    return readLayout(content.value("layout"_L1), menu);
}

QString readDefaultMenu(int binsPerZone, Menu &menu)
{
    const QString path = binsPerZone == 3 ? u":/KTRx3_DefaultMenu.json"_s : u":/KTRx2_DefaultMenu.json"_s;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Text::tr("Failed to open the file:") + path;
    QJsonObject root;
    if (QString fault = readRoot(file.readAll(), root); !fault.isEmpty())
        return fault;
    const QJsonObject content = root.value("menu"_L1).toObject();
    if (content.isEmpty())
        return Text::tr("Menu is empty!");
    return readProductsAndGroups(content, menu);
}

QByteArray writeMenu(const Menu &menu)
{
    QJsonArray products;
    for (const auto &product : menu.products)
        products.append(writeProduct(*product, menu.configuration));
    QJsonArray groups;
    for (const auto &group : menu.groups)
        groups.append(writeGroup(*group, menu.configuration));
    QJsonArray layout;
    const CabinetShape shape = menu.shape();
    for (int i = 0; i < menu.daypartCount; ++i)
        layout.append(writeDaypart(menu.dayparts[i], shape));

    const QJsonObject content{{"products"_L1, products}, {"productGroups"_L1, groups}, {"layout"_L1, layout}};
    const QJsonObject root{{"header"_L1, writeHeader(menu.configuration)}, {"menu"_L1, content}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

} // namespace holding
