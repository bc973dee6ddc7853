// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/testfolder.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <unistd.h>

QStringList TestFolder::names() const
{
    return QDir(m_folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray TestFolder::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

void TestFolder::make(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

// QFile::link() would make a relative target absolute.
void TestFolder::link(const QString &name, const QString &target) const
{
    QCOMPARE(symlink(target.toLocal8Bit().constData(), native(name).constData()), 0);
}
