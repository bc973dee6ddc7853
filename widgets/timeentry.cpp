// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/timeentry.h"

#include <QLineEdit>
#include <QTimeEdit>

#include "model/times.h"

namespace {

constexpr int secondsOfDay = 24 * 60 * 60;

} // namespace

TimeEntry::TimeEntry(QTimeEdit *edit)
    : m_edit(edit)
{
    const auto noteEdit = [this] { m_edited = true; };
    connect(edit, &QTimeEdit::timeChanged, this, noteEdit);
    // Digits typed over themselves change no time.
    connect(edit->findChild<QLineEdit *>(), &QLineEdit::textEdited, this, noteEdit);
}

void TimeEntry::show(int storedSeconds)
{
    m_storedSeconds = storedSeconds;
    m_edit->setTime(timeOfSeconds(storedSeconds));
    m_edited = false;
}

int TimeEntry::seconds() const
{
    const bool storedStands = !m_edited && m_storedSeconds >= secondsOfDay;
    return storedStands ? m_storedSeconds : secondsOf(m_edit->time());
}
