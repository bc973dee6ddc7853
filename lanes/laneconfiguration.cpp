// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lanes/laneconfiguration.h"

#include <algorithm>
#include <optional>

#include <QCoreApplication>
#include <QHash>
#include <QStringList>
#include <QtEndian>

#include "model/crc16.h"
#include "model/files.h"

using namespace Qt::StringLiterals;

namespace lanes {

namespace {

constexpr auto fixedNote = "Manual edits will render this file useless"_L1;
constexpr auto configurationPrefix = "svrxconfig_"_L1;
constexpr auto productionPrefix = "svrxprod_"_L1;
constexpr quint32 productionMagic = 285779365;
constexpr quint16 absentLane = 0xFFFF;

QString tr(const char *text)
{
    return QCoreApplication::translate("SvrxMenuFile", text);
}

QString identifierOf(const QByteArray &contentsLine)
{
    const quint16 crc = crc16(contentsLine.constData(), contentsLine.size(), crc16IdentifierSeed);
    return u"%1"_s.arg(crc, 4, 16, QLatin1Char('0'));
}

QByteArray contentsLine(const Configuration &configuration)
{
    QByteArrayList temperatures;
    QByteArrayList fanSpeeds;
    for (int i = 0; i < maxLanes; ++i) {
        const Lane lane =
            i < configuration.laneCount ? configuration.lanes[static_cast<std::size_t>(i)] : Lane{0, 0};
        const QByteArray number = QByteArray::number(i + 1);
        temperatures.append("T" + number + "=" + QByteArray::number(lane.temperature));
        fanSpeeds.append("F" + number + "=" + QByteArray::number(lane.fanSpeed));
    }
    return (temperatures + fanSpeeds).join(',');
}

struct Lines
{
    std::optional<uint> identifier; ///< no number: nothing matches
    QString contents;
};

// Of repeated lines the last one counts.
Lines sortLines(const QStringList &lines)
{
    Lines sorted;
    for (const QString &line : lines) {
        if (line.startsWith("Identifier"_L1)) {
            const QStringList parts = line.split(u'=', Qt::SkipEmptyParts);
            bool ok = false;
            const uint number = parts.value(1).toUInt(&ok, 16);
            if (parts.size() >= 2)
                sorted.identifier = ok ? std::optional(number) : std::nullopt;
        } else if (line.startsWith("T1="_L1)) {
            sorted.contents = line;
        }
    }
    return sorted;
}

QHash<QString, int> valuesOf(const QString &contents)
{
    QHash<QString, int> values;
    const QStringList fields = contents.split(u',');
    for (const QString &field : fields)
        values.insert(field.section(u'=', 0, 0), field.section(u'=', 1, 1).toInt());
    return values;
}

std::array<Lane, maxLanes> lanesOf(const QString &contents)
{
    const QHash<QString, int> values = valuesOf(contents);
    std::array<Lane, maxLanes> lanes;
    int number = 0;
    for (Lane &lane : lanes) {
        ++number;
        lane = {values.value(u"T%1"_s.arg(number)), values.value(u"F%1"_s.arg(number))};
    }
    return lanes;
}

// A lane counts when it has both values; those below it count with it.
int laneCountOf(const std::array<Lane, maxLanes> &lanes)
{
    int count = maxLanes;
    while (count > 0) {
        const Lane &last = lanes[static_cast<std::size_t>(count - 1)];
        if (last.temperature != 0 && last.fanSpeed != 0)
            break;
        --count;
    }
    return count;
}

template <typename Integer>
void appendBigEndian(QByteArray &record, Integer value)
{
    char bytes[sizeof value];
    qToBigEndian(value, bytes);
    record.append(bytes, sizeof bytes);
}

} // namespace

QString readConfiguration(const QByteArray &text, Configuration &configuration)
{
    const QStringList lines = QString::fromUtf8(text).replace(u'\r', u'\n').split(u'\n', Qt::SkipEmptyParts);
    if (lines.isEmpty())
        return tr("Invalid file format");
    const Lines sorted = sortLines(lines);
    const QByteArray contents = sorted.contents.toLatin1();
    if (sorted.identifier != crc16(contents.constData(), contents.size(), crc16IdentifierSeed))
        return tr("Invalid file identifier value");
    const auto lanes = lanesOf(sorted.contents);
    const int count = laneCountOf(lanes);
    if (count == 0)
        return tr("Invalid file contents");
    configuration = {};
    configuration.laneCount = count;
    std::copy_n(lanes.begin(), count, configuration.lanes.begin());
    return {};
}

QByteArray writeConfiguration(const Configuration &configuration)
{
    const QByteArray contents = contentsLine(configuration);
    return QByteArray(fixedNote.data(), fixedNote.size()) +
           "\nIdentifier=" + identifierOf(contents).toLatin1() + '\n' + contents;
}

QByteArray writeProductionRecord(const Configuration &configuration)
{
    QByteArray record(sizeof productionMagic, '\0');
    qToLittleEndian(productionMagic, record.data());
    record.append('\x01');
    for (int i = 0; i < maxLanes; ++i) {
        const bool present = i < configuration.laneCount;
        const Lane &lane = configuration.lanes[static_cast<std::size_t>(i)];
        appendBigEndian(record, present ? static_cast<quint16>(lane.fanSpeed) : absentLane);
        appendBigEndian(record, present ? static_cast<quint16>(lane.temperature) : absentLane);
    }
    // Another start value than the identifier's.
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
