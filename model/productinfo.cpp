// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/productinfo.h"

namespace {

[[maybe_unused]] const int registered = qRegisterMetaType<ProductInfo>();

// An equal text is not assigned, so that the stored one keeps the data that it shares.
template <typename T>
void assignIfDifferent(T &field, const T &value)
{
    if (field != value)
        field = value;
}

} // namespace

ProductInfo::ProductInfo(QObject *parent)
    : QObject(parent)
{}

int ProductInfo::get_productId() const
{
    return m_productId;
}

void ProductInfo::set_productId(int value)
{
    assignIfDifferent(m_productId, value);
}

bool ProductInfo::get_isGroup() const
{
    return m_isGroup;
}

void ProductInfo::set_isGroup(bool value)
{
    assignIfDifferent(m_isGroup, value);
}

bool ProductInfo::get_productLocked() const
{
    return m_productLocked;
}

void ProductInfo::set_productLocked(bool value)
{
    assignIfDifferent(m_productLocked, value);
}

QStringList ProductInfo::get_productName() const
{
    return m_productName;
}

void ProductInfo::set_productName(const QStringList &value)
{
    m_productName = value;
}

QString ProductInfo::get_productShortName() const
{
    return m_productShortName;
}

void ProductInfo::set_productShortName(const QString &value)
{
    assignIfDifferent(m_productShortName, value);
}

int ProductInfo::get_upperTemp() const
{
    return m_upperTemp;
}

void ProductInfo::set_upperTemp(int value)
{
    assignIfDifferent(m_upperTemp, value);
}

int ProductInfo::get_lowerTemp() const
{
    return m_lowerTemp;
}

void ProductInfo::set_lowerTemp(int value)
{
    assignIfDifferent(m_lowerTemp, value);
}

int ProductInfo::get_holdTime() const
{
    return m_holdTime;
}

void ProductInfo::set_holdTime(int value)
{
    assignIfDifferent(m_holdTime, value);
}

int ProductInfo::get_warningTime() const
{
    return m_warningTime;
}

void ProductInfo::set_warningTime(int value)
{
    assignIfDifferent(m_warningTime, value);
}

QString ProductInfo::get_zoneSplits() const
{
    return m_zoneSplits;
}

void ProductInfo::set_zoneSplits(const QString &value)
{
    assignIfDifferent(m_zoneSplits, value);
}

QString ProductInfo::get_lidType() const
{
    return m_lidType;
}

void ProductInfo::set_lidType(const QString &value)
{
    assignIfDifferent(m_lidType, value);
}

QString ProductInfo::get_bottomType() const
{
    return m_bottomType;
}

void ProductInfo::set_bottomType(const QString &value)
{
    assignIfDifferent(m_bottomType, value);
}

int ProductInfo::get_fanSpeed() const
{
    return m_fanSpeed;
}

void ProductInfo::set_fanSpeed(int value)
{
    assignIfDifferent(m_fanSpeed, value);
}

int ProductInfo::get_resetTime() const
{
    return m_resetTime;
}

void ProductInfo::set_resetTime(int value)
{
    assignIfDifferent(m_resetTime, value);
}

QString ProductInfo::get_timerColor() const
{
    return m_timerColor;
}

void ProductInfo::set_timerColor(const QString &value)
{
    assignIfDifferent(m_timerColor, value);
}

QList<int> ProductInfo::get_productList() const
{
    return m_productList;
}

void ProductInfo::set_productList(const QList<int> &value)
{
    m_productList = value;
}

int ProductInfo::get_defaultIndex() const
{
    return m_defaultIndex;
}

void ProductInfo::set_defaultIndex(int value)
{
    assignIfDifferent(m_defaultIndex, value);
}
