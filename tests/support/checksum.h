// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

/// The CRC-16 of all file formats, bit by bit as its polynomial says, so that the files that tests put
/// together owe nothing to the program's table.
namespace checksum {

[[nodiscard]] quint16 ofMenu(const QByteArray &bytes);
/// Of a lane file's contents line.
[[nodiscard]] quint16 ofLanes(const QByteArray &bytes);

} // namespace checksum
