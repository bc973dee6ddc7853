// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/inconsistencies.h"

#include <algorithm>
#include <unordered_set>

#include "holding/bins.h"
#include "holding/groupdraft.h"
#include "holding/productrules.h"
#include "holding/producttypes.h"
#include "holding/timercolors.h"
#include "model/timelimits.h"
#include "model/times.h"

namespace holding {

namespace {

using Part = MenuPlace::Part;

// Files need not have a word at all.
bool isUnknownWord(const QStringList &words, const QString &word)
{
    return !word.isEmpty() && !words.contains(word);
}

/// Tells which members of a list stand before in it, too.
class Repetitions
{
public:
    explicit Repetitions(const QList<int> &ids)
        : m_ids(ids)
    {}

    /// To be asked of one position after the other.
    [[nodiscard]] bool isRepeated(int position)
    {
        if (m_ids.size() > maxEntries) // of a file, which may have millions
            return !m_seen.insert(m_ids[position]).second;
        const auto here = m_ids.begin() + position;
        return std::find(m_ids.begin(), here, *here) != here;
    }

private:
    const QList<int> &m_ids;
    std::unordered_set<int> m_seen;
};

void countIf(bool condition, int position, Finding &finding)
{
    if (condition && finding.count++ == 0)
        finding.position = position;
}

class Inspection
{
public:
    explicit Inspection(const Menu &menu)
        : m_menu(menu)
        , m_configuration(menu.configuration)
        , m_shape(menu.shape())
        , m_entries(menu.entriesById())
        , m_zoneSplits(offeredZoneSplits(m_shape.binsPerZone))
    {}

    [[nodiscard]] Findings findings();

private:
    void lookAtNumber();
    void lookAtEntry(const ProductInfo &entry, const MenuPlace &place);
    void lookAtTimes(const ProductInfo &product, const MenuPlace &place);
    void lookAtTemperatures(const ProductInfo &product, const MenuPlace &place);
    void lookAtChoices(const ProductInfo &product, const MenuPlace &place);
    void lookAtMembers(const ProductInfo &group, const MenuPlace &place);
    void lookAtRow(const Daypart &daypart, int index, int row);
    [[nodiscard]] bool fits(const RowContent &row, int slot) const;

    void addIf(bool condition, FindingKind kind, const MenuPlace &place)
    {
        if (condition)
            m_found.add({.kind = kind, .place = place});
    }

