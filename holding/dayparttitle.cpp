// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/dayparttitle.h"

#include <QCoreApplication>

namespace holding {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DaypartTitle)
};

} // namespace

QString daypartTitle(const Daypart &daypart, int index)
{
    const QString name = shownName(daypart.names);
    return name.isEmpty() ? Text::tr("Day part %1").arg(index + 1) : name;
}

} // namespace holding
