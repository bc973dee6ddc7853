// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/timerbar.h"

#include <QListWidget>
#include <QPushButton>

#include "tests/support/uidriver.h"
#include "timerbar/timerbarconfig.h"
#include "timerbar/timerbardaypartassignitem.h"
#include "timerbar/timerbarmenufile.h"
#include "timerbar/timerbarproductedit.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int daypartsTab = 1;
const QString saveCaption = u"Save TimerBar Menu"_s;
const QString filter = u"TimerBar Menu Files (*.cbr)"_s;

} // namespace

void TimerBarChapter::createMenu()
{
    Answers answers(*this);
    expectProductLine(answers, u"Timer Bar Cabinet"_s);
    answers.expect<TimerBarConfig>([](TimerBarConfig &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR34"_s);
        ui::click(dialog, "btnAccept");
    });
    ui::clickMenu(window(), "menuFile", "actionNew");
    QVERIFY(activeEditor<TimerBarMenuFile>());
    QCOMPARE(activeEditor<TimerBarMenuFile>()->products().size(), 33);
    shot(u"timer-bar-new-menu"_s);
}

void TimerBarChapter::editProduct()
{
    Answers answers(*this);
    answers.expect<TimerBarProductEdit>([this](TimerBarProductEdit &dialog) {
        ui::type(dialog, "txtProductName", u"Smoked Bacon"_s);
        ui::type(dialog, "numTempUpper", u"150"_s);
        ui::type(dialog, "numTempLower", u"150"_s);
        shot(u"timer-bar-product-filled-in"_s);
        ui::click(dialog, "btnSave");
    });
    answers.expectBox(
        ModalAnswers::removalWarning(u"Temperature values less than 155°F are supported in cabinet "
                                     "IO software version 1.6.2 or newer"_s),
        QMessageBox::Ok);
    auto &editor = *activeEditor<TimerBarMenuFile>();
    ui::doubleClickRow(ui::get<QListWidget>(editor, "listWidgetProducts"), 0);
    QCOMPARE(editor.products().constFirst()->get_upperTemp(), 150);
    shot(u"timer-bar-product-edited"_s);
}

void TimerBarChapter::fillAndClearBins()
{
    clickTab(daypartsTab);
    auto &editor = *activeEditor<TimerBarMenuFile>();
    for (const char *button : {"btnDaypartSelect0_0", "btnDaypartSelect0_1", "btnDaypartSelectB2_0"}) {
        Answers answers(*this);
        answers.expect<TimerBarDaypartAssignItem>([](TimerBarDaypartAssignItem &dialog) {
            ui::clickRow(ui::get<QListWidget>(dialog, "listWidgetProducts"), 4);
            ui::click(dialog, "btnSelect");
        });
        ui::click(editor, button);
        QCOMPARE(ui::get<QPushButton>(editor, button).text(), u"CKPT"_s);
    }
    shot(u"timer-bar-filled-grid"_s);
    holdBin("btnDaypartSelect0_1");
    shot(u"timer-bar-removal-mode"_s);
    ui::click(editor, "btnDaypartRemove");
    QCOMPARE(ui::get<QPushButton>(editor, "btnDaypartSelect0_1").text(), QString());
}

void TimerBarChapter::saveAndReopen()
{
    const QString path = filePath(u"menu.cbr"_s);
    saveFileAs(saveCaption, filter, path);
    closeEditor(QMessageBox::No);
    openFile(path);
    shot(u"timer-bar-reopened"_s);
    const QString copy = filePath(u"menu-copy.cbr"_s);
    saveFileAs(saveCaption, filter, copy);
    QCOMPARE(contents(copy), contents(path));
}

void TimerBarChapter::lookAtEveryModel_data()
{
    QTest::addColumn<QString>("model");
    for (const QString &model : timerbar::cabinetModels())
        QTest::newRow(qPrintable(model)) << model;
}

namespace {

void chooseCelsiusModel(TimerBarConfig &dialog, const QString &model)
{
    ui::choose(dialog, "comboUnitModel", model);
    ui::click(dialog, "rbTempUnitC");
    ui::click(dialog, "btnAccept");
}

} // namespace

void TimerBarChapter::lookAtEveryModel()
{
    QFETCH(QString, model);
    {
        Answers answers(*this);
        answers.expect<TimerBarConfig>(
            [&model](TimerBarConfig &dialog) { chooseCelsiusModel(dialog, model); });
        ui::click(*activeEditor<TimerBarMenuFile>(), "btnConfig");
    }
    clickTab(daypartsTab);
    shot(u"timer-bar-model-"_s + model.toLower());
    if (model == timerbar::cabinetModels().constLast())
        closeEditor(QMessageBox::No);
}
