// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/qhxbuilder.h"

#include "tests/support/checksum.h"

namespace qhx {

namespace {

QByteArray blank(qsizetype size)
{
    return QByteArray(size, '\xEE');
}

void put(QByteArray &record, qsizetype offset, quint32 value, int width)
{
    for (int i = 0; i < width; ++i)
        record[offset + i] = static_cast<char>(value >> (8 * i) & 0xFF);
}

QByteArray header(const File &file)
{
    const QList<qsizetype> offsets = recordOffsets(file.entries.size());
    const auto offset = [&offsets](const std::optional<quint32> &given, qsizetype record) {
        return given.value_or(static_cast<quint32>(offsets[record]));
    };
    QByteArray record = blank(headerSize);
    put(record, 2, file.revision, 2);
    put(record, 4, file.count.value_or(static_cast<quint8>(file.entries.size())), 1);
    put(record, 6, offset(file.configurationOffset, 1), 4);
    put(record, 10, offset(file.entriesOffset, 2), 4);
    put(record, 14, offset(file.daypartsOffset, 2 + file.entries.size()), 4);
    return record;
}

QByteArray configuration(const File &file)
{
    QByteArray record = blank(configurationSize);
    put(record, 2, file.model, 1);
    put(record, 4, file.unit, 1);
    return record;
}

QByteArray entryRecord(const Entry &entry)
{
    QByteArray record = blank(entrySize);
    put(record, 2, entry.kind, 1);
    put(record, 4, entry.id, 4);
    record.replace(8, 64, entry.name.leftJustified(64, '\0', true));
    put(record, 72, entry.holdTime, 4);
    put(record, 76, entry.warningTime, 4);
    put(record, 80, entry.upperTemp, 4);
    put(record, 84, entry.lowerTemp, 4);
    put(record, 88, entry.lid, 1);
    put(record, 89, entry.bottom, 1);
    put(record, 90, entry.zone, 1);
    put(record, 91, entry.defaultIndex, 1);
    for (std::size_t i = 0; i < entry.members.size(); ++i)
        put(record, 92 + 4 * static_cast<qsizetype>(i), entry.members[i], 4);
    put(record, 132, entry.fanSpeed, 1);
    return record;
}

QByteArray daypartRecord(const Bins &bins)
{
    QByteArray record = blank(daypartSize);
    for (std::size_t i = 0; i < bins.size(); ++i)
        put(record, 2 + 4 * static_cast<qsizetype>(i), bins[i], 4);
    return record;
}

} // namespace

QByteArray sealed(QByteArray record)
{
    put(record, 0, checksum::ofMenu(record.sliced(2)), 2);
    return record;
}

QList<qsizetype> recordOffsets(qsizetype entryCount)
{
    QList<qsizetype> offsets{0, headerSize, headerSize + configurationSize};
    for (qsizetype i = 0; i < entryCount; ++i)
        offsets.append(offsets.constLast() + entrySize);
    for (int i = 0; i < 2; ++i)
        offsets.append(offsets.constLast() + daypartSize);
    return offsets;
}

QByteArray File::bytes() const
{
    QList<QByteArray> records{header(*this), configuration(*this)};
    for (const Entry &entry : entries)
        records.append(entryRecord(entry));
    for (const Bins &bins : dayparts)
        records.append(daypartRecord(bins));
    for (qsizetype i = 0; i < records.size(); ++i) {
        records[i] = sealed(records[i]);
        if (brokenChecksums.contains(i))
            records[i][0] = static_cast<char>(records[i][0] ^ 1);
    }
    return records.join();
}

File sample()
{
    File file;
    file.model = 6;
    file.unit = 1;
    file.entries = {{.id = 12, .name = "Bacon", .lid = 1},
                    {.id = 300, .name = "K\xC3\xA4se", .bottom = 1, .zone = 3, .fanSpeed = 0},
                    {.kind = 'g', .id = 7, .name = "Meats", .defaultIndex = 1, .members = {300, 12}}};
    for (std::size_t i = 0; i < 20; ++i) {
        file.dayparts[0][i] = i % 3 == 0 ? 12 : 0;
        file.dayparts[1][i] = i % 2 == 0 ? 7 : 300;
    }
    return file;
}

} // namespace qhx
