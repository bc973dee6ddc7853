// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLabel>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "holding/assigndaypartitem.h"
#include "holding/groupedit.h"
#include "tests/gui/openbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/program.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbardaypartassignitem.h"

using namespace Qt::StringLiterals;

/// What is said where there is nothing to show.
class TestEmptyStates : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void areaTellsHowToBegin();
    void areaIsDescribedWhileItIsEmpty();
    void groupListTellsHowToBegin();
    void detailsAskForAChoice();
    void timerBarDetailsAskForAChoice();
    void emptyPickersTellWhatToDo();
};

namespace {

bool isPlain(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
        }
    }
    return true;
}

bool isPlain(QWidget &widget, const QRect &part = QRect(0, 0, -1, -1))
{
    return isPlain(widget.grab(part).toImage());
}

bool tellsSomething(QListWidget &list)
{
    return list.count() == 0 && !list.accessibleDescription().isEmpty() && !isPlain(*list.viewport());
}

} // namespace

void TestEmptyStates::areaTellsHowToBegin()
{
    Program program;
    QMdiArea &area = program.area();
    QCOMPARE(area.background().color(), QColor(0xa0, 0xa0, 0xa0));
    QVERIFY(!isPlain(*area.viewport()));
    QCOMPARE(area.viewport()->grab().toImage().pixelColor(2, 2), QColor(0xa0, 0xa0, 0xa0));
    // The icon ends above the text.
    const QPoint middle = area.viewport()->rect().center();
    QVERIFY(!isPlain(*area.viewport(), QRect(middle.x() - 20, middle.y() - 20, 40, 20)));
    QVERIFY(isPlain(*area.viewport(), QRect(0, middle.y() + 10, area.viewport()->width(), 8)));
    area.addSubWindow(new QLabel);
    QVERIFY(isPlain(*area.viewport()));
    delete area.subWindowList().constFirst();
    QVERIFY(!isPlain(*area.viewport()));
}

void TestEmptyStates::areaIsDescribedWhileItIsEmpty()
{
    const QString howToBegin = u"File > New starts a menu, File > Open opens one, or drop a file here"_s;
    Program program;
    QMdiArea &area = program.area();
    QCOMPARE(area.accessibleDescription(), howToBegin);
    QMdiSubWindow *subWindow = area.addSubWindow(new QLabel);
    subWindow->show();
    QCOMPARE(area.accessibleDescription(), QString());
    delete subWindow;
    QCOMPARE(area.accessibleDescription(), howToBegin);
}

void TestEmptyStates::groupListTellsHowToBegin()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {});
    OpenEditor filled(menu);
    QVERIFY(ui::get<QListWidget>(*filled, "listWidgetGroups").accessibleDescription().isEmpty());
    menu.groups = {};
    OpenEditor editor(menu);
    editor.showTab(1);
    auto &list = ui::get<QListWidget>(*editor, "listWidgetGroups");
    QVERIFY(tellsSomething(list));
    QCOMPARE(list.accessibleDescription(),
             u"No groups yet. Add makes one of products that hold at the same settings."_s);
}

void TestEmptyStates::detailsAskForAChoice()
{
    OpenEditor editor(bins::menuOf(u"KTR22"_s, {}));
    auto &details = ui::get<QWidget>(*editor, "detailsProduct");
    const auto &name = ui::get<QLabel>(details, "txtName");
    // Right of the values, where no label reaches while something is shown.
    const QRect values(name.x(), 0, details.width() - name.x(), details.height());
    QVERIFY(name.text().isEmpty() && !isPlain(details, values));
    QCOMPARE(details.accessibleDescription(), u"Select a product"_s);
    const QImage before = details.grab(values).toImage();
    ui::get<QListWidget>(*editor, "listWidgetProducts").setCurrentRow(0);
    QVERIFY(!name.text().isEmpty());
    QVERIFY(details.grab(values).toImage() != before);
    QCOMPARE(details.accessibleDescription(), QString());
    ui::get<QListWidget>(*editor, "listWidgetProducts").clearSelection();
    QCOMPARE(details.grab(values).toImage(), before);
}

void TestEmptyStates::timerBarDetailsAskForAChoice()
{
    OpenTimerBar editor(cbr::Menu{.products = {{.name = "Bacon", .shortName = "BACN"}}});
    auto &details = ui::get<QWidget>(*editor, "details");
    const auto &name = ui::get<QLabel>(details, "txtName");
    const QRect values(name.x(), 0, details.width() - name.x(), details.height());
    QVERIFY(name.text().isEmpty() && !isPlain(details, values));
    QCOMPARE(details.accessibleDescription(), u"Select a product"_s);
    ui::get<QListWidget>(*editor, "listWidgetProducts").setCurrentRow(0);
    QCOMPARE(name.text(), u"Bacon"_s);
    QCOMPARE(details.accessibleDescription(), QString());
}

void TestEmptyStates::emptyPickersTellWhatToDo()
{
    samplefile::Menu menu = bins::menuOf(u"KTR22"_s, {});
    menu.products = {};
    menu.groups = {};
    OpenEditor editor(menu);
    AssignDaypartItem picker({u"1/2"_s}, 0, 0, 0, false, &*editor);
    ui::show(picker);
    QVERIFY(tellsSomething(ui::get<QListWidget>(picker, "listWidgetProducts")));
    ProductInfo group;
    GroupEdit groupEdit(group, &*editor);
    ui::show(groupEdit);
    QVERIFY(tellsSomething(ui::get<QListWidget>(groupEdit, "listWidgetProducts")));
    QVERIFY(tellsSomething(ui::get<QListWidget>(groupEdit, "listWidgetGroupProducts")));
    OpenTimerBar timerBar(cbr::Menu{});
    TimerBarDaypartAssignItem timerBarPicker(0, 0, &*timerBar);
    ui::show(timerBarPicker);
    QVERIFY(tellsSomething(ui::get<QListWidget>(timerBarPicker, "listWidgetProducts")));
}

QTEST_MAIN(TestEmptyStates)
#include "tst_emptystates.moc"
