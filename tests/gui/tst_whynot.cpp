// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAccessible>
#include <QTextDocument>

#include "holding/assigndaypartitem.h"
#include "holding/groupedit.h"
#include "tests/gui/editgroup.h"
#include "tests/gui/openbins.h"
#include "tests/gui/opentimerbar.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbardaypartassignitem.h"

using namespace Qt::StringLiterals;

namespace {

QListWidget &listOf(const QDialog &dialog)
{
    return ui::get<QListWidget>(dialog, "listWidgetProducts");
}

QString textOf(const QDialog &dialog, const char *label)
{
    const auto &shown = ui::get<QLabel>(dialog, label);
    return shown.isVisible() ? shown.text() : u"(hidden)"_s;
}

// Behind the settings that every row tells.
QString reasonOf(const QDialog &dialog, int row)
{
    return listOf(dialog).item(row)->data(Qt::AccessibleDescriptionRole).toString().section(u". "_s, 1);
}

/// As it is read on the screen.
QString toolTipOf(const QDialog &dialog, int row)
{
    const QString toolTip = listOf(dialog).item(row)->toolTip();
    if (!Qt::mightBeRichText(toolTip))
        return toolTip;
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

QStringList childrenInReadingOrder(QWidget &window)
{
    QStringList names;
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&window);
    for (int i = 0; i < interface->childCount(); ++i)
        names.append(interface->child(i)->object()->objectName());
    return names;
}

// Whatever the reasons are: a row has one exactly when it cannot be selected, and tells it in both places.
void checkRows(const QDialog &dialog)
{
    for (int row = 0; row < listOf(dialog).count(); ++row) {
        const QString reason = reasonOf(dialog, row);
        const bool fits = listOf(dialog).item(row)->flags().testFlag(Qt::ItemIsSelectable);
        REQUIRE_EQUAL(reason.isEmpty(), fits);
        REQUIRE_EQUAL(toolTipOf(dialog, row).endsWith(u'\n' + reason), !fits);
    }
}

/// Ham stands in the first bin at 215 and 200 °F; "<b>Rib</b>" is hotter, Chili turns faster, Roll is whole.
samplefile::Menu holdingMenu(const QJsonObject &header = {})
{
    const QJsonObject heat{{u"upperTemp"_s, 215}, {u"lowerTemp"_s, 200}};
    const auto heated = [heat](QJsonObject changes) {
        for (auto each = heat.begin(); each != heat.end(); ++each) {
            if (!changes.contains(each.key()))
                changes.insert(each.key(), each.value());
        }
        return changes;
    };
    samplefile::Menu menu;
    menu.header = samplefile::headerWithAllSwitches(header);
    menu.products = {
        samplefile::product(1, u"Ham"_s, heated({})),
        samplefile::product(2, u"<b>Rib</b>"_s, heated({{u"upperTemp"_s, 225}, {u"lowerTemp"_s, 215}})),
        samplefile::product(3, u"Chili"_s, heated({{u"fanSpeed"_s, 80}})),
        samplefile::product(4, u"Roll"_s, heated({{u"zoneSplits"_s, u"1/1"_s}})),
        samplefile::product(5, u"Lid"_s, heated({{u"lidType"_s, u"Vented"_s}}))};
    menu.groups = {samplefile::group(9, u"Meats"_s, {})};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1})};
    return menu;
}

using Look = std::function<void(AssignDaypartItem &)>;

void pick(OpenBins &editor, int row, int slot, const Look &look)
{
    ModalAnswers answers;
    answers.expect<AssignDaypartItem>([&look](AssignDaypartItem &picker) {
        checkRows(picker);
        look(picker);
        ui::click(picker, "btnCancel");
    });
    ui::click(editor.button(row, slot));
}

} // namespace

/// What the lists to pick from say of what cannot be picked, and of what is picked for.
class TestWhyNot : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void rowsOfThePickerSayWhy();
    void pickerSaysWhichBinIsFilled();
    void linesAreReadAroundTheList();
    void pickerSaysWhatTheBinDemands();
    void longNamesLeaveRoom();
    void pickerWithoutAPlaceSaysNothing();
    void rowsOfTheGroupEditorSayWhy();
    void rowsOfTheTimerBarPickerSayWhy();
    void timerBarPickerSaysWhichBinIsFilled();
};

