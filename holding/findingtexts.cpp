// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>

#include "holding/bins.h"
#include "holding/dayparttitle.h"
#include "holding/groupdraft.h"
#include "holding/inconsistencies.h"
#include "holding/misfits.h"
#include "holding/productrules.h"
#include "model/findingtexts.h"
#include "model/shortened.h"
#include "model/timelimits.h"
#include "model/times.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Inconsistencies)
};

using Part = MenuPlace::Part;

constexpr qsizetype longestName = 40; // in characters; a file may hold any

// On one line: a file's text may have several.
QString inLine(const QString &text)
{
    return shortened(text, longestName).simplified();
}

QString nameOf(const ProductInfo &entry)
{
    const QString name = inLine(shownName(entry.get_productName()));
    return name.isEmpty() ? Text::tr("Id %1").arg(entry.get_productId()) : name;
}

/// The findings of one menu in sentences.
class Sentences
{
public:
    explicit Sentences(const Menu &menu)
        : m_menu(menu)
        , m_configuration(menu.configuration)
        , m_shape(menu.shape())
        , m_entries(menu.entriesById())
    {}

    [[nodiscard]] QString of(const Finding &finding) const;

private:
    [[nodiscard]] const ProductInfo &entryAt(const MenuPlace &place) const;
    [[nodiscard]] QString titleOf(const MenuPlace &place) const;
    [[nodiscard]] QString ofEntry(FindingKind kind, const ProductInfo &entry) const;
    [[nodiscard]] QString ofProduct(FindingKind kind, const ProductInfo &product) const;
    [[nodiscard]] QString ofTemperature(FindingKind kind, const ProductInfo &product) const;
    [[nodiscard]] QString ofTwoTemperatures(const ProductInfo &product) const;
    [[nodiscard]] QString ofGroup(const Finding &finding, const ProductInfo &group) const;
    [[nodiscard]] QString ofUnfitMembers(const Finding &finding, const ProductInfo &group) const;
    [[nodiscard]] QString ofBin(const Daypart &daypart, Bin bin) const;

    const Menu &m_menu;
    const CabinetConfiguration &m_configuration;
    const CabinetShape m_shape;
    const EntryIndex m_entries;
};

QString Sentences::of(const Finding &finding) const
{
    const MenuPlace &place = finding.place;
    switch (finding.kind) {
    case FindingKind::TooManyEntries:
        return Text::tr("This menu has %1 products and groups, a cabinet takes at most %2")
            .arg(m_menu.products.size() + m_menu.groups.size())
            .arg(maxEntries);
    case FindingKind::MissingEntry:
    case FindingKind::UnfitEntry:
        return Text::tr("%1: %2").arg(titleOf(place), ofBin(m_menu.dayparts[place.index], place.bin));
    default:
        break;
    }
    const ProductInfo &entry = entryAt(place);
    return Text::tr("%1: %2").arg(titleOf(place), place.part == Part::Groups
                                                      ? ofGroup(finding, entry)
                                                      : ofProduct(finding.kind, entry));
}

// The findings name places that there are.
const ProductInfo &Sentences::entryAt(const MenuPlace &place) const
{
    const Entries &entries = place.part == Part::Groups ? m_menu.groups : m_menu.products;
    return *entries.at(static_cast<std::size_t>(place.index));
}

QString Sentences::titleOf(const MenuPlace &place) const
{
    const QString number = QString::number(place.index + 1);
    if (place.part == Part::Bins) {
        const QString daypart = daypartTitle(m_menu.dayparts[place.index], place.index);
        return Text::tr("%1, Row %2, Bin %3")
            .arg(inLine(daypart), QString::number(place.bin.row + 1), QString::number(place.bin.slot + 1));
    }
    const QString name = inLine(shownName(entryAt(place).get_productName()));
    if (place.part == Part::Groups)
        return name.isEmpty() ? Text::tr("Group %1").arg(number) : Text::tr("Group %1, %2").arg(number, name);
    return name.isEmpty() ? Text::tr("Product %1").arg(number) : Text::tr("Product %1, %2").arg(number, name);
}

QString Sentences::ofEntry(FindingKind kind, const ProductInfo &entry) const
{
    switch (kind) {
    case FindingKind::RepeatedId:
        return Text::tr("Another entry has the id %1, too. Bins and groups mean the first one")
            .arg(entry.get_productId());
    case FindingKind::NoName:
        return Text::tr("There is no name");
    default:
        return {};
    }
}

