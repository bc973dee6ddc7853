// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QtEndian>

#include "model/crc16.h"

namespace fuzzing {

namespace {

bool sameRecord(const ProductInfo &one, const ProductInfo &other)
{
#define IS_SAME(Type, Argument, field, initially) one.get_##field() == other.get_##field() &&
    return FOR_EACH_PRODUCT_FIELD(IS_SAME) true;
#undef IS_SAME
}

void endAtWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QByteArray text = qFormatLogMessage(type, context, message).toUtf8();
    std::fprintf(stderr, "%s\n", text.constData());
    demand(type == QtDebugMsg || type == QtInfoMsg, "Qt warned");
}

} // namespace

void demand(bool holds, const char *message)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", message);
    std::abort();
}

QByteArray viewOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

bool sameEntries(const Entries &one, const Entries &other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const auto &left, const auto &right) { return sameRecord(*left, *right); });
}

void sealRecord(QByteArray &file, qint64 offset, qsizetype size)
{
    constexpr qsizetype crcSize = 2;
    if (size < crcSize || offset > file.size() - size)
        return;
    char *record = file.data() + offset;
    qToLittleEndian(crc16(record + crcSize, size - crcSize, crc16MenuSeed), record);
}

std::size_t hand(const QByteArray &file, std::uint8_t *data, std::size_t maxSize)
{
    const std::size_t size = std::min(maxSize, static_cast<std::size_t>(file.size()));
    std::copy_n(file.constData(), size, data);
    return size;
}

} // namespace fuzzing

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler(fuzzing::endAtWarnings);
    return 0;
}
