// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

/// Lids and bottoms: the words that menus store, and the translated texts that stand for them, in one order.
namespace holding {

[[nodiscard]] const QStringList &lidTypes();
[[nodiscard]] QStringList lidTexts();
/// The place of a stored word; an unknown one counts as no lid.
[[nodiscard]] int lidIndex(const QString &lidType);
[[nodiscard]] QString lidText(const QString &lidType);

[[nodiscard]] const QStringList &bottomTypes();
[[nodiscard]] QStringList bottomTexts();
/// The place of a stored word; an unknown one counts as normal.
[[nodiscard]] int bottomIndex(const QString &bottomType);
[[nodiscard]] QString bottomText(const QString &bottomType);

} // namespace holding
