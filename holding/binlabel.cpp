// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/binlabel.h"

#include <QCoreApplication>

namespace holding {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(BinLabel)
};

} // namespace

BinLabel binLabel(const SlotContent &content, int id)
{
    if (!content.filled)
        return {};
    const QString name = content.entry ? shownName(content.entry->get_productName()) : QString();
    if (!name.isEmpty())
        return {name, {}};
    return {Text::tr("Id %1").arg(id), content.entry ? Text::tr("no name") : Text::tr("not in this menu")};
}

} // namespace holding
