// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QByteArray>
#include <QList>
#include <QString>

/// Timer Bar menu files put together byte by byte, so that they owe nothing to the program's own writer and
/// can hold what it never writes.
namespace cbr {

/// A model and its bins in the order of their numbers, each as "row column" counted from the top left.
struct Model
{
    QString name;
    int rows;
    int columns;
    QList<QByteArray> bins;
};

[[nodiscard]] const QList<Model> &models();
/// Aborts the test program for an unknown name.
[[nodiscard]] const Model &model(const QString &name);
/// A test column "model" with the models' names.
void addModelRows();
/// Test columns "model", "products" and "unit": menus of every size that manyInBins() makes.
void addMenuRows();

/// The values as the file holds them.
struct Product
{
    QByteArray name;
    QByteArray shortName;
    int holdMinutes = 30;
    int alertMinutes = 5;
    int upper = 101; ///< °F - 99
    int lower = 101;

    /// The 39 bytes; what is too long is cut.
    [[nodiscard]] QByteArray record() const;
};

constexpr int noProduct = 100;

struct Menu
{
    QString model = QStringLiteral("KTR22");
    int unit = 0;
    QList<Product> products = {};
    /// Product numbers from bin 0 on; bins that are not named are empty.
    std::array<QList<int>, 6> dayparts = {};

    [[nodiscard]] QByteArray daypartRecord(int index) const;
    [[nodiscard]] QByteArray bytes() const;
};

constexpr qsizetype headerSize = 13;
constexpr qsizetype productSize = 39;

/// This many products, each with other values.
[[nodiscard]] QList<Product> manyProducts(int count);
/// manyProducts() in a menu whose bins hold them in turn, with some bins left empty.
[[nodiscard]] Menu manyInBins(const QString &model, int count, int unit = 0);

/// The same file with the checksum of its bytes.
[[nodiscard]] QByteArray withChecksum(QByteArray bytes);
/// The same file with one byte changed and the checksum made right again.
[[nodiscard]] QByteArray withByte(QByteArray bytes, qsizetype offset, int value);

} // namespace cbr
