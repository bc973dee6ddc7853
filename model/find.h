// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

/// The words of what somebody typed to find entries by, in the form in which matchesFind() compares: case,
/// accents and widths of letters are gone. Empty where nothing but blanks was typed.
[[nodiscard]] QStringList findWords(const QString &typed);

/// Whether each of these words is a part of the name or of the number; true without any. Of a name that a
/// file may have made megabytes long no more is looked at than lists show.
[[nodiscard]] bool matchesFind(const QStringList &words, QStringView name, int number);
