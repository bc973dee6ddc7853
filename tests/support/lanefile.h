// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

/// Lane configuration files, written by the tests themselves rather than by the program.
namespace lanefile {

/// The identifier of a contents line, given as its Latin-1 bytes: four lower-case hexadecimal digits.
[[nodiscard]] QByteArray identifierOf(const QByteArray &contents);

/// The three lines of a file with this contents line and the identifier that goes with it.
[[nodiscard]] QByteArray text(const QByteArray &contents);
/// The same with an identifier of the test's own.
[[nodiscard]] QByteArray text(const QByteArray &contents, const QByteArray &identifier);

} // namespace lanefile
