// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menujson.h"

#include <limits>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

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

int toInt(const QJsonValue &value)
{
    using Limits = std::numeric_limits<int>;
    const qint64 number = value.toInteger(0);
    return number < Limits::min() || number > Limits::max() ? 0 : static_cast<int>(number);
}

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
        field = toInt(value);
}

void readHeader(const QJsonObject &header, CabinetConfiguration &configuration)
{
    readIfPresent(header.value("cabinetModel"_L1), configuration.model);
    readIfPresent(header.value("cabinetType"_L1), configuration.type);
    readIfPresent(header.value("temperatureUnit"_L1), configuration.temperatureUnit);
    readIfPresent(header.value("fanSpeedEnabled"_L1), configuration.fanSpeedEnabled);
    readIfPresent(header.value("resetTimeEnabled"_L1), configuration.resetTimeEnabled);
    readIfPresent(header.value("timerColorEnabled"_L1), configuration.timerColorEnabled);
    readIfPresent(header.value("prodcutIdEnabled"_L1), configuration.productIdEnabled);
}

QJsonObject writeHeader(const CabinetConfiguration &configuration)
{
    return {
        {"Note"_L1, fixedNote},
        {"menuVersion"_L1, fixedVersion},
        {"menuDescription"_L1, fixedDescription},
        {"cabinetType"_L1, configuration.type},
        {"cabinetModel"_L1, configuration.model},
        {"temperatureUnit"_L1, configuration.temperatureUnit},
        {"fanSpeedEnabled"_L1, configuration.fanSpeedEnabled},
        {"resetTimeEnabled"_L1, configuration.resetTimeEnabled},
        {"timerColorEnabled"_L1, configuration.timerColorEnabled},
        {"prodcutIdEnabled"_L1, configuration.productIdEnabled},
    };
}

std::unique_ptr<ProductInfo> readProduct(const QJsonObject &json)
{
    auto product = std::make_unique<ProductInfo>();
    product->set_productId(toInt(json.value("productId"_L1)));
    product->set_productName(namesFromJson(json.value("productName"_L1).toObject()));
    product->set_holdTime(toInt(json.value("holdingTime"_L1)));
    product->set_warningTime(toInt(json.value("warningTime"_L1)));
    product->set_lowerTemp(toInt(json.value("lowerTemp"_L1)));
    product->set_upperTemp(toInt(json.value("upperTemp"_L1)));
    product->set_fanSpeed(toInt(json.value("fanSpeed"_L1)));
    product->set_resetTime(toInt(json.value("resetTime"_L1)));
    product->set_zoneSplits(json.value("zoneSplits"_L1).toString());
    if (const QJsonValue color = json.value("timerColor"_L1); color.isString())
        product->set_timerColor(color.toString());
    product->set_productLocked(json.value("productLocked"_L1).toBool());
    product->set_lidType(json.value("lidType"_L1).toString());
    product->set_bottomType(json.value("bottomType"_L1).toString());
    return product;
}

QJsonObject writeProduct(const ProductInfo &product, const CabinetConfiguration &configuration)
{
    return {
        {"productId"_L1, product.get_productId()},
        {"productName"_L1, namesToJson(product.get_productName())},
        {"holdingTime"_L1, product.get_holdTime()},
        {"warningTime"_L1, product.get_warningTime()},
        {"lowerTemp"_L1, product.get_lowerTemp()},
        {"upperTemp"_L1, product.get_upperTemp()},
        {"fanSpeed"_L1, configuration.fanSpeedEnabled ? product.get_fanSpeed() : 0},
        {"resetTime"_L1, configuration.resetTimeEnabled ? product.get_resetTime() : 0},
        {"zoneSplits"_L1, product.get_zoneSplits()},
        {"timerColor"_L1, product.get_timerColor()},
        {"productLocked"_L1, product.get_productLocked()},
        {"lidType"_L1, product.get_lidType()},
        {"bottomType"_L1, product.get_bottomType()},
    };
}

std::unique_ptr<ProductInfo> readGroup(const QJsonObject &json)
{
    auto group = std::make_unique<ProductInfo>();
    group->set_isGroup(true);
    group->set_productId(toInt(json.value("groupId"_L1)));
    group->set_productName(namesFromJson(json.value("groupName"_L1).toObject()));
    group->set_zoneSplits(json.value("zoneSplits"_L1).toString());
    group->set_lowerTemp(toInt(json.value("lowerTemp"_L1)));
    group->set_upperTemp(toInt(json.value("upperTemp"_L1)));
    group->set_fanSpeed(toInt(json.value("fanSpeed"_L1)));
    group->set_lidType(json.value("lidType"_L1).toString());
    group->set_defaultIndex(toInt(json.value("defaultProd"_L1)));
    QList<int> members;
    const QJsonArray products = json.value("products"_L1).toArray();
    members.reserve(products.size());
    for (const QJsonValueConstRef product : products)
        members.append(toInt(product));
    group->set_productList(members);
    return group;
}

