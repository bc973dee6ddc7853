// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/walk/gestures.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QTabBar>

#include "tests/walk/input.h"

using namespace Qt::StringLiterals;

namespace walk {

namespace {

bool isPartOfAnother(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return parent &&
           (qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent));
}

bool canBeWorked(const QWidget &widget)
{
    const bool isInput =
        qobject_cast<const QAbstractButton *>(&widget) || qobject_cast<const QComboBox *>(&widget) ||
        qobject_cast<const QListWidget *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget) ||
        qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QTabBar *>(&widget);
    return isInput && widget.isVisible() && widget.isEnabled() && !isPartOfAnother(widget);
}

// Names are entered more often than one of many buttons is pressed: without one, nothing can be saved.
QWidgetList workableIn(const QWidget &window)
{
    QWidgetList found;
    const QWidgetList all = window.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!canBeWorked(*widget))
            continue;
        const bool often = qobject_cast<QLineEdit *>(widget) || qobject_cast<QListWidget *>(widget) ||
                           qobject_cast<QTabBar *>(widget);
        found.append(QWidgetList(often ? 3 : 1, widget));
    }
    return found;
}

} // namespace

QString nameOf(const QWidget &widget)
{
    return QLatin1StringView(widget.metaObject()->className()) + u' ' + widget.objectName();
}

void Gestures::note(const QString &what, const QWidget &widget)
{
    m_journal.step(what + u" in "_s + nameOf(widget));
}

void Gestures::act(QWidget &window)
{
    const QWidgetList widgets = workableIn(window);
    if (widgets.isEmpty() || m_chance.oneIn(12))
        pressAnyKey(window);
    else
        work(*m_chance.of(widgets));
}

void Gestures::pressAnyKey(QWidget &window)
{
    struct Stroke
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const QList<Stroke> strokes{
        {Qt::Key_Escape, {}},
        {Qt::Key_Return, {}},
        {Qt::Key_Enter, Qt::KeypadModifier},
        {Qt::Key_Tab, {}},
        {Qt::Key_Tab, {}},
        {Qt::Key_Backtab, Qt::ShiftModifier},
        {Qt::Key_Space, {}},
        {Qt::Key_Down, {}},
        {Qt::Key_Up, {}},
        {Qt::Key_Tab, Qt::ControlModifier},
        {Qt::Key_W, Qt::ControlModifier},
        {Qt::Key_F4, Qt::ControlModifier},
        {Qt::Key_F2, {}},
        {Qt::Key_F, Qt::AltModifier},
        {Qt::Key_H, Qt::AltModifier},
        {Qt::Key_A, Qt::ControlModifier},
        {Qt::Key_Z, Qt::ControlModifier},
    };
    const Stroke stroke = m_chance.of(strokes);
    QWidget *focus = window.focusWidget();
    press(focus ? *focus : window, stroke.key, stroke.modifiers);
}

void Gestures::workPopup(QWidget &popup)
{
    static const QList<Qt::Key> keys{Qt::Key_Down, Qt::Key_Up,     Qt::Key_Home,   Qt::Key_End,
                                     Qt::Key_Down, Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape};
    QWidget *focus = popup.focusWidget();
    press(focus ? *focus : popup, m_chance.of(keys));
}

void Gestures::press(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    note(u"key %1 %2"_s.arg(key, 0, 16).arg(modifiers.toInt(), 0, 16), widget);
    input::key(widget, key, modifiers);
}

void Gestures::wheel(QWidget &widget)
{
    const int notches = m_chance.between(-3, 3);
    note(u"wheel %1"_s.arg(notches), widget);
    input::wheel(widget, widget.rect().center(), notches);
}

void Gestures::work(QWidget &widget)
{
    if (auto *button = qobject_cast<QAbstractButton *>(&widget))
        work(*button);
    else if (auto *combo = qobject_cast<QComboBox *>(&widget))
        work(*combo);
    else if (auto *list = qobject_cast<QListWidget *>(&widget))
        work(*list);
    else if (auto *box = qobject_cast<QAbstractSpinBox *>(&widget))
        work(*box);
    else if (auto *line = qobject_cast<QLineEdit *>(&widget))
        work(*line);
    else if (auto *tabs = qobject_cast<QTabBar *>(&widget))
        work(*tabs);
}

