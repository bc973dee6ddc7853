// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/qhximport.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <QCoreApplication>
#include <QStringDecoder>
#include <QtEndian>

#include "model/crc16.h"

using namespace Qt::StringLiterals;

namespace holding {

namespace {

constexpr qsizetype headerSize = 18;
constexpr qsizetype configurationSize = 26;
constexpr qsizetype entrySize = 134;
constexpr qsizetype daypartSize = 82;
constexpr qsizetype nameSize = 64;
constexpr int fileBins = 20;
constexpr int groupMembers = 8;
constexpr int importedDayparts = 2;
constexpr quint16 supportedRevision = 5;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MenuFile)
};

/// One record of the file. Every record begins with the checksum of its other bytes.
class Record
{
public:
    explicit Record(QByteArrayView bytes)
        : m_bytes(bytes)
    {}

    [[nodiscard]] quint8 u8(qsizetype offset) const { return static_cast<quint8>(m_bytes[offset]); }
    [[nodiscard]] quint16 u16(qsizetype offset) const
    {
        return qFromLittleEndian<quint16>(m_bytes.data() + offset);
    }
    [[nodiscard]] quint32 u32(qsizetype offset) const
    {
        return qFromLittleEndian<quint32>(m_bytes.data() + offset);
    }
    /// The 32 bits as they are: ids and times above the signed range become negative and stay themselves.
    [[nodiscard]] int i32(qsizetype offset) const { return static_cast<int>(u32(offset)); }
    [[nodiscard]] QByteArrayView text(qsizetype offset, qsizetype size) const
    {
        const QByteArrayView field = m_bytes.sliced(offset, size);
        const qsizetype end = field.indexOf('\0');
        return end < 0 ? field : field.first(end);
    }
    [[nodiscard]] bool isIntact() const
    {
        return u16(0) == crc16(m_bytes.data() + 2, m_bytes.size() - 2, crc16MenuSeed);
    }

private:
    QByteArrayView m_bytes;
};

std::optional<Record> recordAt(const QByteArray &bytes, qint64 offset, qsizetype size)
{
    if (offset > bytes.size() || bytes.size() - offset < size)
        return std::nullopt;
    return Record(QByteArrayView(bytes).sliced(offset, size));
}

// Newer programs wrote UTF-8, older ones Latin-1.
QString decodeName(QByteArrayView name)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(name);
    return decoder.hasError() ? QString::fromLatin1(name) : text;
}

QString modelOf(quint8 code)
{
    switch (code) {
    case 5:
        return u"KTR52"_s;
    case 7:
        return u"KTR42"_s;
    case 8:
        return u"KTR22"_s;
    case 9:
        return u"KTR24"_s;
    case 10:
    case 12:
        return u"KTR63"_s;
    case 11:
        return u"KTR32"_s;
    default:
        return u"KTR54"_s;
    }
}

QString lidOf(quint8 code)
{
    switch (code) {
    case 1:
        return u"Solid"_s;
    case 2:
        return u"Vented"_s;
    default:
        return u"None"_s;
    }
}

QString zoneSplitsOf(quint8 code, bool threeBins)
{
    switch (code) {
    case 1:
        return threeBins ? u"1/3"_s : u"1/2"_s;
    case 2:
        return threeBins ? u"2/3"_s : u"1/1"_s;
    case 3:
        return u"1/1"_s;
    default:
        return u"1/2"_s;
    }
}

std::unique_ptr<ProductInfo> readEntry(const Record &record, bool isGroup, int binsPerZone)
{
    auto entry = std::make_unique<ProductInfo>();
    entry->set_isGroup(isGroup);
    entry->set_productId(record.i32(4));
    entry->set_productName(sameNameInAllLanguages(decodeName(record.text(8, nameSize))));
    entry->set_upperTemp(record.i32(80));
    entry->set_lowerTemp(record.i32(84));
    entry->set_lidType(lidOf(record.u8(88)));
    entry->set_zoneSplits(zoneSplitsOf(record.u8(90), binsPerZone == 3));
    entry->set_fanSpeed(record.u8(132));
    return entry;
}

void readProduct(const Record &record, Menu &menu, int binsPerZone)
{
    auto product = readEntry(record, false, binsPerZone);
    product->set_holdTime(record.i32(72));
    product->set_warningTime(record.i32(76));
    // The codes run against the order in which the editors offer the types.
    product->set_bottomType(record.u8(89) == 0 ? u"Normal"_s : u"False"_s);
    menu.products.push_back(std::move(product));
}

