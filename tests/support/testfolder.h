// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The bytes of a file, or "(cannot be read)".
[[nodiscard]] QByteArray contentOf(const QString &path);

/// A folder for the files of one test function, gone with everything in it at the end. What cannot be made
/// in it ends the test program.
class TestFolder
{
public:
    [[nodiscard]] bool isValid() const { return m_folder.isValid(); }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    /// The path as system calls want it.
    [[nodiscard]] QByteArray native(const QString &name) const { return path(name).toLocal8Bit(); }

    /// Everything in the folder, hidden and broken things too, sorted.
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] QByteArray content(const QString &name) const;
    /// Makes a file and returns its path.
    QString make(const QString &name, const QByteArray &bytes) const;
    /// Makes a symbolic link to `target`, which need not exist.
    void link(const QString &name, const QString &target) const;
    /// Removes the folder, so that nothing can be saved in it any more.
    void remove();

private:
    QTemporaryDir m_folder;
};