    const Menu &m_menu;
    const CabinetConfiguration &m_configuration;
    const CabinetShape m_shape;
    const EntryIndex m_entries;
    const QStringList m_zoneSplits;
    Findings m_found;
};

Findings Inspection::findings()
{
    lookAtNumber();
    MenuPlace place{.part = Part::Products};
    for (const auto &product : m_menu.products) {
        lookAtEntry(*product, place);
        lookAtTimes(*product, place);
        lookAtTemperatures(*product, place);
        lookAtChoices(*product, place);
        ++place.index;
    }
    place = {.part = Part::Groups};
    for (const auto &group : m_menu.groups) {
        lookAtEntry(*group, place);
        lookAtMembers(*group, place);
        ++place.index;
    }
    for (int index = 0; index < m_menu.daypartCount; ++index) {
        for (int row = 0; row < m_shape.rows; ++row)
            lookAtRow(m_menu.dayparts[index], index, row);
    }
    return m_found;
}

// Leads to the first entry that is too many.
void Inspection::lookAtNumber()
{
    const auto products = static_cast<int>(m_menu.products.size());
    if (products + static_cast<int>(m_menu.groups.size()) <= maxEntries)
        return;
    const MenuPlace place = products > maxEntries
                                ? MenuPlace{.part = Part::Products, .index = maxEntries}
                                : MenuPlace{.part = Part::Groups, .index = maxEntries - products};
    m_found.add({.kind = FindingKind::TooManyEntries, .place = place});
}

void Inspection::lookAtEntry(const ProductInfo &entry, const MenuPlace &place)
{
    addIf(findEntry(m_entries, entry.get_productId()) != &entry, FindingKind::RepeatedId, place);
    addIf(shownName(entry.get_productName()).isEmpty(), FindingKind::NoName, place);
}

void Inspection::lookAtTimes(const ProductInfo &product, const MenuPlace &place)
{
    const int hold = enteredSeconds(product.get_holdTime());
    const int alert = enteredSeconds(product.get_warningTime());
    const bool isHeldWell = holdTimeFault(hold).isEmpty();
    addIf(!isHeldWell, FindingKind::HoldTime, place);
    addIf(isHeldWell && !alertTimeFault(hold, alert).isEmpty(), FindingKind::AlertTime, place);
    addIf(m_configuration.resetTimeEnabled &&
              !resetTimeFault(enteredSeconds(product.get_resetTime())).isEmpty(),
          FindingKind::ResetTime, place);
}

void Inspection::lookAtTemperatures(const ProductInfo &product, const MenuPlace &place)
{
    const int unit = m_configuration.temperatureUnit;
    const int upper = product.get_upperTemp();
    const int lower = product.get_lowerTemp();
    const bool isUpperFit = isProductTemperature(upper, unit);
    addIf(!isUpperFit, FindingKind::UpperTemperature, place);
    // The dialog of a cabinet with one temperature stores the upper one as both.
    const bool isLowerFit =
        isZpv(m_configuration.type) ? !isUpperFit || lower == upper : isProductTemperature(lower, unit);
    addIf(!isLowerFit, FindingKind::LowerTemperature, place);
}

// What the dialog would silently take another choice for.
void Inspection::lookAtChoices(const ProductInfo &product, const MenuPlace &place)
{
    addIf(m_configuration.fanSpeedEnabled && !isProductFanSpeed(product.get_fanSpeed()),
          FindingKind::FanSpeed, place);
    addIf(m_shape.isKnown() && !m_zoneSplits.contains(product.get_zoneSplits()), FindingKind::ZoneSplit,
          place);
    addIf(!isZpv(m_configuration.type) && isUnknownWord(lidTypes(), product.get_lidType()),
          FindingKind::LidType, place);
    addIf(isUnknownWord(bottomTypes(), product.get_bottomType()), FindingKind::BottomType, place);
    if (m_configuration.timerColorEnabled) {
        const QString color = product.get_timerColor();
        addIf(timerColorByName(color).colorName != color, FindingKind::TimerColor, place);
    }
}

void Inspection::lookAtMembers(const ProductInfo &group, const MenuPlace &place)
{
    const QList<int> members = group.get_productList();
    const GroupDraft draft(group, m_configuration);
    Finding missing{.kind = FindingKind::MissingMembers, .place = place, .count = 0};
    Finding repeated{.kind = FindingKind::RepeatedMembers, .place = place, .count = 0};
    Finding unfit{.kind = FindingKind::UnfitMembers, .place = place, .count = 0};
    Repetitions repetitions(members);
    for (int position = 0; position < members.size(); ++position) {
        const ProductInfo *member = findEntry(m_entries, members[position]);
        const bool isMissing = !member || member->get_isGroup();
        countIf(isMissing, position, missing);
        countIf(!isMissing && repetitions.isRepeated(position), position, repeated);
        countIf(!isMissing && !draft.fits(*member), position, unfit);
    }
    addIf(members.isEmpty(), FindingKind::NoMembers, place);
    for (const Finding &finding : {missing, repeated, unfit}) {
        if (finding.count > 0)
            m_found.add(finding);
    }
    const int chosen = group.get_defaultIndex();
    addIf(!members.isEmpty() && (chosen < 0 || chosen >= members.size()), FindingKind::NoDefault, place);
}

void Inspection::lookAtRow(const Daypart &daypart, int index, int row)
{
    const RowContent content = rowContent(m_entries, daypart, row);
    for (int slot = 0; slot < m_shape.binsPerRow(); ++slot) {
        const MenuPlace place{.part = Part::Bins, .index = index, .bin = {row, slot}};
        if (!content[slot].filled || !m_shape.hasBin(place.bin))
            continue;
        addIf(!content[slot].entry, FindingKind::MissingEntry, place);
        addIf(content[slot].entry && !fits(content, slot), FindingKind::UnfitEntry, place);
    }
}

// As the list to pick from would have said when the entry came, if the bin can be picked for.
bool Inspection::fits(const RowContent &row, int slot) const
{
    const bool fanSpeeds = m_configuration.fanSpeedEnabled;
    return !isBehindHalves(m_shape, row, slot) &&
           fitsBin(*row[slot].entry, limitsOfStanding(row, m_shape.zoneOfSlot(slot), slot, fanSpeeds),
                   allowedZoneSplits(m_shape, row, slot), fanSpeeds);
}

} // namespace

Findings inconsistencies(const Menu &menu)
{
    return Inspection(menu).findings();
}

} // namespace holding
