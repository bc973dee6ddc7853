// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

/// The part of a path after its last "/", which the editors show in their titles.
[[nodiscard]] QString lastPathPart(const QString &path);

/// More bytes than any menu has. Larger files are not read, and so that every file can be opened again, none
/// is written.
inline constexpr qint64 largestFile = 64LL * 1024 * 1024;

/// Reads a whole regular file. Nothing when it cannot be opened or read, is too large, or is no regular file:
/// a FIFO or an endless device would block or exhaust the memory.
[[nodiscard]] std::optional<QByteArray> readFile(const QString &path);

/// Whether a path can be opened for writing without blocking: a regular file, one that does not exist yet, or
/// a device; no folder, FIFO or socket.
[[nodiscard]] bool isWritableTarget(const QString &path);

/// Makes `bytes` the whole content of the file at `path` and returns whether that is certain.
///
/// A regular file is replaced whole: after an error the last good file is still there. The bytes are written
/// in place for a device, where no temporary file can be made beside the old one or take its place, and where
/// the replacement would have another owner or group or the old file has several names: a shared file stays
/// shared. A regular file that fails so gets its old content back as far as the disk allows. A folder, FIFO
/// or socket, and bytes that readFile() would not take, are refused at once.
[[nodiscard]] bool writeFile(const QString &path, const QByteArray &bytes);
