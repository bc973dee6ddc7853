// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "tests/support/cbrbuilder.h"
#include "tests/support/slotlist.h"
#include "tests/support/textlists.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"
#include "timerbar/timerbarconfig.h"

using namespace Qt::StringLiterals;

class TestTimerBarConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void formShowsItsTexts();
    void valuesAreShown_data();
    void valuesAreShown();
    void unknownModelIsNotShown();
    void saveTakesTheValues_data();
    void saveTakesTheValues();
    void leavingTakesNothing_data();
    void leavingTakesNothing();
    void keyboardAlone();
};

namespace {

QString shownModel(const TimerBarConfig &dialog)
{
    return ui::get<QComboBox>(dialog, "comboUnitModel").currentText();
}

QString shownUnit(const TimerBarConfig &dialog)
{
    const bool fahrenheit = ui::get<QRadioButton>(dialog, "rbTempUnitF").isChecked();
    const bool celsius = ui::get<QRadioButton>(dialog, "rbTempUnitC").isChecked();
    return (fahrenheit ? u"F"_s : QString()) + (celsius ? u"C"_s : QString());
}

QStringList modelNames()
{
    QStringList names;
    for (const cbr::Model &model : cbr::models())
        names.append(model.name);
    return names;
}

} // namespace

void TestTimerBarConfig::slotsAreInOrder()
{
    QCOMPARE(ownSlots(TimerBarConfig::staticMetaObject),
             (QStringList{u"getTempUnit()"_s, u"setTempUnit(uchar value)"_s, u"getCabinetModel()"_s,
                          u"setCabinetModel(QString value)"_s, u"on_btnCancel_clicked()"_s,
                          u"on_btnAccept_clicked()"_s}));
}

void TestTimerBarConfig::formShowsItsTexts()
{
    TimerBarConfig dialog;
    ui::show(dialog);
    const auto &models = ui::get<QComboBox>(dialog, "comboUnitModel");
    QCOMPARE(differenceOf(ui::textsOf(models), modelNames()), QString());
    QVERIFY(!models.isEditable());
    QCOMPARE(ui::get<QLabel>(dialog, "lblUnitModel").text(), u"Unit Model"_s);
    QCOMPARE(ui::get<QGroupBox>(dialog, "gbTempUnit").title(), u"Temperature Unit"_s);
    QCOMPARE(ui::get<QRadioButton>(dialog, "rbTempUnitF").text(), u"°F"_s);
    QCOMPARE(ui::get<QRadioButton>(dialog, "rbTempUnitC").text(), u"°C"_s);
    QCOMPARE(ui::get<QPushButton>(dialog, "btnCancel").text(), u"Cancel"_s);
    QCOMPARE(ui::get<QPushButton>(dialog, "btnAccept").text(), u"Save"_s);
    QCOMPARE(shownModel(dialog), u"KTR22"_s);
    QCOMPARE(shownUnit(dialog), u"F"_s);
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
}

void TestTimerBarConfig::valuesAreShown_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("shown");
    QTest::newRow("Fahrenheit") << 0 << u"F"_s;
    QTest::newRow("Celsius") << 1 << u"C"_s;
    QTest::newRow("anything else") << 2 << u"F"_s;
    QTest::newRow("the highest") << 255 << u"F"_s;
}

void TestTimerBarConfig::valuesAreShown()
{
    QFETCH(int, unit);
    QFETCH(QString, shown);
    TimerBarConfig dialog;
    dialog.setTempUnit(1); // so that each row changes something
    dialog.setTempUnit(static_cast<quint8>(unit));
    dialog.setCabinetModel(u"KTR34"_s);
    ui::show(dialog);
    QCOMPARE(shownUnit(dialog), shown);
    QCOMPARE(shownModel(dialog), u"KTR34"_s);
    QCOMPARE(int(dialog.getTempUnit()), unit);
    QCOMPARE(dialog.getCabinetModel(), u"KTR34"_s);
}

// It is kept, while the list goes on offering what it has; Save takes what is shown.
void TestTimerBarConfig::unknownModelIsNotShown()
{
    TimerBarConfig dialog;
    dialog.setCabinetModel(u"KTR34"_s);
    dialog.setCabinetModel(u"ktr42"_s);
    ui::show(dialog);
    QCOMPARE(dialog.getCabinetModel(), u"ktr42"_s);
    QCOMPARE(shownModel(dialog), u"KTR34"_s);
    ui::click(dialog, "btnAccept");
    QCOMPARE(dialog.getCabinetModel(), u"KTR34"_s);
}

void TestTimerBarConfig::saveTakesTheValues_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("celsius");
    QTest::newRow("as offered") << u"KTR22"_s << false;
    for (const QString &model : modelNames())
        QTest::newRow(qPrintable(model)) << model << true;
}

void TestTimerBarConfig::saveTakesTheValues()
{
    QFETCH(QString, model);
    QFETCH(bool, celsius);
    TimerBarConfig dialog;
    ui::show(dialog);
    ui::choose(dialog, "comboUnitModel", model);
    if (celsius)
        ui::click(dialog, "rbTempUnitC");
    ui::click(dialog, "btnAccept");
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.result(), 1);
    QCOMPARE(dialog.getCabinetModel(), model);
    QCOMPARE(int(dialog.getTempUnit()), celsius ? 1 : 0);
}

void TestTimerBarConfig::leavingTakesNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void TestTimerBarConfig::leavingTakesNothing()
{
    QFETCH(bool, escape);
    TimerBarConfig dialog;
    dialog.setTempUnit(1);
    dialog.setCabinetModel(u"KTR23"_s);
    ui::show(dialog);
    ui::choose(dialog, "comboUnitModel", u"KTR42"_s);
    ui::click(dialog, "rbTempUnitF");
    dialog.setResult(1);
    if (escape)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        ui::click(dialog, "btnCancel");
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.result(), 0);
    QCOMPARE(dialog.getCabinetModel(), u"KTR23"_s);
    QCOMPARE(int(dialog.getTempUnit()), 1);
}

void TestTimerBarConfig::keyboardAlone()
{
    TimerBarConfig dialog;
    ui::show(dialog);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Right);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QCOMPARE(dialog.result(), 1);
    QCOMPARE(dialog.getCabinetModel(), u"KTR23"_s);
    QCOMPARE(int(dialog.getTempUnit()), 1);
}

QTEST_MAIN(TestTimerBarConfig)
#include "tst_timerbarconfig.moc"
