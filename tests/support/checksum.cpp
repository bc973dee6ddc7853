// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/checksum.h"

namespace checksum {

namespace {

quint16 crc16(const QByteArray &bytes, quint32 crc)
{
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? (crc >> 1) ^ 0xA001 : crc >> 1;
    }
    return static_cast<quint16>(crc);
}

} // namespace

quint16 ofMenu(const QByteArray &bytes)
{
    return crc16(bytes, 0xFFFF);
}

quint16 ofLanes(const QByteArray &bytes)
{
    return crc16(bytes, 0);
}

} // namespace checksum