void TestWhyNot::rowsOfThePickerSayWhy()
{
    OpenBins editor(holdingMenu());
    pick(editor, 0, 1, [](AssignDaypartItem &picker) {
        QCOMPARE(reasonOf(picker, 0), QString());
        QCOMPARE(toolTipOf(picker, 0), u"Ham"_s);
        const QString heat = u"Does not fit: 225 °F / 215 °F, this zone holds 215 °F / 200 °F"_s;
        QCOMPARE(reasonOf(picker, 1), heat);
        QCOMPARE(toolTipOf(picker, 1), u"<b>Rib</b>\n"_s + heat);
        QCOMPARE(reasonOf(picker, 2), u"Fan speed 80, this zone has 60"_s);
        QCOMPARE(reasonOf(picker, 3), u"Zone split 1/1 has no room here"_s);
        QCOMPARE(toolTipOf(picker, 3), u"Roll\nZone split 1/1 has no room here"_s);
    });
}

void TestWhyNot::pickerSaysWhichBinIsFilled()
{
    OpenBins editor(holdingMenu());
    pick(editor, 0, 1, [](AssignDaypartItem &picker) {
        QCOMPARE(textOf(picker, "lblPlace"), u"Morning, Row 1, Bin 2, now empty"_s);
        const QRect place = ui::get<QLabel>(picker, "lblPlace").geometry();
        QVERIFY(place.bottom() < listOf(picker).geometry().top());
        QVERIFY(listOf(picker).geometry().bottom() < ui::get<QLabel>(picker, "lblDemand").geometry().top());
    });
    pick(editor, 0, 0, [](AssignDaypartItem &picker) {
        QCOMPARE(textOf(picker, "lblPlace"), u"Morning, Row 1, Bin 1, now Ham"_s);
    });
}

void TestWhyNot::linesAreReadAroundTheList()
{
    OpenBins editor(holdingMenu());
    pick(editor, 0, 1, [](AssignDaypartItem &picker) {
        const QStringList names = childrenInReadingOrder(picker);
        const qsizetype list = names.indexOf("listWidgetProducts"_L1);
        const QStringList before{u"lblPlace"_s, u"txtFind"_s, u"checkBoxOnlyFits"_s};
        QCOMPARE(names.mid(qMax(0, list - 3), 3), before);
        QCOMPARE(names.value(list + 1), u"lblDemand"_s);
    });
}

void TestWhyNot::pickerSaysWhatTheBinDemands()
{
    OpenBins editor(holdingMenu());
    pick(editor, 0, 1, [](AssignDaypartItem &picker) {
        QCOMPARE(textOf(picker, "lblDemand"),
                 u"Needs 215 °F / 200 °F, zone split 1/2, fan speed 60. 2 of 6 fit"_s);
    });
    pick(editor, 1, 0, [](AssignDaypartItem &picker) {
        QCOMPARE(textOf(picker, "lblDemand"), u"Needs zone split 1/1 or 1/2. 6 of 6 fit"_s);
    });
}

void TestWhyNot::longNamesLeaveRoom()
{
    samplefile::Menu menu = holdingMenu();
    menu.products[0] = samplefile::product(1, QString(5000, u'W'));
    menu.layout = {samplefile::daypart(QString(5000, u'M'), {1})};
    OpenBins editor(menu);
    pick(editor, 0, 0, [](AssignDaypartItem &picker) {
        QCoreApplication::sendPostedEvents(); // the layout follows
        const auto &place = ui::get<QLabel>(picker, "lblPlace");
        QVERIFY(place.height() >= place.heightForWidth(place.width()));
        QVERIFY(listOf(picker).height() > 100);
        QVERIFY(picker.rect().contains(ui::get<QWidget>(picker, "btnSelect").geometry()));
    });
}

