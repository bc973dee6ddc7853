// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/cabinet.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace holding {

static_assert(std::all_of(allModels.begin(), allModels.end(),
                          [](const CabinetModel &model) {
                              return model.shape.rows <= maxRows && model.shape.binsPerRow() <= maxSlots;
                          }),
              "a day part has no room for the bins of some model");

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
    QStringList types;
    for (const CabinetModel &model : allModels)
        types.append(model.type);
    types.removeDuplicates();
    return types;
}

QStringList cabinetModels(const QString &type)
{
    QStringList names;
    for (const CabinetModel &model : allModels) {
        if (model.type == type)
            names.append(model.name);
    }
    return names;
}

CabinetShape cabinetShape(const QString &type, const QString &model)
{
    const auto *found = std::find_if(allModels.begin(), allModels.end(), [&](const CabinetModel &candidate) {
        return candidate.type == type && candidate.name == model;
    });
    return found == allModels.end() ? CabinetShape{} : found->shape;
}

bool isShowableRowCount(int rows)
{
    return std::any_of(allModels.begin(), allModels.end(),
                       [rows](const CabinetModel &model) { return model.shape.rows == rows; });
}

} // namespace holding
