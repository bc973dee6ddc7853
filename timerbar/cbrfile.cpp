// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/cbrfile.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>

#include "model/crc16.h"
#include "model/names.h"

using namespace Qt::StringLiterals;

namespace timerbar {

namespace {

constexpr qsizetype crcSize = 2;
constexpr qsizetype headerSize = 13;
constexpr qsizetype productSize = 39;
constexpr int formatVersion = 0x0300;
// A byte holds 100 °F to 354 °F; 0 is everything below.
constexpr int temperatureOffset = 99;
constexpr qsizetype shortNameOffset = 6;
constexpr qsizetype shortNameLength = 4;
constexpr qsizetype nameOffset = 14;
constexpr qsizetype nameLength = 25;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerBarMenuFile)
};

// The error of writing a menu of an unknown model. Nobody sees it: such a menu is written without bins, and
// the message of a later error takes its place.
[[maybe_unused]] constexpr auto unknownModelFault =
    QT_TRANSLATE_NOOP("TimerBarMenuFile", "Unkown cabinet model");

quint8 byteAt(QByteArrayView bytes, qsizetype offset)
{
    return static_cast<quint8>(bytes[offset]);
}

qsizetype daypartSize(int bins)
{
    return 1 + 2 * bins;
}

// Files number the bins from the bottom row upward, in a row from the left.
Bin binOfNumber(const CabinetShape &shape, int number)
{
    return {shape.rows - 1 - number / shape.columns(), number % shape.columns()};
}

quint8 encodeTemperature(int fahrenheit)
{
    return fahrenheit > temperatureOffset ? static_cast<quint8>(fahrenheit - temperatureOffset) : 0;
}

quint16 encodeMinutes(int seconds)
{
    return static_cast<quint16>(seconds / 60);
}

char encodeCharacter(QChar character)
{
    return character.unicode() < 256 ? static_cast<char>(character.unicode()) : '\0';
}

QByteArray encodeProduct(const ProductInfo &product)
{
    QByteArray record(productSize, '\0');
    qToBigEndian(encodeMinutes(product.get_holdTime()), record.data());
    record[2] = static_cast<char>(encodeTemperature(product.get_upperTemp()));
    record[3] = static_cast<char>(encodeTemperature(product.get_lowerTemp()));
    qToBigEndian(encodeMinutes(product.get_warningTime()), record.data() + 4);
    // The short name takes two bytes a character, the name one.
    const QString shortName = product.get_productShortName().toUpper().left(shortNameLength);
    for (qsizetype i = 0; i < shortName.size(); ++i)
        record[shortNameOffset + 2 * i + 1] = encodeCharacter(shortName[i]);
    const QString name = shownName(product.get_productName()).left(nameLength);
    for (qsizetype i = 0; i < name.size(); ++i)
        record[nameOffset + i] = encodeCharacter(name[i]);
    return record;
}

QByteArray encodeDaypart(int index, const DaypartCells &cells, const CabinetShape &shape)
{
    QByteArray record(1, static_cast<char>(index));
    for (int number = 0; number < shape.bins(); ++number) {
        record.append(static_cast<char>(number));
        record.append(static_cast<char>(cells[binOfNumber(shape, number)]));
    }
    return record;
}

QByteArray encodeHeader(const Menu &menu, const CabinetShape &shape)
{
    const auto count = static_cast<qsizetype>(menu.products.size());
    QByteArray header(headerSize, '\0');
    header[2] = 1;
    qToBigEndian(static_cast<quint16>(formatVersion), header.data() + 4);
    header[6] = static_cast<char>(shape.rows);
    header[7] = static_cast<char>(shape.columns());
    header[8] = static_cast<char>(menu.temperatureUnit);
    header[9] = static_cast<char>(count);
    header[10] = static_cast<char>(productSize);
    const qsizetype length = headerSize + productSize * count + daypartCount * daypartSize(shape.bins());
    qToLittleEndian(static_cast<quint16>(length), header.data() + 11);
    return header;
}

// A device that cannot seek takes the records as they come.
bool seek(QIODevice &device, qint64 offset)
{
    return device.isSequential() || device.seek(offset);
}

bool write(QIODevice &device, const QByteArray &record)
{
    return device.write(record) == record.size();
}

quint16 resume(const QByteArray &record, quint16 crc)
{
    return crc16(record.constData(), record.size(), crc);
}

