// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

/// Runs the event loop until the widget has been painted, and what follows in the same turn.
class PaintWatch final : public QObject
{
public:
    PaintWatch() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched == m_awaited)
            m_awaited = nullptr;
        return false;
    }

    void waitUntilPainted(const QObject *widget)
    {
        m_awaited = widget;
        while (m_awaited)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    }

private:
    const QObject *m_awaited = nullptr;
};
