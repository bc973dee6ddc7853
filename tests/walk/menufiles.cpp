// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/menufiles.h"

#include <QDir>
#include <QFile>

#include "tests/walk/menus.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

const QStringList suffixes{u".json"_s, u".qhx"_s, u".txt"_s, u".cbr"_s};

void store(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The session cannot write its own files");
}

QByteArray damaged(QByteArray bytes, Chance &chance)
{
    if (bytes.isEmpty() || chance.oneIn(4))
        return bytes.first(chance.below(bytes.size() + 1));
    for (int changes = chance.between(1, 3); changes > 0; --changes)
        bytes[chance.below(bytes.size())] = static_cast<char>(chance.below(256));
    return bytes;
}

} // namespace

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

MenuFiles::MenuFiles(Chance &chance)
    : m_chance(chance)
    , m_oldFolder(QDir::currentPath())
{
    QDir::setCurrent(m_folder.path());
    QDir(m_folder.path()).mkdir(u"svrxconfig_folder.txt"_s);
}

MenuFiles::~MenuFiles()
{
    QDir::setCurrent(m_oldFolder);
}

QString MenuFiles::toOpen()
{
    QStringList present = QDir(m_folder.path()).entryList(QDir::Files, QDir::Name);
    if (!present.isEmpty() && m_chance.oneIn(2))
        return path(m_chance.of(present));
    if (m_chance.oneIn(20))
        return path(u"none.json"_s);
    const QString made = make(m_chance.of(suffixes));
    if (m_chance.oneIn(5))
        damage(made);
    return made;
}

QString MenuFiles::toImport()
{
    const QString made = make(u".qhx"_s);
    if (m_chance.oneIn(4))
        damage(made);
    return made;
}

void MenuFiles::damage(const QString &path)
{
    store(path, damaged(bytesOf(path), m_chance));
}

QString MenuFiles::make(const QString &suffix)
{
    const QString made = path(u"made%1%2"_s.arg(++m_made).arg(suffix));
    store(made, contents(suffix));
    return made;
}

QByteArray MenuFiles::contents(const QString &suffix)
{
    if (suffix == ".json"_L1)
        return holdingMenu(m_chance);
    if (suffix == ".qhx"_L1)
        return oldHoldingMenu(m_chance);
    return suffix == ".txt"_L1 ? laneConfiguration(m_chance) : timerBarMenu(m_chance);
}

QString MenuFiles::toSave(const QString &suffix)
{
    if (m_chance.oneIn(15))
        return path(u"nowhere/svrxconfig_"_s + anyName(suffix));
    if (m_chance.oneIn(20))
        return path(u"svrxconfig_folder.txt"_s);
    const bool loadable = suffix == ".txt"_L1 && !m_chance.oneIn(6);
    return path((loadable ? u"svrxconfig_"_s : QString()) + anyName(suffix));
}

QString MenuFiles::anyName(const QString &suffix)
{
    static const QStringList names{u"a"_s, u"b"_s, u"c [*] %1"_s, u"Käse & <b>Brot</b>"_s,
                                   u"d"_s.repeated(120)};
    return m_chance.of(names) + suffix;
}

} // namespace walk
