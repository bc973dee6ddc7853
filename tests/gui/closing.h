// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>

#include "tests/support/program.h"
#include "tests/support/require.h"
#include "tests/support/uidriver.h"

/// What the tests of closing an editor share: the ways to do it, and what may come of it.
namespace closing {

enum class Way { Escape, CtrlW, CtrlF4, SubWindow };

/// Closes the editor that was opened last.
inline void close(Program &program, Way way = Way::Escape)
{
    ui::activate(program.window());
    QWidget *editor = program.subWindow()->widget();
    switch (way) {
    case Way::Escape:
        QTest::keyClick(editor, Qt::Key_Escape);
        break;
    case Way::CtrlW:
        QTest::keyClick(editor, Qt::Key_W, Qt::ControlModifier);
        break;
    case Way::CtrlF4:
        QTest::keyClick(editor, Qt::Key_F4, Qt::ControlModifier);
        break;
    case Way::SubWindow:
        program.subWindow()->close();
        break;
    }
}

/// The same, with this answer to the question whether to save, which has to come up.
inline void close(Program &program, QMessageBox::StandardButton answer, Way way = Way::Escape)
{
    program.expectSaveQuestion(answer);
    close(program, way);
    REQUIRE(program.answers().allAnswered());
}

inline QPointer<QWidget> editor(Program &program)
{
    REQUIRE(program.subWindow());
    return program.subWindow()->widget();
}

inline void requireGone(Program &program, const QPointer<QWidget> &editor)
{
    REQUIRE_SOON(program.menuCount() == 0);
    REQUIRE_SOON(!editor);
}

/// That the editor is the only one open.
inline void requireOpen(Program &program, const QPointer<QWidget> &editor)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    REQUIRE(editor);
    REQUIRE(editor->isVisible());
    REQUIRE_EQUAL(program.menuCount(), 1);
    REQUIRE(program.subWindow()->widget() == editor);
}

} // namespace closing

Q_DECLARE_METATYPE(closing::Way)
