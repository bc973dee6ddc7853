// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include "tests/walk/chance.h"

namespace walk {

/// The files that a session opens and saves, in a folder of its own that is also the current one, so that
/// names without a folder stay in it.
class MenuFiles
{
public:
    explicit MenuFiles(Chance &chance);
    ~MenuFiles();

    [[nodiscard]] QString folder() const { return m_folder.path(); }
    /// Leaves the folder behind.
    void keep() { m_folder.setAutoRemove(false); }

    /// A file to open: one that was saved, a new one of any line, or a damaged copy.
    [[nodiscard]] QString toOpen();
    /// An old binary menu to import.
    [[nodiscard]] QString toImport();
    /// A name to save under; most of them can be written.
    [[nodiscard]] QString toSave(const QString &suffix);
    /// Overwrites a file with a damaged copy of itself.
    void damage(const QString &path);

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString make(const QString &suffix);
    [[nodiscard]] QByteArray contents(const QString &suffix);
    [[nodiscard]] QString anyName(const QString &suffix);

    Chance &m_chance;
    QString m_oldFolder;
    QTemporaryDir m_folder;
    int m_made = 0;
};

[[nodiscard]] QByteArray bytesOf(const QString &path);

} // namespace walk