QJsonObject writeGroup(const ProductInfo &group)
{
    QJsonArray members;
    const QList<int> ids = group.get_productList();
    for (const int id : ids)
        members.append(id);
    return {
        {"groupId"_L1, group.get_productId()},
        {"groupName"_L1, namesToJson(group.get_productName())},
        {"zoneSplits"_L1, group.get_zoneSplits()},
        {"lowerTemp"_L1, group.get_lowerTemp()},
        {"upperTemp"_L1, group.get_upperTemp()},
        {"fanSpeed"_L1, group.get_fanSpeed()},
        {"lidType"_L1, group.get_lidType()},
        {"defaultProd"_L1, group.get_defaultIndex()},
        {"products"_L1, members},
    };
}

// Entries without an id of their own are placeholders. They are left out before anything is made of them, as
// a hostile file may hold millions.
void readEntries(const QJsonArray &array, QLatin1StringView idKey,
                 std::unique_ptr<ProductInfo> (*readOne)(const QJsonObject &), Entries &entries)
{
    for (const QJsonValueConstRef element : array) {
        const QJsonObject json = element.toObject();
        if (toInt(json.value(idKey)) != 0)
            entries.push_back(readOne(json));
    }
}

Daypart readDaypart(const QJsonObject &json, const CabinetShape &shape)
{
    Daypart daypart;
    daypart.names = namesFromJson(json.value("daypartName"_L1).toObject());
    daypart.inUse = json.value("inUse"_L1).toBool(true);
    const int binsPerRow = shape.binsPerRow();
    const int binCount = shape.rows * binsPerRow;
    const QJsonArray locations = json.value("productLocations"_L1).toArray();
    for (const QJsonValueConstRef element : locations) {
        const QJsonObject location = element.toObject();
        const int bin = toInt(location.value("bin"_L1));
        if (bin < 1 || bin > binCount)
            continue;
        const auto row = static_cast<std::size_t>((bin - 1) / binsPerRow);
        const auto slot = static_cast<std::size_t>((bin - 1) % binsPerRow);
        const bool missingBin = shape.singleBinSecondZone && slot == maxSlots - 1;
        daypart.bins[row][slot] = missingBin ? emptyBin : toInt(location.value("productId"_L1));
    }
    return daypart;
}

QJsonObject writeDaypart(const Daypart &daypart, const CabinetShape &shape)
{
    QJsonArray locations;
    const int binsPerRow = shape.binsPerZone * shape.zones;
    for (int row = 0; row < shape.rows; ++row) {
        for (int slot = 0; slot < binsPerRow; ++slot) {
            const int id = daypart.bins[static_cast<std::size_t>(row)][static_cast<std::size_t>(slot)];
            locations.append(QJsonObject{{"bin"_L1, row * binsPerRow + slot + 1}, {"productId"_L1, id}});
        }
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
        groups.append(writeGroup(*group));
    QJsonArray layout;
    const CabinetShape shape = menu.shape();
    for (int i = 0; i < menu.daypartCount; ++i)
        layout.append(writeDaypart(menu.dayparts[static_cast<std::size_t>(i)], shape));

    const QJsonObject content{{"products"_L1, products}, {"productGroups"_L1, groups}, {"layout"_L1, layout}};
    const QJsonObject root{{"header"_L1, writeHeader(menu.configuration)}, {"menu"_L1, content}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

QJsonObject namesToJson(const QStringList &names)
{
    QJsonObject json;
    for (qsizetype i = 0; i < static_cast<qsizetype>(nameLanguages.size()); ++i)
        json.insert(nameLanguages[static_cast<std::size_t>(i)], names.value(i));
    return json;
}

QStringList namesFromJson(const QJsonObject &names)
{
    QStringList list;
    list.reserve(static_cast<qsizetype>(nameLanguages.size()));
    for (const QLatin1StringView language : nameLanguages) {
        const QString name = names.value(language).toString();
        // Most menus carry one text in every language: the list then shares it.
        list.append(!list.isEmpty() && name == list.constFirst() ? list.constFirst() : name);
    }
    return list;
}

} // namespace holding
