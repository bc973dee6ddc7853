// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/listnotes.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QListWidget>

#include "model/shortened.h"
#include "widgets/announce.h"
#include "widgets/layouts.h"
#include "widgets/namelabel.h"

using namespace Qt::StringLiterals;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ListNotes)
};

constexpr qsizetype longestDaypart = 25; // in characters
constexpr qsizetype longestContent = 40;

void replaceInBox(QBoxLayout &box, QWidget *widget, QLayout *by)
{
    const int index = box.indexOf(widget);
    const int stretch = box.stretch(index);
    box.removeWidget(widget);
    box.insertLayout(index, by, stretch);
}

void replaceInGrid(QGridLayout &grid, QWidget *widget, QLayout *by)
{
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid.getItemPosition(grid.indexOf(widget), &row, &column, &rows, &columns);
    grid.removeWidget(widget);
    grid.addLayout(by, row, column, rows, columns);
}

void replace(QWidget *widget, QLayout *by)
{
    QLayout *place = layoutOf(widget);
    if (auto *box = qobject_cast<QBoxLayout *>(place))
        replaceInBox(*box, widget, by);
    else if (auto *grid = qobject_cast<QGridLayout *>(place))
        replaceInGrid(*grid, widget, by);
}

// The list alone decides on the column's width.
void takeAnyWidth(QWidget &widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    widget.setSizePolicy(policy);
}

} // namespace

void ListNotes::setAbove(const QString &text) const
{
    announce::line(above, text);
}

void ListNotes::setBelow(const QString &text) const
{
    announce::line(below, text);
}

ListNotes addListNotes(QListWidget *list, int linesBelow)
{
    auto *above = new NameLabel(list->parentWidget());
    above->setAskedLength(10);
    ListNotes notes{above, new QLabel(list->parentWidget())};
    notes.above->setObjectName(u"lblPlace"_s);
    notes.below->setObjectName(u"lblDemand"_s);
    notes.below->setTextFormat(Qt::PlainText);
    notes.below->setWordWrap(true);
    notes.below->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // So that the list does not move where the text changes.
    notes.below->setMinimumHeight(linesBelow * notes.below->fontMetrics().lineSpacing());
    takeAnyWidth(*notes.above);
    takeAnyWidth(*notes.below);
    readBefore(notes.above, list);
    readBehind(notes.below, list);
    auto *column = new QVBoxLayout;
    replace(list, column);
    column->addWidget(notes.above);
    column->addWidget(list, 1);
    column->addWidget(notes.below);
    notes.setAbove({});
    notes.setBelow({});
    return notes;
}

QString placeText(const QString &daypart, Bin bin, const QString &content)
{
    const QString row = QString::number(bin.row + 1);
    const QString slot = QString::number(bin.slot + 1);
    const QString name = shortened(daypart, longestDaypart);
    return content.isEmpty() ? Text::tr("%1, Row %2, Bin %3, now empty").arg(name, row, slot)
                             : Text::tr("%1, Row %2, Bin %3, now %4")
                                   .arg(name, row, slot, shortened(content, longestContent));
}

QString demandLine(const QString &demand, int fitting, int all)
{
    return Text::tr("%1. %2 of %3 fit").arg(demand, QString::number(fitting), QString::number(all));
}
