// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/keyboard.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QWindow>

#include "tests/support/require.h"
#include "tests/support/screens.h"

using namespace Qt::StringLiterals;

namespace keyboard {

namespace {

constexpr int mostKeys = 200; // more than there are places to go to in any window

QString describe(const QWidget &widget)
{
    return QLatin1StringView(widget.metaObject()->className()) + u' ' + widget.objectName();
}

// As a window manager does: after a dialog was closed the window below is the active one.
void giveFocusBack()
{
    if (QGuiApplication::focusWindow())
        return;
    QWidget *window = QApplication::activeModalWidget();
    const QWidgetList all = QApplication::topLevelWidgets();
    for (qsizetype i = 0; i < all.size() && !window; ++i) {
        if (all[i]->isVisible() && qobject_cast<QMainWindow *>(all[i]))
            window = all[i];
    }
    if (!window)
        return; // the program was left
    window->activateWindow();
    REQUIRE_SOON(window->isActiveWindow());
}

QWindow *window()
{
    giveFocusBack();
    REQUIRE(QGuiApplication::focusWindow());
    return QGuiApplication::focusWindow();
}

// Of a list only the row that has the focus: the others may scroll out of view.
QRect placeInFocus(const QWidget &widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    if (!view)
        return widget.rect();
    const QRect viewport = view->viewport()->geometry();
    const QModelIndex current = view->currentIndex();
    if (!current.isValid())
        return {viewport.topLeft(), QSize(1, 1)};
    QRect row = view->visualRect(current).translated(viewport.topLeft());
    row.setLeft(qMax(row.left(), viewport.left()));
    row.setRight(qMin(row.right(), viewport.right()));
    return row;
}

// Cut off by no parent and by no edge of the screen, wherever the window manager puts the window.
bool isInSight(const QWidget &widget)
{
    QRect place = placeInFocus(widget);
    const QWidget *at = &widget;
    for (; at->rect().contains(place) && !at->isWindow(); at = at->parentWidget())
        place.translate(at->pos());
    const QSize room = screens::roomForWindow(*at->screen());
    return at->isWindow() && QRect(QPoint(), at->size().boundedTo(room)).contains(place);
}

void requireInSight()
{
    giveFocusBack();
    const QWidget *focus = QApplication::focusWidget();
    if (!focus || QApplication::activePopupWidget())
        return;
    REQUIRE(focus->isVisible() && isInSight(*focus), describe(*focus));
}

void goTo(const QString &name, Qt::Key key)
{
    QStringList passed;
    const QPointer<QWidget> first = &focused();
    while (focused().objectName() != name) {
        passed.append(describe(focused()));
        press(key);
        REQUIRE(&focused() != first && passed.size() < mostKeys,
                name + u" is not among "_s + passed.join(u", "_s));
    }
}

} // namespace

QWidget &focused()
{
    giveFocusBack();
    QWidget *focus = QApplication::focusWidget();
    REQUIRE(focus, u"nothing has the focus"_s);
    return *focus;
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window(), key, modifiers);
    requireInSight();
}

void pressOften(Qt::Key key, int times)
{
    for (int i = 0; i < times; ++i)
        press(key);
}

void type(const QString &text)
{
    for (const QChar character : text) {
        QTest::keyClick(window(), character.toLatin1());
        requireInSight();
    }
}

void holdSpace(const std::function<bool()> &done)
{
    QTest::keyPress(window(), Qt::Key_Space);
    REQUIRE_SOON(done());
    QTest::keyRelease(window(), Qt::Key_Space);
    requireInSight();
}

void pressWhileCtrlIsHeld(Qt::Key key, int times)
{
    const auto send = [](bool down, Qt::Key sent) {
        QTest::simulateEvent(window(), down, sent, Qt::ControlModifier, {}, false);
    };
    const int interval = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(0);
    send(true, Qt::Key_Control);
    for (int i = 0; i < times; ++i) {
        send(true, key);
        send(false, key);
    }
    send(false, Qt::Key_Control);
    QApplication::setKeyboardInputInterval(interval);
    requireInSight();
}

void tabTo(const QString &name)
{
    goTo(name, Qt::Key_Tab);
}

void tabBackTo(const QString &name)
{
    goTo(name, Qt::Key_Backtab);
}

void pushButton(const QString &name)
{
    tabTo(name);
    press(Qt::Key_Space);
}

void enter(const QString &name, const QString &text)
{
    tabTo(name);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    type(text);
}

void choose(const QString &comboBox, const QString &text)
{
    tabTo(comboBox);
    const auto *combo = qobject_cast<const QComboBox *>(&focused());
    REQUIRE(combo, comboBox);
    press(Qt::Key_Home);
    for (int i = 0; combo->currentText() != text; ++i) {
        REQUIRE(i < combo->count(), text);
        press(Qt::Key_Down);
    }
}

namespace {

// A list takes what is typed at once for one word, whatever was typed long before.
void typeAnew(const QString &word)
{
    const int interval = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(0);
    type(word.first(1));
    QApplication::setKeyboardInputInterval(60'000);
    type(word.sliced(1));
    QApplication::setKeyboardInputInterval(interval);
}

} // namespace

void find(const QString &list, const QString &text)
{
    tabTo(list);
    const auto *rows = qobject_cast<const QListWidget *>(&focused());
    REQUIRE(rows, list);
    typeAnew(text);
    const QListWidgetItem *row = rows->currentItem();
    REQUIRE(row && row->isSelected(), text);
    REQUIRE(row->text().sliced(4).startsWith(text), row->text());
}

void showPage(const QString &text)
{
    tabTo(u"qt_tabwidget_tabbar"_s);
    const auto *tabs = qobject_cast<const QTabBar *>(&focused());
    REQUIRE(tabs);
    press(Qt::Key_Home);
    for (int i = 0; tabs->tabText(tabs->currentIndex()) != text; ++i) {
        REQUIRE(i < tabs->count(), text);
        press(Qt::Key_Right);
    }
}

void menu(Qt::Key menu, Qt::Key entry)
{
    press(menu, Qt::AltModifier);
    REQUIRE(QApplication::activePopupWidget());
    press(entry);
}

void answer(QMessageBox &box, QMessageBox::StandardButton button)
{
    const QWidget *meant = box.button(button);
    REQUIRE(meant);
    for (int i = 0; QApplication::focusWidget() != meant; ++i) {
        REQUIRE(i < mostKeys, describe(focused()));
        press(Qt::Key_Tab);
    }
    press(Qt::Key_Return);
}

void answerFileName(QDialog &dialog, const QString &path)
{
    const QPointer<QDialog> open(&dialog);
    REQUIRE_EQUAL(focused().objectName(), u"fileNameEdit"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    type(path);
    press(Qt::Key_Return);
    REQUIRE(!open || !open->isVisible(), path);
}

} // namespace keyboard
