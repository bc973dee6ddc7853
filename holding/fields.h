// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>

#include "holding/cabinet.h"
#include "model/productinfo.h"

/// The fields of products and groups: where a menu file keeps each, and how the details show it.
namespace holding {

/// Where an entry's JSON object keeps a field. Reading takes any value: one of a wrong type counts as
/// missing, a number that is no whole 32-bit number as 0.
struct StoredField
{
    QLatin1StringView key;
    void (*read)(const QJsonValue &value, ProductInfo &entry) = nullptr;
    /// What the configuration switches off is written as 0 of products, and as it is stored of groups.
    QJsonValue (*write)(const ProductInfo &entry, const CabinetConfiguration &configuration) = nullptr;
};

/// What the details show of a field, in a pair of labels whose names are "lbl" and "txt" before `name`.
struct FieldDetail
{
    QLatin1StringView name; ///< empty for a field that has no detail
    QString (*text)(const ProductInfo &entry, const CabinetConfiguration &configuration) = nullptr;
    /// Whether a cabinet has it; null for every cabinet.
    bool (*isUsed)(const CabinetConfiguration &configuration) = nullptr;

    [[nodiscard]] bool isShown(const CabinetConfiguration &configuration) const
    {
        return !isUsed || isUsed(configuration);
    }
};

struct ProductField
{
    StoredField stored;
    FieldDetail detail = {};
};

[[nodiscard]] const QList<ProductField> &productFields();
/// Groups are shown with the details of products.
[[nodiscard]] const QList<StoredField> &groupFields();

/// A whole number of JSON, 0 for anything else.
[[nodiscard]] int intFromJson(const QJsonValue &value);

} // namespace holding
