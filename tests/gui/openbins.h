// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>
#include <QPushButton>

#include "tests/gui/openeditor.h"
#include "tests/support/cabinets.h"

/// An editor with its day-part tab in front.
class OpenBins : public OpenEditor
{
public:
    explicit OpenBins(const samplefile::Menu &menu)
        : OpenEditor(menu)
    {
        showTab(2);
        QCoreApplication::sendPostedEvents(); // the layout follows
    }

    /// The button of a bin; slots count on from the first zone into the second.
    [[nodiscard]] QPushButton &button(int row, int slot)
    {
        const int first = (**this).getBinsPerZone();
        const QString name = slot < first
                                 ? QStringLiteral("btnDaypartSelect%1_%2").arg(row).arg(slot)
                                 : QStringLiteral("btnDaypartSelectB%1_%2").arg(row).arg(slot - first);
        return ui::get<QPushButton>(**this, name.toLatin1().constData());
    }
    [[nodiscard]] QWidget &widget(const char *name) { return ui::get<QWidget>(**this, name); }
    [[nodiscard]] QComboBox &selector() { return ui::get<QComboBox>(**this, "comboDaypartSelect"); }

    /// The names in the selector, the current one starred.
    [[nodiscard]] QString dayparts()
    {
        QStringList names;
        for (int i = 0; i < selector().count(); ++i)
            names.append(selector().itemText(i) +
                         (i == selector().currentIndex() ? QStringLiteral("*") : QString()));
        return names.join(u' ');
    }

    /// The ids of a day part as a Save writes them.
    [[nodiscard]] QList<int> savedBins(int daypart) { return samplefile::binsOf(saved(), daypart); }
};

/// Menus whose bins matter more than their products.
namespace bins {

using namespace Qt::StringLiterals;

inline QJsonObject headerOf(const QString &model, const QJsonObject &changes = {})
{
    QJsonObject header = samplefile::header(changes);
    header.insert(u"cabinetType"_s, cabinets::model(model).type);
    header.insert(u"cabinetModel"_s, model);
    return header;
}

/// Products 1 "Third", 2 "Half", 3 "Most", 4 "Whole" of these splits, and a group 5 "Halves".
inline samplefile::Menu menuOf(const QString &model, const QList<int> &morning,
                               const QList<int> &evening = {})
{
    samplefile::Menu menu;
    menu.header = headerOf(model);
    menu.products = {samplefile::product(1, u"Third"_s, {{u"zoneSplits"_s, u"1/3"_s}}),
                     samplefile::product(2, u"Half"_s),
                     samplefile::product(3, u"Most"_s, {{u"zoneSplits"_s, u"2/3"_s}}),
                     samplefile::product(4, u"Whole"_s, {{u"zoneSplits"_s, u"1/1"_s}})};
    menu.groups = {samplefile::group(5, u"Halves"_s, {2})};
    menu.layout = {samplefile::daypart(u"Morning"_s, morning), samplefile::daypart(u"Evening"_s, evening)};
    return menu;
}

} // namespace bins
