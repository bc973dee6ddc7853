// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// For tool tips and message boxes, which take a text for markup when it looks like it and would then read
/// the files that it names: the same text as it is to be seen. What does not look like markup is returned
/// unchanged. Needed wherever a text comes from a menu or from the file system.
[[nodiscard]] QString asPlainText(const QString &text);
