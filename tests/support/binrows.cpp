// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/binrows.h"

#include <QTest>

#include "tests/support/cabinets.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace binrows {

namespace {

const QString entryFills = u"123T"_s;

} // namespace

void addModels()
{
    QTest::addColumn<CabinetShape>("shape");
    QTest::addColumn<QString>("layout");
    for (const cabinets::Model &model : cabinets::models())
        QTest::newRow(qPrintable(model.name)) << cabinetShape(model.type, model.name) << model.row;
}

void addShapes()
{
    addModels();
    QTest::newRow("four bins a zone") << CabinetShape{2, 4, 1, false} << u"aaaa"_s;
}

void forEachRow(const std::function<void(const QString &)> &look)
{
    const QString fills = u".?"_s + entryFills;
    QStringList rows{QString()};
    for (int slot = 0; slot < maxSlots; ++slot) {
        QStringList longer;
        for (const QString &row : std::as_const(rows)) {
            for (const QChar fill : fills)
                longer.append(row + fill);
        }
        rows = longer;
    }
    for (const QString &row : std::as_const(rows))
        look(row);
}

QString zoneOf(const QString &fill, const QString &layout, int slot)
{
    return fill.sliced(layout.indexOf(layout[slot]), layout.count(layout[slot]));
}

int freeRun(const QString &fill, const QString &layout, int slot)
{
    int run = 1;
    while (slot + run < layout.size() && layout[slot + run] == layout[slot] && fill[slot + run] == u'.')
        ++run;
    return run;
}

QString splitsOf(QChar fill)
{
    switch (fill.unicode()) {
    case u'1':
        return u"1/1"_s;
    case u'2':
        return u"1/2"_s;
    case u'3':
        return u"1/3"_s;
    case u'T':
        return u"2/3"_s;
    default:
        return {};
    }
}

Entries::Entries()
{
    for (int slot = 0; slot < maxSlots; ++slot) {
        for (const QChar fill : entryFills) {
            auto entry = std::make_unique<ProductInfo>();
            entry->set_upperTemp(201 + slot);
            entry->set_lowerTemp(101 + slot);
            entry->set_fanSpeed(10 + 10 * slot);
            entry->set_zoneSplits(splitsOf(fill));
            m_entries[slot].push_back(std::move(entry));
        }
    }
}

RowContent Entries::row(const QString &fill) const
{
    RowContent row;
    for (int slot = 0; slot < row.size(); ++slot) {
        const QChar content = slot < fill.size() ? fill[slot] : u'.';
        const qsizetype entry = entryFills.indexOf(content);
        row[slot] = {content != u'.', entry < 0 ? nullptr : m_entries[slot].at(std::size_t(entry)).get()};
    }
    return row;
}

} // namespace binrows
