// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The fields of a ProductInfo, one X each: type, the setter's argument, name, what a new record holds. The
// record's members, getters, setters and copies are made from this list, in its order.
// clang-format off
#define FOR_EACH_PRODUCT_FIELD(X) \
    X(int, int, productId, 0) \
    X(bool, bool, isGroup, false) \
    X(bool, bool, productLocked, false) \
    X(QStringList, const QStringList &, productName, {QString()}) \
    X(QString, const QString &, productShortName, {}) \
    X(int, int, upperTemp, 0) \
    X(int, int, lowerTemp, 0) \
    X(int, int, holdTime, 0) \
    X(int, int, warningTime, 0) \
    X(QString, const QString &, zoneSplits, {}) \
    X(QString, const QString &, lidType, {}) \
    X(QString, const QString &, bottomType, {}) \
    X(int, int, fanSpeed, 0) \
    X(int, int, resetTime, 0) \
    X(QString, const QString &, timerColor, QStringLiteral("#fffffd")) \
    X(QList<int>, const QList<int> &, productList, {}) \
    X(int, int, defaultIndex, 0)
// clang-format on
