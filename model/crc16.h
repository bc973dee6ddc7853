// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

/// Start value of the menu files' checksums (CRC-16/MODBUS).
inline constexpr quint16 crc16MenuSeed = 0xFFFF;
/// Start value of the lane configuration's identifier (CRC-16/ARC).
inline constexpr quint16 crc16IdentifierSeed = 0x0000;

/// CRC-16 with the reflected polynomial 0xA001 and no final XOR over `length` bytes.
/// `seed` is one of the start values above, or an earlier result to go on from.
[[nodiscard]] quint16 crc16(const void *bytes, qsizetype length, quint16 seed);
