// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

/// The part of a path after its last "/", which the editors show in their titles.
[[nodiscard]] QString lastPathPart(const QString &path);

/// Reads a whole regular file. Nothing when it cannot be opened or read, is larger than any menu can be
/// (64 MiB), or is no regular file: a FIFO or an endless device would block or exhaust the memory.
[[nodiscard]] std::optional<QByteArray> readFile(const QString &path);

/// Whether a path can be opened for writing without blocking: a regular file, one that does not exist yet, or
/// a device; no folder, FIFO or socket.
[[nodiscard]] bool isWritableTarget(const QString &path);

/// Makes `bytes` the whole content of the file at `path` and returns whether that is certain.
///
/// A regular file is replaced whole: after a failure the last good file is still there. Only where no
/// temporary file can be made beside an existing, writable one or take its place, and for a device, the
/// bytes are written in place; a regular file that fails so gets its old content back as far as the disk
/// allows. A folder, FIFO or socket is refused at once.
[[nodiscard]] bool writeFile(const QString &path, const QByteArray &bytes);
