// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/newentries.h"

using namespace Qt::StringLiterals;

namespace timerbar {

std::unique_ptr<ProductInfo> newProduct(int id)
{
    auto product = std::make_unique<ProductInfo>();
    product->set_productId(id);
    product->set_upperTemp(200);
    product->set_lowerTemp(200);
    product->set_holdTime(1800);
    product->set_warningTime(300);
    product->set_zoneSplits(u"1/2"_s);
    return product;
}

std::unique_ptr<ProductInfo> duplicateOf(const ProductInfo &source, int id)
{
    auto copy = std::make_unique<ProductInfo>();
    copyFields(source, *copy);
    copy->set_productId(id);
    return copy;
}

} // namespace timerbar
