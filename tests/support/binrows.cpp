// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/binrows.h"

#include <QTest>

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
    const std::array<std::pair<const char *, const char *>, 13> models{{{"KTR22", "aa"},
                                                                        {"KTR23", "aab"},
                                                                        {"KTR24", "aabb"},
                                                                        {"KTR32", "aa"},
                                                                        {"KTR33", "aaa"},
                                                                        {"KTR34", "aabb"},
                                                                        {"KTR42", "aa"},
                                                                        {"KTR52", "aa"},
                                                                        {"KTR54", "aabb"},
                                                                        {"KTR63", "aaa"},
                                                                        {"KTR82", "aa"},
                                                                        {"ZPV43", "aaa"},
                                                                        {"ZPV23", "aaa"}}};
    for (const auto &[model, layout] : models) {
        const QString name = QString::fromLatin1(model);
        QTest::newRow(model) << cabinetShape(name.first(1) == u'Z' ? u"ZPV"_s : u"QHX"_s, name)
                             << QString::fromLatin1(layout);
    }
}

void addShapes()
{
    addModels();
    QTest::newRow("four bins a zone") << CabinetShape{2, 4, 1, false} << u"aaaa"_s;
}

void forEachRow(const std::function<void(const QString &)> &look)
{
    const QString fills = u".?"_s + entryFills;
    for (const QChar first : fills) {
        for (const QChar second : fills) {
            for (const QChar third : fills) {
                for (const QChar fourth : fills) {
                    if (!QTest::currentTestFailed())
                        look(QString(first) + second + third + fourth);
                }
            }
        }
    }
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
        for (qsizetype i = 0; i < entryFills.size(); ++i) {
            auto entry = std::make_unique<ProductInfo>();
            entry->set_upperTemp(201 + slot);
            entry->set_lowerTemp(101 + slot);
            entry->set_fanSpeed(10 + 10 * slot);
            entry->set_zoneSplits(splitsOf(entryFills[i]));
            m_entries[slot][i] = std::move(entry);
        }
    }
}

RowContent Entries::row(const QString &fill) const
{
    RowContent row;
    for (int slot = 0; slot < row.size(); ++slot) {
        const QChar content = fill[slot];
        const qsizetype entry = entryFills.indexOf(content);
        row[slot] = {content != u'.', entry < 0 ? nullptr : m_entries[slot][entry].get()};
    }
    return row;
}

} // namespace binrows
