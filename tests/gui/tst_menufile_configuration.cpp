// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAbstractButton>
#include <QComboBox>

#include "holding/configuration.h"
#include "tests/gui/openeditor.h"
#include "tests/support/modalanswers.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

QString shownIn(const QObject &parent, const char *comboBox)
{
    return ui::get<QComboBox>(parent, comboBox).currentText();
}

bool isChecked(const QObject &parent, const char *button)
{
    return ui::get<QAbstractButton>(parent, button).isChecked();
}

const QStringList checkBoxes{u"checkBoxFanSpeedEnabled"_s, u"checkBoxResetTimeEnabled"_s,
                             u"checkBoxProductIdEditEnabled"_s, u"checkBoxTimerColorEnabled"_s};

samplefile::Menu filledMenu(const QString &model)
{
    samplefile::Menu menu;
    menu.header = samplefile::header({{u"cabinetModel"_s, model}});
    menu.products = {samplefile::product(1, u"Bacon"_s), samplefile::product(2, u"Chili"_s)};
    menu.layout = {samplefile::daypart(u"Morning"_s, {1, 2, 0, 1}),
                   samplefile::daypart(u"Evening"_s, {2, 0, 0, 0})};
    return menu;
}

// Opens the dialog from the editor; answers that come after it have to be in the queue already.
void configure(ModalAnswers &answers, OpenEditor &editor)
{
    ui::click(*editor, "btnConfig");
    REQUIRE(answers.allAnswered());
}

} // namespace

class TestMenuFileConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void editorHandsOverItsValues();
    void editorTakesOverEverything();
    void otherBinsPerZoneEmptyEveryBin();
    void sameBinsPerZoneKeepTheBins();
    void cancelChangesNothing_data();
    void cancelChangesNothing();
    void celsiusOnlyChangesWhatIsShown();
    void acceptedConfigurationShowsNoCurrentRow();
    void newMenuAsksForItsCabinet();
    void cancelledNewMenuIsNotValid();
    void chosenCabinetMakesTheMenuValidAgain();
};

void TestMenuFileConfiguration::editorHandsOverItsValues()
{
    samplefile::Menu menu = filledMenu(u"KTR54"_s);
    menu.header = samplefile::header({{u"cabinetModel"_s, u"KTR54"_s},
                                      {u"temperatureUnit"_s, 1},
                                      {u"fanSpeedEnabled"_s, true},
                                      {u"timerColorEnabled"_s, true}});
    OpenEditor editor(menu);
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Configuration"_s);
        QCOMPARE(shownIn(dialog, "comboUnitType"), u"QHX"_s);
        QCOMPARE(shownIn(dialog, "comboUnitModel"), u"KTR54"_s);
        QVERIFY(isChecked(dialog, "rbTempUnitC"));
        QVERIFY(isChecked(dialog, "checkBoxFanSpeedEnabled"));
        QVERIFY(!isChecked(dialog, "checkBoxResetTimeEnabled"));
        QVERIFY(!isChecked(dialog, "checkBoxProductIdEditEnabled"));
        QVERIFY(isChecked(dialog, "checkBoxTimerColorEnabled"));
        ui::click(dialog, "btnAccept");
    });
    configure(answers, editor);
    QCOMPARE(editor->getCabinetModel(), u"KTR54"_s);
}

void TestMenuFileConfiguration::editorTakesOverEverything()
{
    OpenEditor editor(filledMenu(u"KTR22"_s));
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR82"_s);
        ui::click(dialog, "rbTempUnitC");
        ui::click(dialog, "checkBoxResetTimeEnabled");
        ui::click(dialog, "checkBoxProductIdEditEnabled");
        ui::click(dialog, "btnAccept");
    });
    configure(answers, editor);
    QCOMPARE(editor->getCabinetType(), u"QHX"_s);
    QCOMPARE(editor->getCabinetModel(), u"KTR82"_s);
    QCOMPARE(editor->getTemperatureUnit(), 1);
    QVERIFY(editor->getResetTimeEnabled() && editor->getProductIdEnabled());
    QVERIFY(!editor->getFanSpeedEnabled() && !editor->getTimerColorEnabled());
    QCOMPARE(editor->getBinsPerZone(), 2);
    QCOMPARE(samplefile::binsOf(editor.saved(), 0),
             (QList<int>{1, 2, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

void TestMenuFileConfiguration::otherBinsPerZoneEmptyEveryBin()
{
    OpenEditor editor(filledMenu(u"KTR22"_s));
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR33"_s);
        ui::click(dialog, "btnAccept");
    });
    answers.expectBox(
        {.title = u"Warning"_s,
         .text = u"Warning"_s,
         .informativeText = u"Bins per zone configuration is changed. All daypart assignments are removed."_s,
         .buttons = QMessageBox::Ok,
         .icon = QMessageBox::Warning},
        QMessageBox::Ok);
    configure(answers, editor);
    QCOMPARE(editor->getBinsPerZone(), 3);
    const QJsonObject saved = editor.saved();
    QCOMPARE(samplefile::binsOf(saved, 0), QList<int>(9, 0));
    QCOMPARE(samplefile::binsOf(saved, 1), QList<int>(9, 0));
    const QJsonObject morning = saved.value(u"layout"_s).toArray().at(0).toObject();
    QCOMPARE(morning.value(u"daypartName"_s).toObject(), samplefile::names(u"Morning"_s));
    QVERIFY(morning.value(u"inUse"_s).toBool());
    QCOMPARE(saved.value(u"products"_s).toArray().size(), 2);
}

void TestMenuFileConfiguration::sameBinsPerZoneKeepTheBins()
{
    OpenEditor editor(filledMenu(u"KTR22"_s));
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) {
        ui::choose(dialog, "comboUnitModel", u"KTR24"_s);
        ui::click(dialog, "btnAccept");
    });
    configure(answers, editor);
    const QJsonObject saved = editor.saved();
    QCOMPARE(samplefile::binsOf(saved, 0), (QList<int>{1, 2, 0, 0, 0, 1, 0, 0}));
    QCOMPARE(samplefile::binsOf(saved, 1), (QList<int>{2, 0, 0, 0, 0, 0, 0, 0}));
}