QString Sentences::ofProduct(FindingKind kind, const ProductInfo &product) const
{
    const int holdSeconds = enteredSeconds(product.get_holdTime());
    switch (kind) {
    case FindingKind::HoldTime:
        return holdTimeFault(holdSeconds);
    case FindingKind::AlertTime:
        return alertTimeFault(holdSeconds, enteredSeconds(product.get_warningTime()));
    case FindingKind::ResetTime:
        return resetTimeFault(enteredSeconds(product.get_resetTime()));
    case FindingKind::UpperTemperature:
    case FindingKind::LowerTemperature:
        return ofTemperature(kind, product);
    case FindingKind::FanSpeed:
        return Text::tr("The fan speed is %1 RPM, not 0 to %2 RPM")
            .arg(product.get_fanSpeed())
            .arg(maxFanSpeed);
    case FindingKind::ZoneSplit:
        return product.get_zoneSplits().isEmpty()
                   ? Text::tr("There is no zone split")
                   : Text::tr("This cabinet has no zone split %1").arg(inLine(product.get_zoneSplits()));
    case FindingKind::LidType:
        return Text::tr("There is no lid %1").arg(inLine(product.get_lidType()));
    case FindingKind::BottomType:
        return Text::tr("There is no bottom %1").arg(inLine(product.get_bottomType()));
    case FindingKind::TimerColor:
        return product.get_timerColor().isEmpty()
                   ? Text::tr("No timer color is stored")
                   : Text::tr("There is no timer color %1").arg(inLine(product.get_timerColor()));
    default:
        return ofEntry(kind, product);
    }
}

QString Sentences::ofTemperature(FindingKind kind, const ProductInfo &product) const
{
    const int unit = m_configuration.temperatureUnit;
    const TemperatureRange range = productTemperatureRange(unit);
    const bool isUpper = kind == FindingKind::UpperTemperature;
    if (isZpv(m_configuration.type))
        return isUpper
                   ? Text::tr("The temperature is %1, not %2 to %3")
                         .arg(temperatureText(product.get_upperTemp(), unit), QString::number(range.lowest),
                              QString::number(range.highest) + unitText(unit))
                   : ofTwoTemperatures(product);
    return unfitTemperatureText(kind, isUpper ? product.get_upperTemp() : product.get_lowerTemp(), unit,
                                range);
}

// Where both are shown alike in °C, they differ in °F.
QString Sentences::ofTwoTemperatures(const ProductInfo &product) const
{
    const int upper = product.get_upperTemp();
    const int lower = product.get_lowerTemp();
    int unit = m_configuration.temperatureUnit;
    if (shownTemperature(upper, unit) == shownTemperature(lower, unit))
        unit = unitFahrenheit;
    return Text::tr("This cabinet has one temperature, stored are %1 and %2")
        .arg(temperatureText(upper, unit), temperatureText(lower, unit));
}

QString Sentences::ofGroup(const Finding &finding, const ProductInfo &group) const
{
    const QList<int> members = group.get_productList();
    switch (finding.kind) {
    case FindingKind::NoMembers:
        return Text::tr("There are no products in it");
    case FindingKind::MissingMembers:
        return finding.count == 1
                   ? Text::tr("Its product with the id %1 is not in this menu").arg(members[finding.position])
                   : Text::tr("%1 of its %2 products are not in this menu")
                         .arg(finding.count)
                         .arg(members.size());
    case FindingKind::RepeatedMembers:
        return finding.count == 1
                   ? Text::tr("%1 is in it twice")
                         .arg(nameOf(*findEntry(m_entries, members[finding.position])))
                   : Text::tr("%1 of its %2 products are repeated").arg(finding.count).arg(members.size());
    case FindingKind::UnfitMembers:
        return ofUnfitMembers(finding, group);
    case FindingKind::NoDefault:
        return Text::tr("None of its products is the default one");
    default:
        return ofEntry(finding.kind, group);
    }
}

QString Sentences::ofUnfitMembers(const Finding &finding, const ProductInfo &group) const
{
    const ProductInfo *first = findEntry(m_entries, group.get_productList().at(finding.position));
    const GroupDraft draft(group, m_configuration);
    const QString reason = groupMisfitText(*first, draft.settings(), m_configuration);
    return finding.count == 1 ? Text::tr("%1 does not suit it. %2").arg(nameOf(*first), reason)
                              : Text::tr("%1 and %2 more do not suit it. %3")
                                    .arg(nameOf(*first), QString::number(finding.count - 1), reason);
}

QString Sentences::ofBin(const Daypart &daypart, Bin bin) const
{
    const RowContent row = rowContent(m_entries, daypart, bin.row);
    const ProductInfo *entry = row[bin.slot].entry;
    if (!entry)
        return Text::tr("The id %1 is not in this menu").arg(daypart.bins[bin]);
    if (isBehindHalves(m_shape, row, bin.slot))
        return Text::tr("%1. This zone has two halves and no third bin").arg(nameOf(*entry));
    const BinLimits limits =
        limitsOfStanding(row, m_shape.zoneOfSlot(bin.slot), bin.slot, m_configuration.fanSpeedEnabled);
    return Text::tr("%1. %2").arg(
        nameOf(*entry),
        binMisfitText(*entry, limits, allowedZoneSplits(m_shape, row, bin.slot), m_configuration));
}

} // namespace

QStringList findingTexts(const QList<Finding> &findings, const Menu &menu)
{
    const Sentences sentences(menu);
    QStringList texts;
    texts.reserve(findings.size());
    for (const Finding &finding : findings)
        texts.append(sentences.of(finding));
    return texts;
}

} // namespace holding
