// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <optional>

#include <QByteArray>
#include <QList>

/// Old binary menus, put together byte by byte. What a reader must not look at is filled with 0xEE.
namespace qhx {

inline constexpr qsizetype headerSize = 18;
inline constexpr qsizetype configurationSize = 26;
inline constexpr qsizetype entrySize = 134;
inline constexpr qsizetype daypartSize = 82;

/// A product or group record. Temperatures are °F, times seconds.
struct Entry
{
    quint8 kind = 'p';
    quint32 id = 1;
    QByteArray name = "Bacon"; ///< of at most 64 bytes; zeros follow it
    quint32 holdTime = 1800;
    quint32 warningTime = 300;
    quint32 upperTemp = 210;
    quint32 lowerTemp = 190;
    quint8 lid = 0;
    quint8 bottom = 0;
    quint8 zone = 1;
    quint8 defaultIndex = 0;
    std::array<quint32, 8> members{};
    quint8 fanSpeed = 60;
};

using Bins = std::array<quint32, 20>;

/// The records in the order of the file: header, configuration, entries, day parts. Whatever is set aside
/// from the contents makes a fault.
struct File
{
    quint8 model = 8;
    quint8 unit = 0;
    QList<Entry> entries;
    std::array<Bins, 2> dayparts{};

    quint16 revision = 5;
    std::optional<quint8> count; ///< else that of the entries
    std::optional<quint32> configurationOffset;
    std::optional<quint32> entriesOffset;
    std::optional<quint32> daypartsOffset;
    QList<qsizetype> brokenChecksums; ///< of the records in the order of the file, from 0

    [[nodiscard]] QByteArray bytes() const;
};

/// Where each record of such a file begins, and the size of it all at the end.
[[nodiscard]] QList<qsizetype> recordOffsets(qsizetype entryCount);

/// The record with the checksum of its other bytes in front.
[[nodiscard]] QByteArray sealed(QByteArray record);

/// A menu of two products and a group on a KTR54, in both day parts.
[[nodiscard]] File sample();

} // namespace qhx
