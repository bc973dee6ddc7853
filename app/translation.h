// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

class QTranslator;

/// Loads the first of the compiled-in catalogues that fits one of the languages, which come in the user's
/// order of preference. False when there is none: the texts then stay as they are in the code.
[[nodiscard]] bool loadTranslator(QTranslator &translator, const QStringList &uiLanguages);
