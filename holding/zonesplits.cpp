// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/zonesplits.h"

#include <algorithm>

#include <QList>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

constexpr bool hasSplits(int binsPerZone)
{
    return std::any_of(allZoneSplits.begin(), allZoneSplits.end(),
                       [=](const ZoneSplit &split) { return split.binsPerZone == binsPerZone; });
}

static_assert(std::all_of(allModels.begin(), allModels.end(),
                          [](const CabinetModel &model) { return hasSplits(model.shape.binsPerZone); }),
              "the zones of some model have no zone splits");

QList<ZoneSplit> splitsOf(int binsPerZone)
{
    QList<ZoneSplit> splits;
    std::copy_if(allZoneSplits.begin(), allZoneSplits.end(), std::back_inserter(splits),
                 [=](const ZoneSplit &split) { return split.binsPerZone == binsPerZone; });
    return splits;
}

QStringList textsOf(const QList<ZoneSplit> &splits)
{
    QStringList texts;
    for (const ZoneSplit &split : splits)
        texts.append(split.text);
    return texts;
}

QStringList splitsForRun(int binsPerZone, int freeSlots)
{
    QList<ZoneSplit> splits = splitsOf(binsPerZone);
    splits.removeIf([=](const ZoneSplit &split) { return split.slotsNeeded > freeSlots; });
    std::reverse(splits.begin(), splits.end());
    std::stable_sort(splits.begin(), splits.end(), [](const ZoneSplit &left, const ZoneSplit &right) {
        return left.slotsNeeded > right.slotsNeeded;
    });
    return textsOf(splits);
}

static_assert(std::all_of(allZoneSplits.begin(), allZoneSplits.end(),
                          [](const ZoneSplit &split) {
                              return split.binsPerZone <= maxSlots && split.slotsNeeded <= maxSlots;
                          }),
              "a split needs more slots than a row has");

using SplitsForRuns = FixedList<FixedList<QStringList, maxSlots + 1>, maxSlots + 1>;

SplitsForRuns allSplitsForRuns()
{
    SplitsForRuns all;
    for (int bins = 0; bins <= maxSlots; ++bins) {
        for (int freeSlots = 0; freeSlots <= maxSlots; ++freeSlots)
            all[bins][freeSlots] = splitsForRun(bins, freeSlots);
    }
    return all;
}

} // namespace

QStringList offeredZoneSplits(int binsPerZone)
{
    return textsOf(splitsOf(binsPerZone));
}

QString defaultZoneSplits(int binsPerZone)
{
    return offeredZoneSplits(binsPerZone).value(0, u"1/2"_s);
}

// Every bin of a menu that is opened asks for them.
QStringList zoneSplitsForRun(int binsPerZone, int freeSlots)
{
    static const SplitsForRuns all = allSplitsForRuns();
    if (binsPerZone < 0 || binsPerZone > maxSlots)
        return {};
    return all[binsPerZone][std::clamp(freeSlots, 0, maxSlots)];
}

int binButtonWidth(const CabinetShape &shape, const QString &zoneSplits)
{
    const auto *found = std::find_if(allZoneSplits.begin(), allZoneSplits.end(), [&](const ZoneSplit &split) {
        return split.binsPerZone == shape.binsPerZone && split.text == zoneSplits;
    });
    if (found == allZoneSplits.end() || shape.zones < 1 || shape.zones > 2)
        return emptyBinButtonWidth;
    return shape.zones == 2 ? found->widthBesideZone : found->width;
}

} // namespace holding
