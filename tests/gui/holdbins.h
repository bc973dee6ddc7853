// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWindow>

#include "tests/gui/openbins.h"

/// A grid whose bins are pressed and held with one mouse, through the window as the platform would.
class HoldBins : public OpenBins
{
public:
    using OpenBins::OpenBins;

    void press(int row, int slot)
    {
        QPushButton &pressed = button(row, slot);
        m_point = m_at = pressed.mapTo(&**this, pressed.rect().center());
        QTest::mousePress(window(), Qt::LeftButton, {}, m_point);
    }
    /// Moves to a place as seen from where the button was pressed.
    void move(const QPoint &by) { QTest::mouseMove(window(), m_at = m_point + by); }
    void release() { QTest::mouseRelease(window(), Qt::LeftButton, {}, m_at); }
    void moveAndRelease(const QList<QPoint> &moves)
    {
        for (const QPoint &by : moves)
            move(by);
        release();
    }

    void holdSpace() { QTest::keyPress(window(), Qt::Key_Space); }
    void releaseSpace() { QTest::keyRelease(window(), Qt::Key_Space); }
    /// What the keyboard sends again and again while the key is down.
    void repeatSpace()
    {
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent event(type, Qt::Key_Space, {}, QStringLiteral(" "), true);
            QCoreApplication::sendEvent(window(), &event);
        }
    }

    [[nodiscard]] bool isRemoving() { return widget("btnDaypartRemove").isVisible(); }

    /// Where the visible bins and the hint above them are on the screen.
    [[nodiscard]] QList<QRect> places()
    {
        QList<QRect> all;
        for (QPushButton *bin : widget("frameGrid").findChildren<QPushButton *>()) {
            if (bin->isVisible())
                all.append({bin->mapToGlobal(QPoint()), bin->size()});
        }
        return all;
    }

private:
    [[nodiscard]] QWindow *window() { return (**this).windowHandle(); }

    QPoint m_point; ///< where it was pressed
    QPoint m_at;    ///< where it is now
};