QString decodeText(QByteArrayView characters)
{
    const qsizetype end = characters.indexOf('\0');
    QString text = QString::fromLatin1(end < 0 ? characters : characters.first(end));
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

std::unique_ptr<ProductInfo> decodeProduct(QByteArrayView record, int id)
{
    QByteArray shortName;
    for (qsizetype i = 0; i < shortNameLength; ++i)
        shortName.append(record[shortNameOffset + 2 * i + 1]);
    auto product = std::make_unique<ProductInfo>();
    product->set_productId(id);
    product->set_productName({decodeText(record.sliced(nameOffset, nameLength))});
    product->set_productShortName(decodeText(shortName));
    product->set_holdTime(qFromBigEndian<quint16>(record.data()) * 60);
    product->set_warningTime(qFromBigEndian<quint16>(record.data() + 4) * 60);
    product->set_upperTemp(byteAt(record, 2) + temperatureOffset);
    product->set_lowerTemp(byteAt(record, 3) + temperatureOffset);
    return product;
}

void decodeDaypart(QByteArrayView record, const CabinetShape &shape, int productCount, DaypartCells &cells)
{
    for (qsizetype i = 1; i + 1 < record.size(); i += 2) {
        const int number = byteAt(record, i);
        const int product = byteAt(record, i + 1);
        if (number < shape.bins())
            cells[binOfNumber(shape, number)] = product < productCount ? product : emptyCell;
    }
}

QString checkHeader(const QByteArray &bytes)
{
    if (bytes.size() < crcSize ||
        qFromLittleEndian<quint16>(bytes.constData()) !=
            crc16(bytes.constData() + crcSize, bytes.size() - crcSize, crc16MenuSeed))
        return Text::tr("Invalid menu file CRC!");
    if (bytes.size() < headerSize)
        return Text::tr("Invalid header size!");
    if (byteAt(bytes, 4) * 256 + byteAt(bytes, 5) != formatVersion)
        return Text::tr("Invalid menu file version!");
    if (byteAt(bytes, 10) != productSize)
        return Text::tr("Invalid product size value!");
    if (byteAt(bytes, 9) > maxProducts)
        return Text::tr("Invalid total products value!");
    return {};
}

/// The records behind the header, taken one after the other.
class RecordSource
{
public:
    explicit RecordSource(QByteArrayView bytes)
        : m_rest(bytes)
    {}

    /// The next record, or an empty view when less than that is left.
    [[nodiscard]] QByteArrayView take(qsizetype size)
    {
        if (m_rest.size() < size)
            return {};
        const QByteArrayView record = m_rest.first(size);
        m_rest = m_rest.sliced(size);
        return record;
    }

private:
    QByteArrayView m_rest;
};

QString readDayparts(RecordSource &source, Menu &menu)
{
    const CabinetShape shape = menu.shape();
    for (int i = 0; i < daypartCount; ++i) {
        const QByteArrayView record = source.take(daypartSize(shape.bins()));
        if (record.isEmpty())
            return Text::tr("Daypart read failed!");
        const int index = byteAt(record, 0);
        if (index >= daypartCount)
            return Text::tr("Invalid daypart index detected!");
        decodeDaypart(record, shape, static_cast<int>(menu.products.size()), menu.dayparts[index]);
    }
    return {};
}

} // namespace

QString readMenu(const QByteArray &bytes, Menu &menu)
{
    if (QString fault = checkHeader(bytes); !fault.isEmpty())
        return fault;
    menu.temperatureUnit = byteAt(bytes, 8);
    const QString model = modelOfShape(byteAt(bytes, 6), byteAt(bytes, 7));
    if (model.isEmpty())
        return Text::tr("Uknown cabinet model!");
    menu.model = model;
    RecordSource source(QByteArrayView(bytes).sliced(headerSize));
    const int count = byteAt(bytes, 9);
    for (int i = 0; i < count; ++i) {
        const QByteArrayView record = source.take(productSize);
        if (record.isEmpty())
            return Text::tr("Product read failed! Index =%1").arg(i);
        menu.products.push_back(decodeProduct(record, i));
    }
    return readDayparts(source, menu);
}

QString writeMenu(QIODevice &device, const Menu &menu)
{
    // An unknown model has no bins, so that a day part's record is its index alone.
    const CabinetShape shape = menu.shape();
    QByteArray header = encodeHeader(menu, shape);
    quint16 crc = crc16(header.constData() + crcSize, header.size() - crcSize, crc16MenuSeed);
    const bool placed = seek(device, headerSize);
    for (const auto &product : menu.products) {
        const QByteArray record = encodeProduct(*product);
        if (!placed || !write(device, record))
            return Text::tr("Failed to write product info to the file");
        crc = resume(record, crc);
    }
    for (int i = 0; i < daypartCount; ++i) {
        const QByteArray record = encodeDaypart(i, menu.dayparts[i], shape);
        if (!placed || !write(device, record))
            return Text::tr("Failed to write daypart info to the file");
        crc = resume(record, crc);
    }
    qToLittleEndian(crc, header.data());
    if (!seek(device, 0) || !write(device, header))
        return Text::tr("Failed to write header info to the file");
    return {};
}

} // namespace timerbar
