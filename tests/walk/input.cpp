// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/input.h"

#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

#include "tests/support/uidriver.h"

namespace walk::input {

namespace {

// Qt gives the focus to what a person clicked only.
void sendAsUser(QWidget &widget, QEvent &event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(&widget, &event);
}

void mouse(QWidget &widget, QEvent::Type type, QPoint at, Qt::KeyboardModifiers modifiers)
{
    const bool down = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, down ? Qt::LeftButton : Qt::NoButton,
                      modifiers);
    sendAsUser(widget, event);
}

Qt::Key keyOf(QChar character)
{
    const char16_t upper = character.toUpper().unicode();
    return upper >= u' ' && upper <= u'~' ? static_cast<Qt::Key>(upper) : Qt::Key_unknown;
}

// A shortcut takes the key before the widget does.
void keystroke(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    const QPointer<QWidget> alive(&widget);
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    if (!qt_sendShortcutOverrideEvent(&widget, down.timestamp(), key, modifiers, text) && alive)
        sendAsUser(widget, down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    if (alive)
        sendAsUser(widget, up);
}

} // namespace

void press(QWidget &widget, QPoint at)
{
    mouse(widget, QEvent::MouseButtonPress, at, {});
}

void release(QWidget &widget, QPoint at)
{
    mouse(widget, QEvent::MouseButtonRelease, at, {});
}

void click(QWidget &widget, QPoint at, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> alive(&widget);
    mouse(widget, QEvent::MouseButtonPress, at, modifiers);
    if (alive)
        mouse(widget, QEvent::MouseButtonRelease, at, modifiers);
}

void doubleClick(QWidget &widget, QPoint at)
{
    const QPointer<QWidget> alive(&widget);
    click(widget, at);
    if (alive)
        mouse(widget, QEvent::MouseButtonDblClick, at, {});
    if (alive)
        mouse(widget, QEvent::MouseButtonRelease, at, {});
}

void wheel(QWidget &widget, QPoint at, int notches)
{
    constexpr int notch = 120;
    QWheelEvent event(at, widget.mapToGlobal(at), {}, QPoint(0, notches * notch), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    sendAsUser(widget, event);
}

void key(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    keystroke(widget, key, modifiers, {});
}

void type(QWidget &widget, const QString &text)
{
    const QPointer<QWidget> alive(&widget);
    for (const QChar character : text) {
        if (alive)
            keystroke(widget, keyOf(character), {}, QString(character));
    }
}

void paste(QWidget &widget, const QString &text)
{
    QApplication::clipboard()->setText(text);
    key(widget, Qt::Key_V, Qt::ControlModifier);
}

void clickMenu(QMainWindow &window, const char *menu, const char *action)
{
    auto &popup = ui::get<QMenu>(window, menu);
    QMenuBar *bar = window.menuBar();
    click(*bar, bar->actionGeometry(popup.menuAction()).center());
    click(popup, popup.actionGeometry(&ui::get<QAction>(window, action)).center());
}

} // namespace walk::input
