// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// The holding cabinets and their zones, as the tests know them. A further model or zone split is one more
/// line here; tst_cabinet and tst_zonesplits tell of one that is missing.
namespace cabinets {

struct Model
{
    QString type;
    QString name;
    int rows;
    QString row; ///< a letter a bin, the same one in a zone: "aab" is two bins beside one

    [[nodiscard]] int firstZone() const { return static_cast<int>(row.count(u'a')); }
    [[nodiscard]] int secondZone() const { return static_cast<int>(row.count(u'b')); }
    /// Places in a row of a file, where both zones are of one size.
    [[nodiscard]] int places() const { return (secondZone() > 0 ? 2 : 1) * firstZone(); }
    /// False for the places that only a file has.
    [[nodiscard]] bool hasBin(int row_, int slot) const { return row_ < rows && slot < row.size(); }
};

[[nodiscard]] const QList<Model> &models();
/// Aborts the test program for an unknown name.
[[nodiscard]] const Model &model(const QString &name);
/// The models of a type, or all of them.
[[nodiscard]] QStringList modelNames(const QString &type = {});
/// A test column "model" with the models' names.
void addModelRows();

/// The buttons of the grid in the order of their slots: those that some model shows.
[[nodiscard]] QStringList binButtons();

/// A zone of so many bins.
struct Zone
{
    int bins;
    QString offered;     ///< the splits of a product, the first one of a new product first
    QStringList fitting; ///< the splits that fit one free bin, two and so on, the largest first
    /// The least width in pixels of a button with an entry of this split, where it is not that of an empty
    /// bin, in a zone that is alone in its row and in one of two.
    QMap<QString, int> widths;
    QMap<QString, int> widthsBesideZone;
};

[[nodiscard]] const QList<Zone> &zones();
/// A zone without splits for a number of bins that no zone has.
[[nodiscard]] Zone zone(int bins);
/// All that some zone can be split into.
[[nodiscard]] QStringList allSplits();

} // namespace cabinets
