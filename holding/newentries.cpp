// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/newentries.h"

#include "holding/zonesplits.h"
#include "model/names.h"

using namespace Qt::StringLiterals;

namespace holding {

std::unique_ptr<ProductInfo> newProduct(int id, int binsPerZone)
{
    auto product = std::make_unique<ProductInfo>();
    product->set_productId(id);
    product->set_productName(sameNameInAllLanguages({}));
    product->set_upperTemp(200);
    product->set_lowerTemp(200);
    product->set_holdTime(1800);
    product->set_warningTime(300);
    product->set_resetTime(300);
    product->set_lidType(u"None"_s);
    product->set_bottomType(u"Normal"_s);
    product->set_zoneSplits(defaultZoneSplits(binsPerZone));
    return product;
}

std::unique_ptr<ProductInfo> newGroup(int id)
{
    auto group = std::make_unique<ProductInfo>();
    group->set_isGroup(true);
    group->set_productId(id);
    group->set_productName(sameNameInAllLanguages({}));
    return group;
}

std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id)
{
    auto copy = std::make_unique<ProductInfo>();
    copyFields(source, *copy);
    copy->set_productId(id);
    copy->set_productLocked(false);
    return copy;
}

} // namespace holding