void readGroup(const Record &record, Menu &menu, int binsPerZone)
{
    auto group = readEntry(record, true, binsPerZone);
    QList<int> members;
    for (int i = 0; i < groupMembers; ++i)
        members.append(record.i32(92 + 4 * i));
    group->set_productList(members);
    group->set_defaultIndex(record.u8(91));
    menu.groups.push_back(std::move(group));
}

QString readConfiguration(const QByteArray &bytes, qint64 offset, CabinetConfiguration &configuration)
{
    const auto record = recordAt(bytes, offset, configurationSize);
    if (!record)
        return Text::tr("Invalid configuration size!");
    if (!record->isIntact())
        return Text::tr("Invalid configuration CRC!");
    configuration.type = u"QHX"_s;
    configuration.model = modelOf(record->u8(2));
    configuration.temperatureUnit = record->u8(4);
    return {};
}

QString readEntries(const QByteArray &bytes, qint64 offset, int count, Menu &menu)
{
    const int binsPerZone = menu.shape().binsPerZone;
    for (int i = 0; i < count; ++i) {
        const auto record = recordAt(bytes, offset + i * entrySize, entrySize);
        if (!record)
            return Text::tr("Invalid product size!");
        if (!record->isIntact())
            return Text::tr("Invalid product CRC!");
        const quint8 kind = record->u8(2);
        const bool hasId = record->u32(4) != 0;
        if (kind == 'p' && hasId)
            readProduct(*record, menu, binsPerZone);
        else if (kind == 'g' && hasId)
            readGroup(*record, menu, binsPerZone);
    }
    return {};
}

QString readDayparts(const QByteArray &bytes, qint64 offset, Menu &menu)
{
    const CabinetShape shape = menu.shape();
    const int bins = std::min(fileBins, shape.rows * shape.binsPerRow());
    for (int i = 0; i < importedDayparts; ++i) {
        const auto record = recordAt(bytes, offset + i * daypartSize, daypartSize);
        if (!record)
            return Text::tr("Invalid daypart size!");
        if (!record->isIntact())
            return Text::tr("Invalid daypart CRC!");
        Daypart &daypart = menu.dayparts[i];
        daypart.inUse = true;
        for (int bin = 0; bin < bins; ++bin)
            daypart.bins[placeOfFileBin(shape, bin)] = record->i32(2 + 4 * bin);
    }
    menu.daypartCount = importedDayparts;
    return {};
}

void copyBins(const Daypart &source, const CabinetShape &shape, Daypart &target)
{
    for (int row = 0; row < shape.rows; ++row) {
        for (int slot = 0; slot < shape.binsPerRow(); ++slot)
            target.bins[Bin{row, slot}] = source.bins[Bin{row, slot}];
    }
}

} // namespace

Bin placeOfFileBin(const CabinetShape &shape, int fileBin)
{
    const int binsPerRow = shape.binsPerRow();
    return {shape.rows - 1 - fileBin / binsPerRow, fileBin % binsPerRow};
}

QString importQhxMenu(const QByteArray &bytes, Menu &menu)
{
    const auto header = recordAt(bytes, 0, headerSize);
    if (!header)
        return Text::tr("Invalid file header size!");
    if (!header->isIntact())
        return Text::tr("Invalid file header CRC!");
    if (header->u16(2) != supportedRevision)
        return Text::tr("Unsupported file revision!");
    const int count = header->u8(4);
    if (count > maxEntries)
        return Text::tr("Invalid products count!");
    if (QString fault = readConfiguration(bytes, header->u32(6), menu.configuration); !fault.isEmpty())
        return fault;
    if (QString fault = readEntries(bytes, header->u32(10), count, menu); !fault.isEmpty())
        return fault;
    return readDayparts(bytes, header->u32(14), menu);
}

void addImportedMenu(Menu &&imported, Menu &menu)
{
    menu.configuration.type = imported.configuration.type;
    menu.configuration.model = imported.configuration.model;
    menu.configuration.temperatureUnit = imported.configuration.temperatureUnit;
    std::move(imported.products.begin(), imported.products.end(), std::back_inserter(menu.products));
    std::move(imported.groups.begin(), imported.groups.end(), std::back_inserter(menu.groups));
    for (int i = 0; i < importedDayparts; ++i) {
        Daypart &daypart = menu.dayparts[i];
        if (i >= menu.daypartCount)
            daypart.names = imported.dayparts[i].names;
        daypart.inUse = true;
        copyBins(imported.dayparts[i], imported.shape(), daypart);
    }
    menu.daypartCount = importedDayparts;
}

} // namespace holding
