// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/lanefile.h"

#include <QString>

namespace lanefile {

// Bit by bit, so that it shares nothing with the program's table.
QByteArray identifierOf(const QByteArray &contents)
{
    unsigned crc = 0;
    for (const char byte : contents) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1U) != 0 ? 0xA001U : 0U);
    }
    return QByteArray::number(crc, 16).rightJustified(4, '0');
}

QByteArray text(const QByteArray &contents)
{
    return text(contents, identifierOf(contents));
}

QByteArray text(const QByteArray &contents, const QByteArray &identifier)
{
    return "Manual edits will render this file useless\nIdentifier=" + identifier + '\n' + contents;
}

} // namespace lanefile
