// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

/// Holding-cabinet menu files, written by the tests themselves rather than by the program. Everywhere
/// `changes` replaces or adds keys of the object.
namespace samplefile {

/// The name in every language.
[[nodiscard]] QJsonObject names(const QString &name);

/// "QHX" "KTR22" in °F with every switch off.
[[nodiscard]] QJsonObject header(const QJsonObject &changes = {});
/// header() with every switch on.
[[nodiscard]] QJsonObject headerWithAllSwitches(const QJsonObject &changes = {});
/// 200 °F, held for 30 minutes, alert and reset after 5 minutes, fan speed 60, half a zone, no lid.
[[nodiscard]] QJsonObject product(int id, const QString &name, const QJsonObject &changes = {});
/// A group whose shared settings are those of product().
[[nodiscard]] QJsonObject group(int id, const QString &name, const QList<int> &members,
                                const QJsonObject &changes = {});
/// A day part in use; `bins` are the ids from the first bin on.
[[nodiscard]] QJsonObject daypart(const QString &name, const QList<int> &bins);

struct Menu
{
    QJsonObject header = samplefile::header();
    QJsonArray products;
    QJsonArray groups;
    QJsonArray layout;

    [[nodiscard]] QJsonObject root() const;
    [[nodiscard]] QByteArray bytes() const;
};

/// The "menu" object of a written file.
[[nodiscard]] QJsonObject menuOf(const QString &path);
/// The ids in the bins of a day part, from the first bin on.
[[nodiscard]] QList<int> binsOf(const QJsonObject &menu, int daypart);

} // namespace samplefile
