// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/uidriver.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTimeEdit>

#include "tests/support/require.h"

using namespace Qt::StringLiterals;

namespace ui {

void noWidget(const char *type, const char *name)
{
    require::fail(u"There is no %1 named %2"_s.arg(QLatin1StringView(type), QLatin1StringView(name)),
                  {__FILE__, __LINE__});
}

void click(QWidget &widget)
{
    REQUIRE(widget.isVisible() && widget.isEnabled(), widget.objectName());
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void click(const QObject &parent, const char *name)
{
    click(get<QWidget>(parent, name));
}

void type(QWidget &input, const QString &text)
{
    REQUIRE(input.isVisible() && input.isEnabled(), input.objectName());
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
    REQUIRE(edit.isVisible() && edit.isEnabled(), edit.objectName());
    edit.setFocus();
    edit.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&edit, time.toString(u"HHmmss"_s));
    REQUIRE_EQUAL(edit.time(), time);
}

void choose(const QObject &parent, const char *comboBox, const QString &text)
{
    auto &combo = get<QComboBox>(parent, comboBox);
    REQUIRE(combo.isVisible() && combo.isEnabled(), combo.objectName());
    const int index = combo.findText(text);
    REQUIRE(index >= 0, text);
    combo.setFocus();
    while (combo.currentIndex() != index)
        QTest::keyClick(&combo, combo.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
}

QStringList textsOf(const QListWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts.append(list.item(row)->text());
    return texts;
}

QStringList textsOf(const QComboBox &combo)
{
    QStringList texts;
    for (int row = 0; row < combo.count(); ++row)
        texts.append(combo.itemText(row));
    return texts;
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
    REQUIRE(row >= 0 && row < list.count());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, rowRect(list, row).center());
}

void clickRowBox(QListWidget &list, int row)
{
    REQUIRE(row >= 0 && row < list.count());
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = rowRect(list, row);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = list.item(row)->text();
    const QRect box = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box.center());
}

void doubleClickRow(QListWidget &list, int row, Qt::KeyboardModifiers modifiers)
{
    clickRow(list, row, modifiers);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, modifiers, rowRect(list, row).center());
}

void clickMenu(QMainWindow &window, const char *menu, const char *action)
{
    auto &popup = get<QMenu>(window, menu);
    QMenuBar *bar = window.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(popup.menuAction()).center());
    REQUIRE(popup.isVisible(), popup.objectName());
    QAction &entry = get<QAction>(window, action);
    QTest::mouseClick(&popup, Qt::LeftButton, {}, popup.actionGeometry(&entry).center());
}

void show(QWidget &window)
{
    window.show();
    REQUIRE(QTest::qWaitForWindowExposed(&window), window.windowTitle());
    activate(window);
}

void activate(QWidget &window)
{
    window.activateWindow();
    REQUIRE_SOON(window.isActiveWindow());
}

bool hasFocus(const QWidget &widget)
{
    return QTest::qWaitFor([&widget] { return QApplication::focusWidget() == &widget; });
}

} // namespace ui
