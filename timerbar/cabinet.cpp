// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/cabinet.h"

namespace timerbar {

QStringList cabinetModels()
{
    QStringList names;
    for (const CabinetModel &model : allModels)
        names.append(model.name);
    return names;
}

CabinetShape cabinetShape(const QString &model)
{
    const auto *found = std::find_if(allModels.begin(), allModels.end(),
                                     [&](const CabinetModel &candidate) { return candidate.name == model; });
    return found == allModels.end() ? CabinetShape{} : found->shape;
}

QString modelOfShape(int rows, int columns)
{
    const auto *found = std::find_if(allModels.begin(), allModels.end(), [=](const CabinetModel &candidate) {
        return candidate.shape.rows == rows && candidate.shape.columns() == columns;
    });
    return found == allModels.end() ? QString() : QString(found->name);
}

} // namespace timerbar
