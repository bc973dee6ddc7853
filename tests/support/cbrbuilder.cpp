// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/cbrbuilder.h"

#include <QTest>

#include "tests/support/checksum.h"

using namespace Qt::StringLiterals;

namespace cbr {

namespace {

QByteArray byte(int value)
{
    return QByteArray(1, static_cast<char>(value & 0xFF));
}

QByteArray bigEndian(int value)
{
    return byte(value >> 8) + byte(value);
}

QByteArray littleEndian(int value)
{
    return byte(value) + byte(value >> 8);
}

} // namespace

const QList<Model> &models()
{
    static const QList<Model> all{
        {u"KTR22"_s, 2, 2, {"10", "11", "00", "01"}},
        {u"KTR23"_s, 2, 3, {"10", "11", "12", "00", "01", "02"}},
        {u"KTR24"_s, 2, 4, {"10", "11", "12", "13", "00", "01", "02", "03"}},
        {u"KTR32"_s, 3, 2, {"20", "21", "10", "11", "00", "01"}},
        {u"KTR34"_s, 3, 4, {"20", "21", "22", "23", "10", "11", "12", "13", "00", "01", "02", "03"}},
        {u"KTR42"_s, 4, 2, {"30", "31", "20", "21", "10", "11", "00", "01"}},
    };
    return all;
}

const Model &model(const QString &name)
{
    for (const Model &each : models()) {
        if (each.name == name)
            return each;
    }
    qFatal("There is no model %s", qPrintable(name));
}

void addModelRows()
{
    QTest::addColumn<QString>("model");
    for (const Model &each : models())
        QTest::newRow(qPrintable(each.name)) << each.name;
}

void addMenuRows()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("products");
    QTest::addColumn<int>("unit");
    for (const Model &each : models()) {
        for (const int products : {0, 1, 100}) {
            for (const int unit : {0, 1})
                QTest::addRow("%s, %d products, unit %d", qPrintable(each.name), products, unit)
                    << each.name << products << unit;
        }
    }
}

QByteArray Product::record() const
{
    QByteArray wide;
    for (const char character : shortName.left(4))
        wide += byte(0) + byte(character);
    return bigEndian(holdMinutes) + byte(upper) + byte(lower) + bigEndian(alertMinutes) +
           wide.leftJustified(8, '\0') + name.left(25).leftJustified(25, '\0');
}

QByteArray Menu::daypartRecord(int index) const
{
    const QList<int> &numbers = dayparts[static_cast<std::size_t>(index)];
    QByteArray record = byte(index);
    for (int bin = 0; bin < cbr::model(model).bins.size(); ++bin)
        record += byte(bin) + byte(numbers.value(bin, noProduct));
    return record;
}

QByteArray Menu::bytes() const
{
    const Model &shape = cbr::model(model);
    const auto count = static_cast<int>(products.size());
    const int length = 13 + 39 * count + 6 * (2 * static_cast<int>(shape.bins.size()) + 1);
    QByteArray bytes = littleEndian(0) + byte(1) + byte(0) + byte(3) + byte(0) + byte(shape.rows) +
                       byte(shape.columns) + byte(unit) + byte(count) + byte(39) + littleEndian(length);
    for (const Product &product : products)
        bytes += product.record();
    for (int index = 0; index < 6; ++index)
        bytes += daypartRecord(index);
    return withChecksum(bytes);
}

QList<Product> manyProducts(int count)
{
    QList<Product> products;
    for (int i = 0; i < count; ++i)
        products.append({.name = "Product number " + QByteArray::number(i),
                         .shortName = 'P' + QByteArray::number(i),
                         .holdMinutes = 6 + 3 * i,
                         .alertMinutes = 1 + i,
                         .upper = 1 + i,
                         .lower = 155 - i});
    return products;
}

Menu manyInBins(const QString &model, int count, int unit)
{
    Menu menu{.model = model, .unit = unit, .products = manyProducts(count)};
    for (std::size_t index = 0; index < menu.dayparts.size(); ++index) {
        for (int bin = 0; bin < cbr::model(model).bins.size(); ++bin) {
            const int number = 7 * static_cast<int>(index) + 3 * bin;
            menu.dayparts[index].append(bin % 5 == 2 || count == 0 ? noProduct : number % count);
        }
    }
    return menu;
}

QByteArray withChecksum(QByteArray bytes)
{
    return bytes.size() < 2 ? bytes : littleEndian(checksum::ofMenu(bytes.sliced(2))) + bytes.sliced(2);
}

QByteArray withByte(QByteArray bytes, qsizetype offset, int value)
{
    bytes[offset] = static_cast<char>(value);
    return withChecksum(std::move(bytes));
}

} // namespace cbr