void TestWhyNot::pickerWithoutAPlaceSaysNothing()
{
    OpenBins editor(holdingMenu());
    AssignDaypartItem picker({u"1/2"_s}, 0, 0, 0, false, &*editor);
    ui::show(picker);
    QCOMPARE(textOf(picker, "lblPlace"), u"(hidden)"_s);
    QCOMPARE(textOf(picker, "lblDemand"), u"Needs zone split 1/2. 5 of 6 fit"_s);
}

void TestWhyNot::rowsOfTheGroupEditorSayWhy()
{
    OpenEditor editor(holdingMenu());
    groupedit::edit(editor, [](GroupEdit &dialog, ModalAnswers &) {
        checkRows(dialog);
        QCOMPARE(textOf(dialog, "lblDemand"), u"Any product may join. 5 of 5 fit"_s);
        groupedit::add(dialog, 0);
        checkRows(dialog);
        QCOMPARE(textOf(dialog, "lblDemand"),
                 u"Needs 215 °F / 200 °F, zone split 1/2, fan speed 60, lid None. 1 of 5 fit"_s);
        QCOMPARE(reasonOf(dialog, 1), u"Does not fit: 225 °F / 215 °F, this group holds 215 °F / 200 °F"_s);
        QCOMPARE(reasonOf(dialog, 2), u"Fan speed 80, this group has 60"_s);
        QCOMPARE(reasonOf(dialog, 3), u"Zone split 1/1, this group has 1/2"_s);
        QCOMPARE(reasonOf(dialog, 4), u"Lid Vented, this group has None"_s);
        groupedit::remove(dialog, 0);
        checkRows(dialog);
        QCOMPARE(reasonOf(dialog, 4), QString());
        groupedit::cancel(dialog);
    });
}

namespace {

void pick(OpenTimerBar &editor, const char *bin, const std::function<void(TimerBarDaypartAssignItem &)> &look)
{
    ModalAnswers answers;
    answers.expect<TimerBarDaypartAssignItem>([&look](TimerBarDaypartAssignItem &picker) {
        checkRows(picker);
        look(picker);
        ui::click(picker, "btnCancel");
    });
    ui::click(editor.button(bin));
}

// Bacon stands in the lower row's first bin at 215 °F; the steak holds at that, too.
cbr::Menu timerBarMenu()
{
    cbr::Menu menu = baconHamChili();
    menu.dayparts = {QList<int>{0}};
    return menu;
}

} // namespace

void TestWhyNot::rowsOfTheTimerBarPickerSayWhy()
{
    OpenTimerBar editor(timerBarMenu());
    editor.showTab(1);
    pick(editor, "btnDaypartSelect1_1", [](TimerBarDaypartAssignItem &picker) {
        QCOMPARE(reasonOf(picker, 1), QString());
        QCOMPARE(toolTipOf(picker, 1), u"Ham Steak"_s);
        const QString why = u"Does not fit: 190 °F / 180 °F, this pair holds 215 °F"_s;
        QCOMPARE(reasonOf(picker, 2), why);
        QCOMPARE(toolTipOf(picker, 2), u"Chili\n"_s + why);
        QCOMPARE(textOf(picker, "lblDemand"), u"Needs 215 °F. 2 of 3 fit"_s);
    });
    pick(editor, "btnDaypartSelect0_0", [](TimerBarDaypartAssignItem &picker) {
        QCOMPARE(textOf(picker, "lblDemand"), u"Any product may stand here. 3 of 3 fit"_s);
    });
}

void TestWhyNot::timerBarPickerSaysWhichBinIsFilled()
{
    OpenTimerBar editor(timerBarMenu());
    editor.showTab(1);
    pick(editor, "btnDaypartSelect1_0", [](TimerBarDaypartAssignItem &picker) {
        QCOMPARE(textOf(picker, "lblPlace"), u"Breakfast, Row 2, Bin 1, now Bacon"_s);
    });
    editor.showDaypart(u"Lunch"_s);
    pick(editor, "btnDaypartSelect1_1", [](TimerBarDaypartAssignItem &picker) {
        QCOMPARE(textOf(picker, "lblPlace"), u"Lunch, Row 2, Bin 2, now empty"_s);
    });
}

QTEST_MAIN(TestWhyNot)
#include "tst_whynot.moc"
