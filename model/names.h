// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QStringList>

/// The menu languages, in the order of every name list. The first one is shown in the editors.
inline constexpr auto nameLanguages = std::to_array({
    QLatin1StringView("eng_USA"),
    QLatin1StringView("spa"),
    QLatin1StringView("fra"),
    QLatin1StringView("spa_mx"),
    QLatin1StringView("fra_ca"),
    QLatin1StringView("deu"),
    QLatin1StringView("ita"),
    QLatin1StringView("nld"),
    QLatin1StringView("pol"),
    QLatin1StringView("por"),
    QLatin1StringView("rus"),
    QLatin1StringView("ara"),
    QLatin1StringView("kor"),
    QLatin1StringView("zh_cn"),
    QLatin1StringView("jpn"),
});

/// One name for every language, as an entered name is stored.
[[nodiscard]] inline QStringList sameNameInAllLanguages(const QString &name)
{
    return QStringList(static_cast<qsizetype>(nameLanguages.size()), name);
}

/// The name to show; empty for an empty list.
[[nodiscard]] inline QString shownName(const QStringList &names)
{
    return names.value(0);
}
