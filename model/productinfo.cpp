// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/productinfo.h"

namespace {

[[maybe_unused]] const int registered = qRegisterMetaType<ProductInfo>();

// An equal value is not assigned, so that a stored text keeps the data that it shares.
template <typename T>
void assign(T &field, const T &value)
{
    if (field != value)
        field = value;
}

template <typename T>
void assign(QList<T> &field, const QList<T> &value)
{
    field = value;
}

} // namespace

ProductInfo::ProductInfo(QObject *parent)
    : QObject(parent)
{}

#define DEFINE_ACCESSORS(Type, Argument, field, initially)                                                   \
    Type ProductInfo::get_##field() const                                                                    \
    {                                                                                                        \
        return m_##field;                                                                                    \
    }                                                                                                        \
    void ProductInfo::set_##field(Argument value)                                                            \
    {                                                                                                        \
        assign(m_##field, value);                                                                            \
    }
FOR_EACH_PRODUCT_FIELD(DEFINE_ACCESSORS)
#undef DEFINE_ACCESSORS

void copyFields(const ProductInfo &source, ProductInfo &copy)
{
#define COPY_FIELD(Type, Argument, field, initially) copy.set_##field(source.get_##field());
    FOR_EACH_PRODUCT_FIELD(COPY_FIELD)
#undef COPY_FIELD
}
