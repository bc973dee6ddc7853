// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

#include "holding/configuration.h"
#include "tests/support/cabinets.h"
#include "tests/support/slotlist.h"
#include "tests/support/textlists.h"
#include "tests/support/uidriver.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

QStringList itemsOf(const QObject &parent, const char *comboBox)
{
    return ui::textsOf(ui::get<QComboBox>(parent, comboBox));
}

QString shownIn(const QObject &parent, const char *comboBox)
{
    return ui::get<QComboBox>(parent, comboBox).currentText();
}

bool isChecked(const QObject &parent, const char *button)
{
    return ui::get<QAbstractButton>(parent, button).isChecked();
}

QStringList textsOf(const QObject &parent, const QStringList &buttons)
{
    QStringList texts;
    for (const QString &button : buttons)
        texts.append(ui::get<QAbstractButton>(parent, button.toLatin1().constData()).text());
    return texts;
}

const QStringList checkBoxes{u"checkBoxFanSpeedEnabled"_s, u"checkBoxResetTimeEnabled"_s,
                             u"checkBoxProductIdEditEnabled"_s, u"checkBoxTimerColorEnabled"_s};

} // namespace

class TestConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
    void formShowsItsTexts();
    void freshDialog();
    void everyTypeOffersItsModels();
    void changingTheTypeSelectsItsFirstModel();
    void settersStoreAndShow();
    void unitsFollowTheirRadioButtons();
    void switchesAreTakenOverOnSaveOnly();
    void cancelRejects();
    void escapeRejects();
    void enterSaves();
    void unknownUnitSurvivesUntilAnotherIsChosen();
};

void TestConfiguration::slotsAreInOrder()
{
    const QStringList expected{u"on_btnAccept_clicked()"_s,
                               u"on_btnCancel_clicked()"_s,
                               u"on_comboUnitType_currentIndexChanged(int index)"_s,
                               u"on_comboUnitModel_currentIndexChanged(int index)"_s,
                               u"on_rbTempUnitF_clicked()"_s,
                               u"on_rbTempUnitC_clicked()"_s};
    QCOMPARE(ownSlots(Configuration::staticMetaObject), expected);
}

void TestConfiguration::formShowsItsTexts()
{
    Configuration dialog;
    QCOMPARE(ui::get<QLabel>(dialog, "lblUnitType").text(), u"Unit Type"_s);
    QCOMPARE(ui::get<QLabel>(dialog, "lblUnitModel").text(), u"Unit Model"_s);
    QCOMPARE(textsOf(dialog, checkBoxes), (QStringList{u"Fan Speed Enabled"_s, u"Reset Time Enabled"_s,
                                                       u"Product Id Eabled"_s, u"Timer Color Enabled"_s}));
    QCOMPARE(textsOf(dialog, {u"rbTempUnitF"_s, u"rbTempUnitC"_s, u"btnCancel"_s, u"btnAccept"_s}),
             (QStringList{u"°F"_s, u"°C"_s, u"Cancel"_s, u"Save"_s}));
    QCOMPARE(ui::get<QWidget>(dialog, "gbTempUnit").property("title").toString(), u"Temperature Unit"_s);
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
}

void TestConfiguration::freshDialog()
{
    Configuration dialog;
    QCOMPARE(itemsOf(dialog, "comboUnitType"), (QStringList{u"QHX"_s, u"ZPV"_s}));
    QCOMPARE(shownIn(dialog, "comboUnitType"), u"ZPV"_s);
    QCOMPARE(shownIn(dialog, "comboUnitModel"), u"ZPV43"_s);
    QVERIFY(isChecked(dialog, "rbTempUnitF"));
    QVERIFY(!isChecked(dialog, "rbTempUnitC"));
    for (const QString &box : checkBoxes)
        QVERIFY(!isChecked(dialog, box.toLatin1().constData()));
    QCOMPARE(dialog.getTempUnit(), 0);
    QCOMPARE(dialog.getCabinetType(), u"ZPV"_s);
    QCOMPARE(dialog.getCabinetModel(), u"ZPV43"_s);
    QVERIFY(!dialog.getProductIdEnabled() && !dialog.getFanSpeedEnabled());
    QVERIFY(!dialog.getResetTimeEnabled() && !dialog.getTimerColorEnabled());
}

void TestConfiguration::everyTypeOffersItsModels()
{
    Configuration dialog;
    ui::show(dialog);
    for (const QString &type : {u"ZPV"_s, u"QHX"_s}) {
        ui::choose(dialog, "comboUnitType", type);
        QCOMPARE(differenceOf(itemsOf(dialog, "comboUnitModel"), cabinets::modelNames(type)), QString());
    }
}

