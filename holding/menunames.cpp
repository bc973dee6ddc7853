// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menunames.h"

#include "model/names.h"

namespace holding {

QJsonObject namesToJson(const QStringList &names)
{
    QJsonObject json;
    qsizetype position = 0;
    for (const QLatin1StringView language : nameLanguages)
        json.insert(language, names.value(position++));
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
