// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdlib>

#include <QApplication>
#include <QEvent>

#include "benchmarks/memory.h"

/// Ends the program, without tearing anything down, when its first window has been painted, and prints the
/// memory that it holds then.
class FirstFrame final : public QObject
{
public:
    FirstFrame() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // A window paints its widgets and hands the frame over in one go: what is queued now runs after that.
        if (event->type() == QEvent::Paint && watched->isWidgetType())
            QMetaObject::invokeMethod(
                this, [] { end(); }, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    [[noreturn]] static void end()
    {
        std::printf("%ld\n", residentKib());
        std::fflush(stdout);
        std::_Exit(EXIT_SUCCESS);
    }
};