void TestConfiguration::changingTheTypeSelectsItsFirstModel()
{
    Configuration dialog;
    ui::show(dialog);
    ui::choose(dialog, "comboUnitType", u"QHX"_s);
    QCOMPARE(shownIn(dialog, "comboUnitModel"), u"KTR22"_s);
    QCOMPARE(dialog.getCabinetType(), u"QHX"_s);
    QCOMPARE(dialog.getCabinetModel(), u"KTR22"_s);
    ui::choose(dialog, "comboUnitModel", u"KTR63"_s);
    QCOMPARE(dialog.getCabinetModel(), u"KTR63"_s);
    ui::choose(dialog, "comboUnitType", u"ZPV"_s);
    QCOMPARE(shownIn(dialog, "comboUnitModel"), u"ZPV43"_s);
    QCOMPARE(dialog.getCabinetModel(), u"ZPV43"_s);
}

void TestConfiguration::settersStoreAndShow()
{
    Configuration dialog;
    dialog.setCabinetType(u"QHX"_s);
    dialog.setCabinetModel(u"KTR34"_s);
    dialog.setTempUnit(1);
    dialog.setProductIdEnabled(true);
    dialog.setTimerColorEnabled(true);
    QCOMPARE(shownIn(dialog, "comboUnitType"), u"QHX"_s);
    QCOMPARE(shownIn(dialog, "comboUnitModel"), u"KTR34"_s);
    QVERIFY(isChecked(dialog, "rbTempUnitC"));
    QVERIFY(isChecked(dialog, "checkBoxProductIdEditEnabled"));
    QVERIFY(isChecked(dialog, "checkBoxTimerColorEnabled"));
    QVERIFY(!isChecked(dialog, "checkBoxFanSpeedEnabled"));
    QVERIFY(!isChecked(dialog, "checkBoxResetTimeEnabled"));
    QCOMPARE(dialog.getCabinetModel(), u"KTR34"_s);
    QCOMPARE(dialog.getTempUnit(), 1);
    dialog.setTempUnit(0);
    QVERIFY(isChecked(dialog, "rbTempUnitF"));
    dialog.setProductIdEnabled(false);
    QVERIFY(!isChecked(dialog, "checkBoxProductIdEditEnabled"));
    dialog.setFanSpeedEnabled(true);
    dialog.setResetTimeEnabled(true);
    QVERIFY(isChecked(dialog, "checkBoxFanSpeedEnabled"));
    QVERIFY(isChecked(dialog, "checkBoxResetTimeEnabled"));
}

void TestConfiguration::unitsFollowTheirRadioButtons()
{
    Configuration dialog;
    ui::show(dialog);
    ui::click(dialog, "rbTempUnitC");
    QCOMPARE(dialog.getTempUnit(), 1);
    ui::click(dialog, "rbTempUnitF");
    QCOMPARE(dialog.getTempUnit(), 0);
}

void TestConfiguration::switchesAreTakenOverOnSaveOnly()
{
    Configuration dialog;
    ui::show(dialog);
    for (const QString &box : checkBoxes)
        ui::click(dialog, box.toLatin1().constData());
    QVERIFY(!dialog.getProductIdEnabled() && !dialog.getFanSpeedEnabled());
    QVERIFY(!dialog.getResetTimeEnabled() && !dialog.getTimerColorEnabled());
    ui::click(dialog, "btnAccept");
    QVERIFY(dialog.getProductIdEnabled() && dialog.getFanSpeedEnabled());
    QVERIFY(dialog.getResetTimeEnabled() && dialog.getTimerColorEnabled());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void TestConfiguration::cancelRejects()
{
    Configuration dialog;
    ui::show(dialog);
    ui::click(dialog, "checkBoxFanSpeedEnabled");
    ui::click(dialog, "btnCancel");
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.getFanSpeedEnabled());
}

void TestConfiguration::escapeRejects()
{
    Configuration dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    ui::show(dialog);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dialog.isVisible());
}

void TestConfiguration::enterSaves()
{
    Configuration dialog;
    ui::show(dialog);
    auto &box = ui::get<QCheckBox>(dialog, "checkBoxFanSpeedEnabled");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Space);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(dialog.getFanSpeedEnabled());
}

void TestConfiguration::unknownUnitSurvivesUntilAnotherIsChosen()
{
    Configuration dialog;
    dialog.setTempUnit(7);
    ui::show(dialog);
    QVERIFY(isChecked(dialog, "rbTempUnitF"));
    QCOMPARE(dialog.getTempUnit(), 7);
    ui::click(dialog, "rbTempUnitF");
    QCOMPARE(dialog.getTempUnit(), 0);
}

QTEST_MAIN(TestConfiguration)
#include "tst_configuration.moc"
