// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// The values of a menu document in structs without rules, and the least code that carries them from and to
/// JSON: what reading and writing are measured against. Only good documents are understood.
namespace plain {

struct Header
{
    QString note, description, type, model;
    int version = 0;
    int temperatureUnit = 0;
    bool fanSpeedEnabled = false;
    bool resetTimeEnabled = false;
    bool timerColorEnabled = false;
    bool productIdEnabled = false;
};

struct Product
{
    int id = 0;
    QStringList names;
    int holdingTime = 0;
    int warningTime = 0;
    int lowerTemp = 0;
    int upperTemp = 0;
    int fanSpeed = 0;
    int resetTime = 0;
    QString zoneSplits, timerColor, lidType, bottomType;
    bool locked = false;
};

struct Group
{
    int id = 0;
    QStringList names;
    QString zoneSplits, lidType;
    int lowerTemp = 0;
    int upperTemp = 0;
    int fanSpeed = 0;
    int defaultProduct = 0;
    QList<int> products;
};

struct Location
{
    int bin = 0;
    int productId = 0;
};

struct Daypart
{
    QStringList names;
    std::vector<Location> locations;
    bool inUse = false;
};

struct Menu
{
    Header header;
    std::vector<Product> products;
    std::vector<Group> groups;
    std::vector<Daypart> layout;
};

[[nodiscard]] Menu read(const QByteArray &json);
[[nodiscard]] QByteArray write(const Menu &menu);

} // namespace plain
