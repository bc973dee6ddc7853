// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/cabinet.h"

namespace timerbar {

QList<Bin> CabinetShape::allBins() const
{
    QList<Bin> all;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns(); ++column)
            all.append({row, column});
    }
    return all;
}

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
