// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QLatin1StringView>
#include <QStringList>

/// The menu languages as the tests know them; tst_menujson_write tells of one that is missing.
inline constexpr std::array languageKeys{"eng_USA", "spa", "fra", "spa_mx", "fra_ca", "deu",   "ita", "nld",
                                         "pol",     "por", "rus", "ara",    "kor",    "zh_cn", "jpn"};
inline constexpr int languageCount = static_cast<int>(languageKeys.size());

/// The name in every language.
[[nodiscard]] inline QStringList inEveryLanguage(const QString &name)
{
    return QStringList(languageCount, name);
}
