// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMetaObject>
#include <QStringList>

/// The slots that a class itself declares, in order, each as "name(type parameter, ...)".
[[nodiscard]] QStringList ownSlots(const QMetaObject &metaObject);
