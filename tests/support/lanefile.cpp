// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/lanefile.h"

#include <QString>

#include "tests/support/checksum.h"

namespace lanefile {

QByteArray identifierOf(const QByteArray &contents)
{
    return QByteArray::number(checksum::ofLanes(contents), 16).rightJustified(4, '0');
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
