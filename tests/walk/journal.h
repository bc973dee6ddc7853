// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace walk {

/// What the session did so far, so that its end can tell how it came to it. Every Qt warning ends the
/// session. One object at a time, as it takes all messages.
class Journal
{
public:
    /// `loud` prints every line at once.
    Journal(quint32 seed, int steps, bool loud);
    ~Journal();
    Journal(const Journal &) = delete;
    Journal &operator=(const Journal &) = delete;

    /// Names of files are told without this folder, so that two walks of a seed tell the same.
    void setFolder(const QString &folder) { m_folder = folder; }

    /// The next step.
    void step(const QString &what);
    /// What is seen on the way; no step.
    void remark(const QString &what);
    [[nodiscard]] bool isOver() const { return m_done >= m_steps; }

    /// Counts what a session should reach.
    void count(const QString &what) { ++m_counts[what]; }
    [[nodiscard]] const QMap<QString, int> &counts() const { return m_counts; }

    /// Tells the last steps and how to repeat the session, and ends the program with its files left behind.
    [[noreturn]] void fail(const QString &why) const;
    /// The same unless the condition holds.
    void check(bool condition, const QString &why) const
    {
        if (!condition)
            fail(why);
    }

private:
    void write(const QString &line);

    quint32 m_seed;
    int m_steps;
    int m_done = 0;
    bool m_loud;
    QString m_folder;
    QStringList m_last;
    QMap<QString, int> m_counts;
};

} // namespace walk
