// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/cabinet.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

struct Model
{
    QLatin1StringView type;
    QLatin1StringView name;
    CabinetShape shape;
};

// In the order in which the models are offered: of the ZPV cabinets the larger one comes first.
constexpr std::array<Model, 13> models{{
    {"QHX"_L1, "KTR22"_L1, {2, 2, 1, false}},
    {"QHX"_L1, "KTR23"_L1, {2, 2, 2, true}},
    {"QHX"_L1, "KTR24"_L1, {2, 2, 2, false}},
    {"QHX"_L1, "KTR32"_L1, {3, 2, 1, false}},
    {"QHX"_L1, "KTR33"_L1, {3, 3, 1, false}},
    {"QHX"_L1, "KTR34"_L1, {3, 2, 2, false}},
    {"QHX"_L1, "KTR42"_L1, {4, 2, 1, false}},
    {"QHX"_L1, "KTR52"_L1, {5, 2, 1, false}},
    {"QHX"_L1, "KTR54"_L1, {5, 2, 2, false}},
    {"QHX"_L1, "KTR63"_L1, {6, 3, 1, false}},
    {"QHX"_L1, "KTR82"_L1, {8, 2, 1, false}},
    {"ZPV"_L1, "ZPV43"_L1, {4, 3, 1, false}},
    {"ZPV"_L1, "ZPV23"_L1, {2, 3, 1, false}},
}};

} // namespace

bool isQhx(const QString &type)
{
    return type == "QHX"_L1;
}

bool isZpv(const QString &type)
{
    return type == "ZPV"_L1;
}

QStringList cabinetTypes()
{
    return {u"QHX"_s, u"ZPV"_s};
}

QStringList cabinetModels(const QString &type)
{
    QStringList names;
    for (const Model &model : models) {
        if (model.type == type)
            names.append(model.name);
    }
    return names;
}

CabinetShape cabinetShape(const QString &type, const QString &model)
{
    const auto *found = std::find_if(models.begin(), models.end(), [&](const Model &candidate) {
        return candidate.type == type && candidate.name == model;
    });
    return found == models.end() ? CabinetShape{} : found->shape;
}

} // namespace holding
