// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>

#include "model/productfields.h"

// clang-format off
#define DECLARE_PRODUCT_ACCESSORS(Type, Argument, field, initially) \
    [[nodiscard]] Type get_##field() const; \
    void set_##field(Argument value);
#define DECLARE_PRODUCT_MEMBER(Type, Argument, field, initially) \
    Type m_##field = initially;
// clang-format on

/// One entry of a menu: a product, or in the holding-cabinet line a group of products.
///
/// Temperatures are whole °F whatever the menu's unit, times whole seconds, the fan speed revolutions per
/// minute. A record validates nothing: the dialogs and readers that fill it do. Editors own their records
/// through their lists and give them no parent.
///
/// - `productId`: what bins and groups refer to; a group's own id. Which number means "none" is the line's.
/// - `productName`: one name a menu language in the order of `nameLanguages`, the first one is shown.
/// - `productShortName`: Timer Bar line only.
/// - `zoneSplits`: the share of a zone that the entry takes, such as "1/2".
/// - `timerColor`: "#" and six lower-case hexadecimal digits; "#fffffd" is no colour.
/// - `productList`, `defaultIndex`: groups only: the members' ids in order and the default member's
///   0-based position among them. A file may hold any position: check it at every use.
class ProductInfo : public QObject
{
    Q_OBJECT

public:
    explicit ProductInfo(QObject *parent = nullptr);

public slots: // get_<field>() and set_<field>(value) of each field
    FOR_EACH_PRODUCT_FIELD(DECLARE_PRODUCT_ACCESSORS)

private:
    FOR_EACH_PRODUCT_FIELD(DECLARE_PRODUCT_MEMBER)
};

#undef DECLARE_PRODUCT_ACCESSORS
#undef DECLARE_PRODUCT_MEMBER

/// Makes `copy` hold what `source` holds, in every field.
void copyFields(const ProductInfo &source, ProductInfo &copy);

Q_DECLARE_METATYPE(ProductInfo)
