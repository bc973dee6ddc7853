// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QString>

#include "fuzz/fuzzing.h"
#include "lanes/laneconfiguration.h"
#include "model/crc16.h"

using namespace fuzzing;

namespace {

struct Line
{
    qsizetype begin = -1;
    qsizetype size = 0;
};

// The last line with this beginning, as the last one counts.
Line lastLine(const QByteArray &file, QByteArrayView beginning)
{
    Line found;
    for (qsizetype begin = 0; begin < file.size();) {
        qsizetype end = begin;
        while (end < file.size() && file[end] != '\n' && file[end] != '\r')
            ++end;
        if (QByteArrayView(file).sliced(begin).startsWith(beginning))
            found = {begin, end - begin};
        begin = end + 1;
    }
    return found;
}

void identify(QByteArray &file)
{
    const Line contents = lastLine(file, "T1=");
    const Line identifier = lastLine(file, "Identifier");
    if (contents.begin < 0 || identifier.begin < 0)
        return;
    const QByteArray bytes = QString::fromUtf8(file.mid(contents.begin, contents.size)).toLatin1();
    const quint16 crc = crc16(bytes.constData(), bytes.size(), crc16IdentifierSeed);
    const QByteArray line = "Identifier=" + QByteArray::number(crc, 16);
    file.replace(identifier.begin, identifier.size, line);
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    const std::size_t newSize = LLVMFuzzerMutate(data, size, maxSize);
    if (seed % 16 == 0) // wrong identifiers now and then
        return newSize;
    QByteArray file = viewOf(data, newSize);
    identify(file);
    return hand(file, data, maxSize);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    lanes::Configuration configuration;
    if (!lanes::readConfiguration(viewOf(data, size), configuration).isEmpty())
        return 0;
    const QByteArray written = lanes::writeConfiguration(configuration);
    lanes::Configuration again;
    demand(lanes::readConfiguration(written, again).isEmpty(), "what was written is read");
    demand(again == configuration, "the lanes come back");
    demand(lanes::writeConfiguration(again) == written, "what was read is written as before");
    demand(lanes::writeProductionRecord(configuration).size() == 46, "every production record is as long");
    return 0;
}
