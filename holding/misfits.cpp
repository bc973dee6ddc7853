// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/misfits.h"

#include <QCoreApplication>

#include "holding/producttypes.h"
#include "model/shortened.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Misfits)
};

constexpr qsizetype longestWord = 20; // in characters; a file may hold any

/// Upper and lower, in °F.
struct Temperatures
{
    int upper = 0;
    int lower = 0;
};

/// Which of two temperatures are told, and in which unit.
struct Telling
{
    bool upper = true;
    bool lower = true;
    int unit = unitFahrenheit;

    [[nodiscard]] QString text(const Temperatures &temperatures) const
    {
        const QString upperText = one(temperatures.upper);
        const QString lowerText = one(temperatures.lower);
        if (upper && lower)
            return u"%1 / %2"_s.arg(upperText, lowerText);
        return upper ? upperText : lowerText;
    }

private:
    [[nodiscard]] QString one(int fahrenheit) const
    {
        return u"%1 %2"_s.arg(QString::number(shownTemperature(fahrenheit, unit)), unitText(unit));
    }
};

// What is not demanded is not told, nor is what a cabinet with one temperature cannot have two of.
Telling tellingOf(const Temperatures &demanded, const CabinetConfiguration &configuration)
{
    const bool alike = isZpv(configuration.type) && demanded.upper == demanded.lower;
    return {demanded.upper != 0, demanded.lower != 0 && !alike, configuration.temperatureUnit};
}

// Two temperatures that are shown alike in °C differ in °F, and two of a file differ in a cabinet with one.
Telling tellingOfMisfit(const Temperatures &own, const Temperatures &demanded,
                        const CabinetConfiguration &configuration)
{
    Telling telling = tellingOf(demanded, configuration);
    if (own.upper != own.lower)
        telling.lower = demanded.lower != 0;
    if (telling.text(own) == telling.text(demanded))
        telling.unit = unitFahrenheit;
    return telling;
}

Temperatures temperaturesOf(const ProductInfo &entry)
{
    return {entry.get_upperTemp(), entry.get_lowerTemp()};
}

QString binTemperatureText(const Temperatures &own, const Temperatures &zone,
                           const CabinetConfiguration &configuration)
{
    const Telling telling = tellingOfMisfit(own, zone, configuration);
    return Text::tr("Does not fit: %1, this zone holds %2").arg(telling.text(own), telling.text(zone));
}

QString groupTemperatureText(const Temperatures &own, const Temperatures &group,
                             const CabinetConfiguration &configuration)
{
    const Telling telling = tellingOfMisfit(own, group, configuration);
    return Text::tr("Does not fit: %1, this group holds %2").arg(telling.text(own), telling.text(group));
}

// Words of a file that nobody knows are told as they stand.
QString lidWord(const QString &lidType)
{
    return lidTypes().contains(lidType) ? lidText(lidType) : shortened(lidType, longestWord);
}

QString groupLidText(const QString &own, const QString &group)
{
    return own.isEmpty() ? Text::tr("No lid, this group has %1").arg(lidWord(group))
                         : Text::tr("Lid %1, this group has %2").arg(lidWord(own), lidWord(group));
}

QString binSplitText(const QString &own)
{
    return own.isEmpty() ? Text::tr("Without a zone split it has no room here")
                         : Text::tr("Zone split %1 has no room here").arg(shortened(own, longestWord));
}

QString groupSplitText(const QString &own, const QString &group)
{
    return own.isEmpty() ? Text::tr("No zone split, this group has %1").arg(shortened(group, longestWord))
                         : Text::tr("Zone split %1, this group has %2")
                               .arg(shortened(own, longestWord), shortened(group, longestWord));
}

/// Demands are told one after the other.
class Demands
{
public:
    explicit Demands(const CabinetConfiguration &configuration)
        : m_configuration(configuration)
    {}

    void addTemperatures(const Temperatures &demanded)
    {
        if (demanded.upper != 0 || demanded.lower != 0)
            m_texts.append(tellingOf(demanded, m_configuration).text(demanded));
    }
    void addZoneSplits(const QStringList &splits)
    {
        if (!splits.isEmpty())
            m_texts.append(Text::tr("zone split %1").arg(splits.join(Text::tr(" or "))));
    }
    void addFanSpeed(int fanSpeed)
    {
        if (m_configuration.fanSpeedEnabled && fanSpeed != 0)
            m_texts.append(Text::tr("fan speed %1").arg(fanSpeed));
    }
    void addLid(const QString &lidType)
    {
        if (!lidType.isEmpty())
            m_texts.append(Text::tr("lid %1").arg(lidWord(lidType)));
    }
    [[nodiscard]] QString text(const QString &none) const
    {
        return m_texts.isEmpty() ? none : Text::tr("Needs %1").arg(m_texts.join(Text::tr(", ")));
    }

private:
    const CabinetConfiguration &m_configuration;
    QStringList m_texts;
};

} // namespace

QString binMisfitText(const ProductInfo &entry, const BinLimits &limits, const QStringList &zoneSplits,
                      const CabinetConfiguration &configuration)
{
    switch (binMisfit(entry, limits, zoneSplits, configuration.fanSpeedEnabled)) {
    case Misfit::Temperatures:
        return binTemperatureText(temperaturesOf(entry), {limits.upperTemp, limits.lowerTemp}, configuration);
    case Misfit::ZoneSplits:
        return binSplitText(entry.get_zoneSplits());
    case Misfit::FanSpeed:
        return Text::tr("Fan speed %1, this zone has %2").arg(entry.get_fanSpeed()).arg(limits.fanSpeed);
    case Misfit::LidType: // no bin asks for one
    case Misfit::None:
        break;
    }
    return {};
}

QString groupMisfitText(const ProductInfo &product, const HoldingSettings &group,
                        const CabinetConfiguration &configuration)
{
    switch (groupMisfit(product, group, configuration.fanSpeedEnabled)) {
    case Misfit::Temperatures:
        return groupTemperatureText(temperaturesOf(product), {group.upperTemp, group.lowerTemp},
                                    configuration);
    case Misfit::ZoneSplits:
        return groupSplitText(product.get_zoneSplits(), group.zoneSplits);
    case Misfit::FanSpeed:
        return Text::tr("Fan speed %1, this group has %2").arg(product.get_fanSpeed()).arg(group.fanSpeed);
    case Misfit::LidType:
        return groupLidText(product.get_lidType(), group.lidType);
    case Misfit::None:
        break;
    }
    return {};
}

QString binDemandText(const BinLimits &limits, const QStringList &zoneSplits,
                      const CabinetConfiguration &configuration)
{
    Demands demands(configuration);
    demands.addTemperatures({limits.upperTemp, limits.lowerTemp});
    demands.addZoneSplits(zoneSplits);
    demands.addFanSpeed(limits.fanSpeed);
    return demands.text(Text::tr("Nothing has room here"));
}

QString groupDemandText(const HoldingSettings &group, const CabinetConfiguration &configuration)
{
    Demands demands(configuration);
    demands.addTemperatures({group.upperTemp, group.lowerTemp});
    if (!group.zoneSplits.isEmpty())
        demands.addZoneSplits({shortened(group.zoneSplits, longestWord)});
    demands.addFanSpeed(group.fanSpeed);
    demands.addLid(group.lidType);
    return demands.text(Text::tr("Any product may join"));
}

} // namespace holding
