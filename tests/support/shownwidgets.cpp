// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/shownwidgets.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace shown {

void forEachPage(QWidget &window, const std::function<void()> &look)
{
    auto *tabs = window.findChild<QTabWidget *>();
    const int before = tabs ? tabs->currentIndex() : 0;
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        QCoreApplication::processEvents(); // the layout follows
        look();
    }
    if (tabs)
        tabs->setCurrentIndex(before);
}

QList<QWidget *> widgets(QWidget &window)
{
    QList<QWidget *> visible{&window};
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisibleTo(&window))
            visible.append(widget);
    }
    return visible;
}

QList<QWidget *> tabOrder(QWidget &window)
{
    QList<QWidget *> order;
    for (QWidget *widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain()) {
        if (widget->isVisibleTo(&window) && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy())
            order.append(widget);
    }
    return order;
}

QString describe(const QWidget &widget)
{
    const QString text = widget.property("text").toString();
    return QLatin1StringView(widget.metaObject()->className()) + u' ' + widget.objectName() +
           (text.isEmpty() ? QString() : u" \""_s + text + u'"');
}

namespace {

class Collector
{
public:
    explicit Collector(const QWidget &widget)
        : m_where(describe(widget))
    {}

    void add(const QString &text, QLatin1StringView what)
    {
        if (!text.trimmed().isEmpty())
            m_texts.append({text, m_where + u", "_s + what});
    }

    void addAction(const QAction &action)
    {
        add(action.text(), "action"_L1);
        add(action.toolTip(), "action's tool tip"_L1);
        add(action.statusTip(), "action's status tip"_L1);
    }

    [[nodiscard]] QList<Text> texts() const { return m_texts; }

private:
    QString m_where;
    QList<Text> m_texts;
};

void addCommon(Collector &to, const QWidget &widget)
{
    to.add(widget.windowTitle(), "title"_L1);
    to.add(widget.toolTip(), "tool tip"_L1);
    to.add(widget.statusTip(), "status tip"_L1);
    to.add(widget.whatsThis(), "what's this"_L1);
    to.add(widget.accessibleName(), "accessible name"_L1);
    to.add(widget.accessibleDescription(), "accessible description"_L1);
    to.add(widget.property("placeholderText").toString(), "placeholder"_L1);
}

void addItems(Collector &to, const QAbstractItemModel &model)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
            to.add(model.index(row, 0).data(role).toString(), "item"_L1);
    }
}

void addOwn(Collector &to, const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        to.add(label->text(), "text"_L1);
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        to.add(button->text(), "text"_L1);
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        to.add(box->title(), "title"_L1);
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget))
        addItems(to, *combo->model());
    if (const auto *list = qobject_cast<const QListWidget *>(&widget))
        addItems(to, *list->model());
    if (const auto *box = qobject_cast<const QSpinBox *>(&widget)) {
        to.add(box->prefix(), "prefix"_L1);
        to.add(box->suffix(), "suffix"_L1);
        to.add(box->specialValueText(), "special value"_L1);
    }
}

void addContainers(Collector &to, const QWidget &widget)
{
    if (const auto *bar = qobject_cast<const QTabBar *>(&widget)) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            to.add(bar->tabText(tab), "tab"_L1);
            to.add(bar->tabToolTip(tab), "tab's tool tip"_L1);
        }
    }
    if (const auto *bar = qobject_cast<const QMenuBar *>(&widget)) {
        for (const QAction *menu : bar->actions()) {
            to.add(menu->text(), "menu"_L1);
            for (const QAction *action : menu->menu()->actions())
                to.addAction(*action);
        }
    }
}

} // namespace

QList<Text> texts(QWidget &window)
{
    QList<Text> all;
    for (const QWidget *widget : widgets(window)) {
        Collector collector(*widget);
        addCommon(collector, *widget);
        addOwn(collector, *widget);
        addContainers(collector, *widget);
        all += collector.texts();
    }
    return all;
}

} // namespace shown