void TestMenuFileConfiguration::cancelChangesNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestMenuFileConfiguration::cancelChangesNothing()
{
    QFETCH(bool, escape);
    OpenEditor editor(filledMenu(u"KTR22"_s));
    const QJsonObject before = editor.saved();
    ui::clickRow(editor.products(), 1);
    ModalAnswers answers;
    answers.expect<Configuration>([escape](Configuration &dialog) {
        ui::choose(dialog, "comboUnitType", u"ZPV"_s);
        ui::click(dialog, "rbTempUnitC");
        for (const QString &box : checkBoxes)
            ui::click(dialog, box.toLatin1().constData());
        if (escape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            ui::click(dialog, "btnCancel");
    });
    configure(answers, editor);
    QCOMPARE(editor->getCabinetType(), u"QHX"_s);
    QCOMPARE(editor->getCabinetModel(), u"KTR22"_s);
    QCOMPARE(editor->getTemperatureUnit(), 0);
    QVERIFY(!editor->getFanSpeedEnabled() && !editor->getResetTimeEnabled());
    QVERIFY(!editor->getProductIdEnabled() && !editor->getTimerColorEnabled());
    QCOMPARE(editor.products().currentRow(), 1);
    QCOMPARE(editor.saved(), before);
}

void TestMenuFileConfiguration::celsiusOnlyChangesWhatIsShown()
{
    OpenEditor editor(filledMenu(u"KTR22"_s));
    const auto &cabinet = ui::get<QLabel>(*editor, "lblCabinet");
    QCOMPARE(cabinet.text(), u"Cabinet: QHX KTR22, °F"_s);
    const QJsonObject before = editor.saved();
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) {
        ui::click(dialog, "rbTempUnitC");
        ui::click(dialog, "btnAccept");
    });
    configure(answers, editor);
    QCOMPARE(cabinet.text(), u"Cabinet: QHX KTR22, °C"_s);
    ui::clickRow(editor.products(), 0);
    QCOMPARE(editor.productDetail("txtTemp1").text(), u"93°C"_s);
    QCOMPARE(editor.saved(), before);
}

void TestMenuFileConfiguration::acceptedConfigurationShowsNoCurrentRow()
{
    OpenEditor editor(filledMenu(u"KTR22"_s));
    ui::clickRow(editor.products(), 1);
    QVERIFY(ui::get<QWidget>(*editor, "btnEditProduct").isEnabled());
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    configure(answers, editor);
    QCOMPARE(editor.products().currentRow(), -1);
    QVERIFY(editor.products().selectedItems().isEmpty());
    QVERIFY(!ui::get<QWidget>(*editor, "btnEditProduct").isEnabled());
}

void TestMenuFileConfiguration::newMenuAsksForItsCabinet()
{
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Configuration"_s);
        QCOMPARE(shownIn(dialog, "comboUnitModel"), u"ZPV43"_s);
        ui::click(dialog, "checkBoxFanSpeedEnabled");
        ui::click(dialog, "btnAccept");
    });
    MenuFile editor({});
    QVERIFY(editor.isMenuValid());
    QCOMPARE(editor.getCabinetType(), u"ZPV"_s);
    QCOMPARE(editor.getCabinetModel(), u"ZPV43"_s);
    QVERIFY(editor.getFanSpeedEnabled());
    QCOMPARE(editor.getBinsPerZone(), 3);
    QCOMPARE(editor.getMenuProducts().size(), 30);
    QCOMPARE(editor.getMenuProducts().constFirst()->get_zoneSplits(), u"1/3"_s);
    QCOMPARE(editor.windowTitle(), u"Menu File - "_s);
    QCOMPARE(editor.filePath(), QString());
}

void TestMenuFileConfiguration::cancelledNewMenuIsNotValid()
{
    ModalAnswers answers;
    answers.expect<Configuration>([](Configuration &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    MenuFile editor({});
    QVERIFY(!editor.isMenuValid());
    QVERIFY(editor.getMenuProducts().isEmpty());
}

void TestMenuFileConfiguration::chosenCabinetMakesTheMenuValidAgain()
{
    const TestFolder folder;
    const QByteArray bytes = samplefile::Menu().bytes();
    const QString path = folder.make(u"menu.json"_s, bytes);
    MenuFile editor(path);
    ModalAnswers answers;
    answers.expectBox(ModalAnswers::fileFault(u"File format is corrupted!"_s), QMessageBox::Ok);
    folder.make(u"menu.json"_s, "{");
    QVERIFY(!editor.readMenuFile());
    QVERIFY(!editor.isMenuValid());
    answers.expect<Configuration>([](Configuration &dialog) { ui::click(dialog, "btnAccept"); });
    // The model that is known stays when a file names none.
    folder.make(u"menu.json"_s, QByteArray(bytes).replace(editor.getCabinetModel().toUtf8(), "other"));
    QVERIFY(editor.readMenuFile());
    QVERIFY(editor.isMenuValid());
}

QTEST_MAIN(TestMenuFileConfiguration)
#include "tst_menufile_configuration.moc"
