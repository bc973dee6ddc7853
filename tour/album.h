// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDir>
#include <QString>

class QWidget;

/// The folder that the tour leaves its pictures and files in.
class Album
{
public:
    /// Creates the folder where there is none, and removes what an earlier tour left in it.
    explicit Album(const QString &folder);

    [[nodiscard]] bool exists() const { return m_folder.exists(); }
    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.absoluteFilePath(name); }

    /// Saves the whole screen, window frames and all, under the next number: "03-configuration.png". Waits
    /// until the foremost window is active and the screen has come to rest; fails the running step where that
    /// does not happen.
    void shot(const QString &name);
    /// Saves a window of the program with its frame as "guide/lanes.png", in the same way.
    void document(const QString &name, const QWidget &window);
    /// Saves the first page of a PDF file as "guide/bin-plan.png".
    void page(const QString &name, const QString &pdf);

private:
    QDir m_folder;
    int m_count = 0;
};
