// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lanes/laneconfiguration.h"

#include <algorithm>
#include <optional>

#include <QCoreApplication>
#include <QStringTokenizer>
#include <QtEndian>

#include "model/crc16.h"
#include "model/files.h"

using namespace Qt::StringLiterals;

namespace lanes {

namespace {

constexpr auto fixedNote = "Manual edits will render this file useless"_L1;
constexpr auto productionPrefix = "svrxprod_"_L1;
constexpr quint32 productionMagic = 285779365;
constexpr quint16 absentLane = 0xFFFF;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SvrxMenuFile)
};

QByteArray identifierOf(const QByteArray &contentsLine)
{
    const quint16 crc = crc16(contentsLine.constData(), contentsLine.size(), crc16IdentifierSeed);
    return QByteArray::number(crc, 16).rightJustified(4, '0');
}

QByteArray contentsLine(const Configuration &configuration)
{
    QByteArrayList temperatures;
    QByteArrayList fanSpeeds;
    for (int i = 0; i < maxLanes; ++i) {
        const Lane lane = i < configuration.laneCount ? configuration.lanes[i] : Lane{0, 0};
        const QByteArray number = QByteArray::number(i + 1);
        temperatures.append("T" + number + "=" + QByteArray::number(lane.temperature));
        fanSpeeds.append("F" + number + "=" + QByteArray::number(lane.fanSpeed));
    }
    return (temperatures + fanSpeeds).join(',');
}

// Views into the text: a file may be large, and its parts are not copied.
struct Lines
{
    std::optional<uint> identifier; ///< none where the file has no valid number
    QStringView contents;
};

// One of the parts between the "=" of a text, counted from 0; empty where there are fewer.
QStringView part(QStringView text, int number, Qt::SplitBehavior behavior = Qt::KeepEmptyParts)
{
    for (const QStringView candidate : text.tokenize(u'=', behavior)) {
        if (number-- == 0)
            return candidate;
    }
    return {};
}

// Of repeated lines the last one counts.
Lines scanLines(QStringView text)
{
    Lines found;
    for (const QStringView line : text.tokenize(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("Identifier"_L1)) {
            const QStringView digits = part(line, 1, Qt::SkipEmptyParts);
            bool ok = false;
            const uint number = digits.toUInt(&ok, 16);
            if (!digits.isEmpty())
                found.identifier = ok ? std::optional(number) : std::nullopt;
        } else if (line.startsWith("T1="_L1)) {
            found.contents = line;
        }
    }
    return found;
}

using Lanes = FixedList<Lane, maxLanes>;

// The value that has this name in the contents line, T1 to T4 or F1 to F4; null for any other name.
int *valueNamed(QStringView name, Lanes &lanes)
{
    if (name.size() != 2 || name[1] < u'1' || name[1] >= QChar(u'1' + maxLanes))
        return nullptr;
    Lane &lane = lanes[name[1].unicode() - u'1'];
    if (name[0] == u'T')
        return &lane.temperature;
    return name[0] == u'F' ? &lane.fanSpeed : nullptr;
}

// A missing field is 0; the last one of a name counts.
Lanes lanesOf(QStringView contents)
{
    Lanes lanes;
    std::fill(lanes.begin(), lanes.end(), Lane{0, 0});
    for (const QStringView field : contents.tokenize(u',')) {
        if (int *value = valueNamed(part(field, 0), lanes))
            *value = part(field, 1).toInt();
    }
    return lanes;
}

// A lane counts when it has both values; those below it count with it.
int laneCountOf(const Lanes &lanes)
{
    int count = maxLanes;
    while (count > 0 && (lanes[count - 1].temperature == 0 || lanes[count - 1].fanSpeed == 0))
        --count;
    return count;
}

void appendBigEndian(QByteArray &record, quint16 value)
{
    char bytes[sizeof value];
    qToBigEndian(value, bytes);
    record.append(bytes, sizeof bytes);
}

} // namespace

TemperatureRange temperatureRange(int temperatureUnit)
{
    return temperatureUnit == unitCelsius ? TemperatureRange{66, 204} : TemperatureRange{150, 400};
}

QString readConfiguration(const QByteArray &text, Configuration &configuration)
{
    const QString unified = QString::fromUtf8(text).replace(u'\r', u'\n');
    if (unified.count(u'\n') == unified.size())
        return Text::tr("Invalid file format");
    const Lines lines = scanLines(unified);
    const QByteArray contents = lines.contents.toLatin1();
    if (lines.identifier != crc16(contents.constData(), contents.size(), crc16IdentifierSeed))
        return Text::tr("Invalid file identifier value");
    const Lanes lanes = lanesOf(lines.contents);
    const int count = laneCountOf(lanes);
    if (count == 0)
        return Text::tr("Invalid file contents");
    configuration = {};
    configuration.laneCount = count;
    std::copy_n(lanes.begin(), count, configuration.lanes.begin());
    return {};
}

QByteArray writeConfiguration(const Configuration &configuration)
{
    const QByteArray contents = contentsLine(configuration);
    return QByteArray(fixedNote.data(), fixedNote.size()) + "\nIdentifier=" + identifierOf(contents) + '\n' +
           contents;
}

QByteArray writeProductionRecord(const Configuration &configuration)
{
    QByteArray record(sizeof productionMagic, '\0');
    qToLittleEndian(productionMagic, record.data());
    record.append('\x01');
    for (int i = 0; i < maxLanes; ++i) {
        const bool present = i < configuration.laneCount;
        const Lane &lane = configuration.lanes[i];
        appendBigEndian(record, present ? static_cast<quint16>(lane.fanSpeed) : absentLane);
        appendBigEndian(record, present ? static_cast<quint16>(lane.temperature) : absentLane);
    }
    // Not the identifier's start value.
    appendBigEndian(record, crc16(record.constData(), record.size(), crc16MenuSeed));
    return record.toHex();
}

bool isConfigurationName(const QString &path)
{
    return lastPathPart(path).startsWith(configurationPrefix);
}

QString productionPath(const QString &configurationPath)
{
    const QString name = lastPathPart(configurationPath);
    const QString folder = configurationPath.chopped(name.size());
    return folder + productionPrefix + name.sliced(configurationPrefix.size());
}

} // namespace lanes
