// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/crc16.h"

#include <array>

namespace {

constexpr std::array<quint16, 256> makeTable()
{
    std::array<quint16, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        unsigned crc = byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1U) ? (crc >> 1) ^ 0xA001U : crc >> 1;
        table[byte] = static_cast<quint16>(crc);
    }
    return table;
}

constexpr std::array<quint16, 256> table = makeTable();

} // namespace

quint16 crc16(const void *bytes, qsizetype length, quint16 seed)
{
    const auto *byte = static_cast<const uchar *>(bytes);
    quint16 crc = seed;
    for (qsizetype i = 0; i < length; ++i)
        crc = static_cast<quint16>((crc >> 8) ^ table[(crc ^ byte[i]) & 0xFF]);
    return crc;
}
