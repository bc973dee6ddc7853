// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/translation.h"

#include <algorithm>

#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

bool loadTranslator(QTranslator &translator, const QStringList &uiLanguages)
{
    return std::any_of(uiLanguages.begin(), uiLanguages.end(), [&translator](const QString &language) {
        return translator.load(u":/i18n/VarnoPlexora_"_s + QLocale(language).name());
    });
}
