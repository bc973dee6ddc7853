// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/testfolder.h"

#include "tests/support/require.h"
#include <QDir>
#include <QFile>

#include <unistd.h>

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

QStringList TestFolder::names() const
{
    return QDir(m_folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray TestFolder::content(const QString &name) const
{
    return contentOf(path(name));
}

QString TestFolder::make(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    REQUIRE(file.open(QIODevice::WriteOnly), file.fileName());
    REQUIRE(file.write(bytes) == bytes.size() && file.flush(), file.fileName());
    return file.fileName();
}

void TestFolder::remove()
{
    REQUIRE(m_folder.remove());
}

// QFile::link() would make a relative target absolute.
void TestFolder::link(const QString &name, const QString &target) const
{
    REQUIRE_EQUAL(symlink(target.toLocal8Bit().constData(), native(name).constData()), 0);
}
