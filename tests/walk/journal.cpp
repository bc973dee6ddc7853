// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/journal.h"

#include <cstdio>
#include <cstdlib>

#include <QMessageLogContext>

using namespace Qt::StringLiterals;

namespace walk {

namespace {

constexpr qsizetype linesKept = 40;
constexpr qsizetype longestLine = 200;

const Journal *current = nullptr;

void takeMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    // What the offscreen platform says of itself.
    if (type == QtDebugMsg || type == QtInfoMsg || message.startsWith("This plugin does not support "_L1))
        return;
    current->fail(u"Qt warns: "_s + message);
}

} // namespace

Journal::Journal(quint32 seed, int steps, bool loud)
    : m_seed(seed)
    , m_steps(steps)
    , m_loud(loud)
{
    current = this;
    qInstallMessageHandler(takeMessage);
}

Journal::~Journal()
{
    qInstallMessageHandler(nullptr);
}

void Journal::step(const QString &what)
{
    ++m_done;
    write(u"%1 %2"_s.arg(m_done, 6).arg(what));
}

void Journal::remark(const QString &what)
{
    write(u"       "_s + what);
}

void Journal::write(const QString &line)
{
    QString told = line;
    if (!m_folder.isEmpty())
        told.replace(m_folder, u"~"_s);
    told = told.left(longestLine);
    // Whatever a text brings, a line stays a line.
    for (QChar &character : told)
        character = character.isPrint() ? character : u'?';
    m_last.append(told);
    if (m_last.size() > linesKept)
        m_last.removeFirst();
    if (m_loud)
        std::printf("%s\n", qPrintable(told)), std::fflush(stdout);
}

void Journal::fail(const QString &why) const
{
    std::printf("%s\n\n%s\n", qPrintable(m_last.join(u'\n')), qPrintable(why));
    std::printf("Its files are in %s\nRepeat it with: scripts/walk %u %d\n", qPrintable(m_folder), m_seed,
                m_steps);
    std::fflush(stdout);
    std::_Exit(EXIT_FAILURE); // dialogs may be open on the stack
}

} // namespace walk
