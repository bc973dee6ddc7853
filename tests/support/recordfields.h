// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

class ProductInfo;

/// The fields of a record, found by looking at its getters and setters, so that no test forgets a new one.
namespace recordfields {

/// By the field's name.
using Values = QMap<QString, QVariant>;

[[nodiscard]] Values valuesOf(const ProductInfo &record);
/// The names of the fields that differ.
[[nodiscard]] QStringList differences(const Values &left, const Values &right);
/// Gives each field a value that no other field and no new record has; flags are turned over.
void fill(ProductInfo &record);

} // namespace recordfields
