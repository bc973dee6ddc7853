// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/menus.h"

#include "holding/cabinet.h"
#include "holding/menu.h"
#include "tests/support/cbrbuilder.h"
#include "tests/support/lanefile.h"
#include "tests/support/qhxbuilder.h"
#include "tests/support/samplefile.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

// Now and then a menu as full as it may be, or fuller.
int entryCount(Chance &chance, int most)
{
    return chance.oneIn(6) ? most - chance.below(3) : chance.below(12);
}

int temperature(Chance &chance)
{
    return chance.oneIn(10) ? chance.between(-40, 999) : 150 + 10 * chance.below(7);
}

int seconds(Chance &chance)
{
    return chance.oneIn(10) ? chance.between(0, 200'000) : 60 * chance.between(1, 120);
}

QString textOf(Chance &chance, const QStringList &texts)
{
    return chance.oneIn(15) ? oddText(chance) : chance.of(texts);
}

QJsonObject header(Chance &chance)
{
    const holding::CabinetModel model = chance.of(holding::allModels);
    return samplefile::header(
        {{u"cabinetType"_s, QString(model.type)},
         {u"cabinetModel"_s, chance.oneIn(20) ? u"KTR99"_s : QString(model.name)},
         {u"temperatureUnit"_s, chance.oneIn(10) ? chance.between(-1, 7) : chance.below(2)},
         {u"fanSpeedEnabled"_s, chance.oneIn(2)},
         {u"resetTimeEnabled"_s, chance.oneIn(2)},
         {u"timerColorEnabled"_s, chance.oneIn(2)},
         {u"prodcutIdEnabled"_s, chance.oneIn(2)}});
}

// What products and groups have in common.
QJsonObject settings(Chance &chance)
{
    const int upper = temperature(chance);
    return {{u"upperTemp"_s, upper},
            {u"lowerTemp"_s, chance.oneIn(2) ? upper : temperature(chance)},
            {u"fanSpeed"_s, chance.of(QList<int>{60, 100, 0, 20000})},
            {u"zoneSplits"_s, textOf(chance, {u"1/1"_s, u"1/2"_s, u"1/3"_s, u"2/3"_s})},
            {u"lidType"_s, textOf(chance, {u"None"_s, u"Solid"_s})}};
}

QJsonObject product(Chance &chance, int id)
{
    QJsonObject changes = settings(chance);
    changes.insert(u"holdingTime"_s, seconds(chance));
    changes.insert(u"warningTime"_s, seconds(chance));
    changes.insert(u"resetTime"_s, seconds(chance));
    changes.insert(u"bottomType"_s, textOf(chance, {u"Normal"_s, u"False"_s}));
    changes.insert(u"timerColor"_s, textOf(chance, {u"#fffffd"_s, u"#402100"_s}));
    changes.insert(u"productLocked"_s, chance.oneIn(8));
    return samplefile::product(id, anyText(chance), changes);
}

QJsonObject group(Chance &chance, int id, int products)
{
    QList<int> members;
    for (int left = chance.below(6); left > 0; --left)
        members.append(chance.between(0, products + 1));
    QJsonObject changes = settings(chance);
    changes.insert(u"defaultProd"_s, chance.between(-1, 5));
    return samplefile::group(id, anyText(chance), members, changes);
}

QJsonObject daypart(Chance &chance)
{
    QList<int> bins;
    for (int left = holding::maxRows * holding::maxSlots; left > 0; --left)
        bins.append(chance.oneIn(2) ? holding::emptyBin : chance.between(-1, 12));
    QJsonObject made = samplefile::daypart(anyText(chance), bins);
    made.insert(u"inUse"_s, chance.oneIn(2));
    return made;
}

QByteArray laneValue(Chance &chance, int lowest, int highest)
{
    return QByteArray::number(chance.oneIn(5) ? chance.between(-5, 100'000)
                                              : chance.between(lowest, highest));
}

cbr::Product timerBarProduct(Chance &chance)
{
    const int upper = chance.oneIn(10) ? chance.below(256) : 100 + chance.below(4);
    return {.name = anyText(chance).toLatin1(),
            .shortName = anyText(chance).toLatin1(),
            .holdMinutes = chance.between(0, 600),
            .alertMinutes = chance.between(0, 60),
            .upper = upper,
            .lower = chance.oneIn(2) ? upper : chance.below(256)};
}

} // namespace

QByteArray holdingMenu(Chance &chance)
{
    samplefile::Menu menu;
    menu.header = header(chance);
    const int products = entryCount(chance, 105);
    for (int id = 1; id <= products; ++id)
        menu.products.append(product(chance, chance.oneIn(30) ? chance.between(-3, 40) : id));
    for (int groups = chance.below(5); groups > 0; --groups)
        menu.groups.append(group(chance, 200 + groups, products));
    for (int dayparts = chance.between(0, holding::maxDayparts); dayparts > 0; --dayparts)
        menu.layout.append(daypart(chance));
    return menu.bytes();
}

QByteArray oldHoldingMenu(Chance &chance)
{
    qhx::File file = qhx::sample();
    file.model = static_cast<quint8>(chance.below(11));
    file.unit = static_cast<quint8>(chance.below(2));
    const int products = entryCount(chance, 100);
    for (int id = 20; id < 20 + products; ++id)
        file.entries.append({.id = static_cast<quint32>(id), .name = anyText(chance).toUtf8().left(64)});
    return file.bytes();
}

QByteArray laneConfiguration(Chance &chance)
{
    constexpr int lanes = 4;
    const int used = chance.between(1, lanes);
    QByteArrayList fields;
    for (int lane = 1; lane <= lanes; ++lane)
        fields.append("T" + QByteArray::number(lane) + "=" +
                      (lane > used ? "0" : laneValue(chance, 150, 400)));
    for (int lane = 1; lane <= lanes; ++lane)
        fields.append("F" + QByteArray::number(lane) + "=" +
                      (lane > used ? "0" : laneValue(chance, 1500, 3200)));
    return lanefile::text(fields.join(','));
}

QByteArray timerBarMenu(Chance &chance)
{
    cbr::Menu menu{.model = chance.of(cbr::models()).name,
                   .unit = chance.oneIn(10) ? chance.below(256) : chance.below(2)};
    for (int products = entryCount(chance, 100); products > 0; --products)
        menu.products.append(timerBarProduct(chance));
    for (QList<int> &bins : menu.dayparts) {
        for (int left = 12; left > 0; --left)
            bins.append(chance.oneIn(2) ? cbr::noProduct : chance.below(12));
    }
    return menu.bytes();
}

} // namespace walk
