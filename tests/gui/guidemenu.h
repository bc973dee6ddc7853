// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QJsonDocument>

#include "tests/gui/guide.h"
#include "tests/gui/openbins.h"

/// Holding-cabinet menus for those who follow the user guide.
namespace guide {

using namespace Qt::StringLiterals;

[[nodiscard]] inline QJsonObject objectOf(const QByteArray &file, const QString &key)
{
    return QJsonDocument::fromJson(file).object().value(key).toObject();
}

/// The menu that is in front, saved under a name that no file has yet.
[[nodiscard]] inline QJsonObject savedMenu(Guide &guide)
{
    const QString name = u"saved%1.json"_s.arg(guide.folder().names().size());
    return objectOf(guide.saved(name), u"menu"_s);
}

/// On the cabinet with the most rows of bins: its editor is the highest.
inline void openMenu(Guide &guide, const QJsonObject &header = {}, const QList<int> &morning = {2, 2})
{
    samplefile::Menu menu = bins::menuOf(u"KTR82"_s, morning);
    menu.header = bins::headerOf(u"KTR82"_s, header);
    guide.open(u"menu.json"_s, menu.bytes());
}

} // namespace guide
