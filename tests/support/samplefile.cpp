// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/samplefile.h"

#include <QJsonDocument>

#include "tests/support/languages.h"
#include "tests/support/testfolder.h"

using namespace Qt::StringLiterals;

namespace samplefile {

namespace {

QJsonObject with(QJsonObject object, const QJsonObject &changes)
{
    for (auto change = changes.begin(); change != changes.end(); ++change)
        object.insert(change.key(), change.value());
    return object;
}

} // namespace

QJsonObject names(const QString &name)
{
    QJsonObject json;
    for (const char *language : languageKeys)
        json.insert(QLatin1StringView(language), name);
    return json;
}

QJsonObject header(const QJsonObject &changes)
{
    return with({{u"Note"_s, u"Manual edits may render this file useless"_s},
                 {u"menuVersion"_s, 1},
                 {u"menuDescription"_s, u"Varno Holding Menu File"_s},
                 {u"cabinetType"_s, u"QHX"_s},
                 {u"cabinetModel"_s, u"KTR22"_s},
                 {u"temperatureUnit"_s, 0},
                 {u"fanSpeedEnabled"_s, false},
                 {u"resetTimeEnabled"_s, false},
                 {u"timerColorEnabled"_s, false},
                 {u"prodcutIdEnabled"_s, false}},
                changes);
}

QJsonObject headerWithAllSwitches(const QJsonObject &changes)
{
    return header(with({{u"fanSpeedEnabled"_s, true},
                        {u"resetTimeEnabled"_s, true},
                        {u"timerColorEnabled"_s, true},
                        {u"prodcutIdEnabled"_s, true}},
                       changes));
}

QJsonObject product(int id, const QString &name, const QJsonObject &changes)
{
    return with({{u"productId"_s, id},
                 {u"productName"_s, names(name)},
                 {u"holdingTime"_s, 1800},
                 {u"warningTime"_s, 300},
                 {u"lowerTemp"_s, 200},
                 {u"upperTemp"_s, 200},
                 {u"fanSpeed"_s, 60},
                 {u"resetTime"_s, 300},
                 {u"zoneSplits"_s, u"1/2"_s},
                 {u"timerColor"_s, u"#fffffd"_s},
                 {u"productLocked"_s, false},
                 {u"lidType"_s, u"None"_s},
                 {u"bottomType"_s, u"Normal"_s}},
                changes);
}

QJsonObject group(int id, const QString &name, const QList<int> &members, const QJsonObject &changes)
{
    QJsonArray products;
    for (const int member : members)
        products.append(member);
    return with({{u"groupId"_s, id},
                 {u"groupName"_s, names(name)},
                 {u"zoneSplits"_s, u"1/2"_s},
                 {u"lowerTemp"_s, 200},
                 {u"upperTemp"_s, 200},
                 {u"fanSpeed"_s, 60},
                 {u"lidType"_s, u"None"_s},
                 {u"defaultProd"_s, 0},
                 {u"products"_s, products}},
                changes);
}

QJsonObject daypart(const QString &name, const QList<int> &bins)
{
    QJsonArray locations;
    for (const int id : bins)
        locations.append(QJsonObject{{u"bin"_s, locations.size() + 1}, {u"productId"_s, id}});
    return {{u"daypartName"_s, names(name)}, {u"inUse"_s, true}, {u"productLocations"_s, locations}};
}

QJsonObject Menu::root() const
{
    return {{u"header"_s, header},
            {u"menu"_s,
             QJsonObject{{u"products"_s, products}, {u"productGroups"_s, groups}, {u"layout"_s, layout}}}};
}

QByteArray Menu::bytes() const
{
    return QJsonDocument(root()).toJson();
}

QJsonObject menuOf(const QString &path)
{
    return QJsonDocument::fromJson(contentOf(path)).object().value(u"menu"_s).toObject();
}

QList<int> binsOf(const QJsonObject &menu, int daypart)
{
    QList<int> ids;
    const QJsonArray locations =
        menu.value(u"layout"_s).toArray().at(daypart).toObject().value(u"productLocations"_s).toArray();
    for (const QJsonValue location : locations)
        ids.append(location.toObject().value(u"productId"_s).toInt(-1));
    return ids;
}

} // namespace samplefile