void Gestures::work(QAbstractButton &button)
{
    switch (m_chance.below(12)) {
    case 0:
        press(button, Qt::Key_Space);
        break;
    case 1:
        note(u"double click"_s, button);
        input::doubleClick(button, button.rect().center());
        break;
    default:
        note(u"click"_s, button);
        // Of a check box or radio button the left end is the part that takes a click.
        input::click(button, QPoint(qMin(8, button.width() / 2), button.height() / 2));
    }
}

void Gestures::work(QComboBox &combo)
{
    static const QList<Qt::Key> keys{Qt::Key_Up,       Qt::Key_Down, Qt::Key_Down,
                                     Qt::Key_Home,     Qt::Key_End,  Qt::Key_PageUp,
                                     Qt::Key_PageDown, Qt::Key_F4,   Qt::Key_Space};
    combo.setFocus();
    if (m_chance.oneIn(4))
        wheel(combo);
    else
        press(combo, m_chance.of(keys));
}

void Gestures::work(QListWidget &list)
{
    static const QList<Qt::Key> keys{Qt::Key_Up,  Qt::Key_Down,     Qt::Key_PageDown, Qt::Key_Home,
                                     Qt::Key_End, Qt::Key_Space,    Qt::Key_Space,    Qt::Key_Return,
                                     Qt::Key_B,   Qt::Key_PageDown, Qt::Key_A};
    const int act = m_chance.below(12);
    if (list.count() == 0 || act == 0)
        return wheel(*list.viewport());
    if (act < 4)
        return press(list, m_chance.of(keys), act == 1 ? Qt::ControlModifier : Qt::NoModifier);
    const int row = m_chance.below(list.count());
    list.scrollToItem(list.item(row));
    const QRect place = list.visualItemRect(list.item(row));
    const QPoint at = act == 4 ? QPoint(place.left() + 8, place.center().y()) : place.center();
    if (act == 5) {
        note(u"double click on row %1"_s.arg(row), list);
        input::doubleClick(*list.viewport(), at);
        return;
    }
    const Qt::KeyboardModifiers modifiers =
        act == 6 ? Qt::ControlModifier : (act == 7 ? Qt::ShiftModifier : Qt::NoModifier);
    note(u"click %1 on row %2"_s.arg(modifiers.toInt(), 0, 16).arg(row), list);
    input::click(*list.viewport(), at, modifiers);
}

void Gestures::work(QAbstractSpinBox &box)
{
    static const QList<Qt::Key> keys{Qt::Key_Up,   Qt::Key_Down,   Qt::Key_PageUp,    Qt::Key_PageDown,
                                     Qt::Key_Left, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return};
    const QPointer<QWidget> alive(&box);
    box.setFocus();
    switch (m_chance.below(5)) {
    case 0:
        wheel(box);
        break;
    case 1:
        press(box, m_chance.of(keys));
        break;
    case 2:
        enter(box, anyText(m_chance));
        break;
    default:
        enter(box, QString::number(m_chance.below(m_chance.oneIn(2) ? 300 : 4000)));
    }
    if (alive && m_chance.oneIn(3))
        press(box, Qt::Key_Tab);
}

void Gestures::work(QLineEdit &line)
{
    static const QList<Qt::Key> keys{Qt::Key_Home, Qt::Key_End, Qt::Key_Delete, Qt::Key_Backspace,
                                     Qt::Key_Return};
    line.setFocus();
    if (m_chance.oneIn(6))
        press(line, m_chance.of(keys), m_chance.oneIn(2) ? Qt::ShiftModifier : Qt::NoModifier);
    else
        enter(line, anyText(m_chance));
}

// Over what stands there, or into it; typed, or for the long ones pasted.
void Gestures::enter(QWidget &input, const QString &text)
{
    constexpr qsizetype longestTyped = 20;
    const bool typed = text.size() <= longestTyped && !m_chance.oneIn(3);
    note((typed ? u"type "_s : u"paste "_s) + text.left(longestTyped), input);
    const QPointer<QWidget> alive(&input);
    if (!m_chance.oneIn(4))
        input::key(input, Qt::Key_A, Qt::ControlModifier);
    if (!alive)
        return;
    if (typed)
        input::type(input, text);
    else
        input::paste(input, text);
}

void Gestures::work(QTabBar &tabs)
{
    const int tab = m_chance.below(tabs.count());
    note(u"tab %1"_s.arg(tab), tabs);
    input::click(tabs, tabs.tabRect(tab).center());
}

} // namespace walk
