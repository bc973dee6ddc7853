// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/timeentry.h"

#include <utility>

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimeEdit>

#include "model/times.h"

using namespace Qt::StringLiterals;

namespace {

bool isDigit(const QKeyEvent &press)
{
    return press.text().size() == 1 && press.text().front().isDigit();
}

bool isErasing(const QKeyEvent &press)
{
    return press.key() == Qt::Key_Delete || press.key() == Qt::Key_Backspace;
}

bool isByKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

TimeEntry::TimeEntry(QTimeEdit *edit)
    : m_edit(edit)
    , m_line(edit->findChild<QLineEdit *>())
{
    edit->installEventFilter(this);
    m_line->installEventFilter(this);
    const auto noteEdit = [this] { m_edited = true; };
    connect(edit, &QTimeEdit::timeChanged, this, noteEdit);
    // Digits typed over themselves change no time.
    connect(m_line, &QLineEdit::textEdited, this, noteEdit);
}

void TimeEntry::show(int storedSeconds)
{
    m_storedSeconds = storedSeconds;
    m_edit->setTime(timeOfSeconds(storedSeconds));
    m_edited = false;
}

int TimeEntry::seconds() const
{
    return m_edited ? secondsOf(m_edit->time()) : enteredSeconds(m_storedSeconds);
}

bool TimeEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress)
        m_afterDigit = false;
    if (watched != m_edit)
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn) {
        takeFocus(*static_cast<QFocusEvent *>(event));
        return true;
    }
    return event->type() == QEvent::KeyPress && takeKey(*static_cast<QKeyEvent *>(event));
}

bool TimeEntry::isWholeSelected() const
{
    return m_line->hasSelectedText() && m_line->selectedText() == m_line->text();
}

/// While a section is being typed it has fewer digits.
bool TimeEntry::isComplete() const
{
    return m_line->text() == m_edit->locale().toString(m_edit->time(), m_edit->displayFormat());
}

// The box by itself selects a section, also when its window becomes active after a message.
void TimeEntry::takeFocus(QFocusEvent &event)
{
    const bool whole = isByKeyboard(event.reason()) || isWholeSelected();
    m_edit->event(&event);
    if (whole)
        m_edit->selectAll();
}

// Left to itself the box takes no digit while all is selected, nor where nothing is.
bool TimeEntry::takeKey(const QKeyEvent &press)
{
    if (isWholeSelected() && isErasing(press)) {
        startOver();
        m_edit->selectAll();
        return true;
    }
    // The colon after the second digit: the box has gone on to the next section by itself.
    const bool afterDigit = std::exchange(m_afterDigit, isDigit(press));
    if (!isDigit(press))
        return afterDigit && m_line->hasSelectedText() && press.text() == u":"_s;
    const bool beside = m_line->cursorPosition() == 0 || m_line->cursorPosition() == m_line->text().size();
    // Behind the last digit of all there is no room for more.
    const bool inNothing = !afterDigit && !m_line->hasSelectedText() && isComplete();
    if (isWholeSelected() || (inNothing && beside))
        startOver();
    else if (inNothing)
        m_edit->setSelectedSection(m_edit->currentSection());
    return false;
}

void TimeEntry::startOver()
{
    m_edit->setTime(QTime(0, 0));
    m_edit->setSelectedSection(m_edit->sectionAt(0));
}
