// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/cabinets.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace cabinets {

const QList<Model> &models()
{
    static const QList<Model> all{
        {u"QHX"_s, u"KTR22"_s, 2, u"aa"_s},   {u"QHX"_s, u"KTR23"_s, 2, u"aab"_s},
        {u"QHX"_s, u"KTR24"_s, 2, u"aabb"_s}, {u"QHX"_s, u"KTR32"_s, 3, u"aa"_s},
        {u"QHX"_s, u"KTR33"_s, 3, u"aaa"_s},  {u"QHX"_s, u"KTR34"_s, 3, u"aabb"_s},
        {u"QHX"_s, u"KTR42"_s, 4, u"aa"_s},   {u"QHX"_s, u"KTR52"_s, 5, u"aa"_s},
        {u"QHX"_s, u"KTR54"_s, 5, u"aabb"_s}, {u"QHX"_s, u"KTR63"_s, 6, u"aaa"_s},
        {u"QHX"_s, u"KTR82"_s, 8, u"aa"_s},   {u"ZPV"_s, u"ZPV43"_s, 4, u"aaa"_s},
        {u"ZPV"_s, u"ZPV23"_s, 2, u"aaa"_s},
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

QStringList modelNames(const QString &type)
{
    QStringList names;
    for (const Model &each : models()) {
        if (type.isEmpty() || each.type == type)
            names.append(each.name);
    }
    return names;
}

void addModelRows()
{
    QTest::addColumn<QString>("model");
    for (const Model &each : models())
        QTest::newRow(qPrintable(each.name)) << each.name;
}

namespace {

// As many as the model with the most bins in this row of the zone has.
int binsInRow(int row, int (Model::*binsOfZone)() const)
{
    int bins = 0;
    for (const Model &each : models())
        bins = row < each.rows ? std::max(bins, (each.*binsOfZone)()) : bins;
    return bins;
}

void addButtons(QStringList &buttons, const QString &pattern, int (Model::*binsOfZone)() const)
{
    for (int row = 0; binsInRow(row, binsOfZone) > 0; ++row) {
        for (int bin = 0; bin < binsInRow(row, binsOfZone); ++bin)
            buttons.append(pattern.arg(row).arg(bin));
    }
}

} // namespace

QStringList binButtons()
{
    QStringList buttons;
    addButtons(buttons, u"btnDaypartSelect%1_%2"_s, &Model::firstZone);
    addButtons(buttons, u"btnDaypartSelectB%1_%2"_s, &Model::secondZone);
    return buttons;
}

const QList<Zone> &zones()
{
    static const QList<Zone> all{
        {.bins = 2,
         .offered = u"1/2 1/1"_s,
         .fitting = {u"1/2"_s, u"1/1 1/2"_s},
         .widths = {{u"1/2"_s, 194}, {u"1/1"_s, 394}},
         .widthsBesideZone = {{u"1/1"_s, 230}}},
        {.bins = 3,
         .offered = u"1/3 1/2 2/3 1/1"_s,
         .fitting = {u"1/3"_s, u"2/3 1/3"_s, u"1/1 1/2 2/3 1/3"_s},
         .widths = {{u"1/3"_s, 127}, {u"1/2"_s, 194}, {u"2/3"_s, 265}, {u"1/1"_s, 394}},
         .widthsBesideZone = {}},
        {.bins = 4,
         .offered = u"1/4 1/2 3/4 1/1"_s,
         .fitting = {u"1/4"_s, u"1/2 1/4"_s, u"3/4 1/2 1/4"_s, u"1/1 3/4 1/2 1/4"_s},
         .widths = {},
         .widthsBesideZone = {}},
    };
    return all;
}

Zone zone(int bins)
{
    for (const Zone &each : zones()) {
        if (each.bins == bins)
            return each;
    }
    return {.bins = bins, .offered = {}, .fitting = {}, .widths = {}, .widthsBesideZone = {}};
}

QStringList allSplits()
{
    QStringList splits;
    for (const Zone &each : zones())
        splits += each.offered.split(u' ');
    splits.removeDuplicates();
    return splits;
}

} // namespace cabinets
