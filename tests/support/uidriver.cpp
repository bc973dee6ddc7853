// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/uidriver.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTimeEdit>

using namespace Qt::StringLiterals;

namespace ui {

void click(QWidget &widget)
{
    QVERIFY2(widget.isVisible() && widget.isEnabled(), qPrintable(widget.objectName()));
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void click(const QObject &parent, const char *name)
{
    click(get<QWidget>(parent, name));
}

void type(QWidget &input, const QString &text)
{
    QVERIFY2(input.isVisible() && input.isEnabled(), qPrintable(input.objectName()));
    input.setFocus();
    QTest::keyClick(&input, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&input, Qt::Key_Delete);
    QTest::keyClicks(&input, text);
}

void type(const QObject &parent, const char *name, const QString &text)
{
    type(get<QWidget>(parent, name), text);
}

void enterTime(const QObject &parent, const char *timeEdit, const QTime &time)
{
    auto &edit = get<QTimeEdit>(parent, timeEdit);
    QVERIFY2(edit.isVisible() && edit.isEnabled(), timeEdit);
    edit.setFocus();
    edit.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&edit, time.toString(u"HHmmss"_s));
    QCOMPARE(edit.time(), time);
}

void choose(const QObject &parent, const char *comboBox, const QString &text)
{
    auto &combo = get<QComboBox>(parent, comboBox);
    QVERIFY2(combo.isVisible() && combo.isEnabled(), comboBox);
    const int index = combo.findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo.setFocus();
    while (combo.currentIndex() != index)
        QTest::keyClick(&combo, combo.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
}

namespace {

QRect rowRect(QListWidget &list, int row)
{
    QListWidgetItem *item = list.item(row);
    list.scrollToItem(item);
    return list.visualItemRect(item);
}

} // namespace

void clickRow(QListWidget &list, int row, Qt::KeyboardModifiers modifiers)
{
    QVERIFY(row >= 0 && row < list.count());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, rowRect(list, row).center());
}

void clickRowBox(QListWidget &list, int row)
{
    QVERIFY(row >= 0 && row < list.count());
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = rowRect(list, row);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = list.item(row)->text();
    const QRect box = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box.center());
}

void doubleClickRow(QListWidget &list, int row)
{
    clickRow(list, row);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, rowRect(list, row).center());
}

void clickMenu(QMainWindow &window, const char *menu, const char *action)
{
    auto &popup = get<QMenu>(window, menu);
    QMenuBar *bar = window.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(popup.menuAction()).center());
    QVERIFY(popup.isVisible());
    QAction &entry = get<QAction>(window, action);
    QTest::mouseClick(&popup, Qt::LeftButton, {}, popup.actionGeometry(&entry).center());
}

void show(QWidget &window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    activate(window);
}

void activate(QWidget &window)
{
    window.activateWindow();
    QVERIFY(QTest::qWaitFor([&window] { return window.isActiveWindow(); }));
}

} // namespace ui
