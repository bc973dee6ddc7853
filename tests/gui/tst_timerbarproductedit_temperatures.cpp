// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/edittimerbarproduct.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestTimerBarProductEditTemperatures : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void oddValuesAreClamped_data();
    void oddValuesAreClamped();
    void celsiusIsStoredInFahrenheit_data();
    void celsiusIsStoredInFahrenheit();
    void untouchedCelsiusKeepsItsFahrenheit_data();
    void untouchedCelsiusKeepsItsFahrenheit();
    void celsiusChangedBackIsUntouched();
    void lowTemperaturesAreNoticed_data();
    void lowTemperaturesAreNoticed();
    void lowCelsiusIsNoticedBeforeTheTimesAreStored();
};

namespace {

const QString notice = u"Temperature values less than 155°F are supported in cabinet IO software version "
                       "1.6.2 or newer"_s;

using Editing = TimerBarProductEditing;

} // namespace

void TestTimerBarProductEditTemperatures::oddValuesAreClamped_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("fahrenheit");
    QTest::addColumn<int>("shown");
    QTest::newRow("none in °F") << 0 << 0 << 100;
    QTest::newRow("99 °F") << 0 << 99 << 100;
    QTest::newRow("354 °F") << 0 << 354 << 225;
    QTest::newRow("none in °C") << 1 << 0 << 38;
    QTest::newRow("99 °F in °C") << 1 << 99 << 38;
    QTest::newRow("354 °F in °C") << 1 << 354 << 107;
}

void TestTimerBarProductEditTemperatures::oddValuesAreClamped()
{
    QFETCH(int, unit);
    QFETCH(int, fahrenheit);
    QFETCH(int, shown);
    const Editing editing(unit, [fahrenheit](ProductInfo &product) {
        product.set_upperTemp(fahrenheit);
        product.set_lowerTemp(fahrenheit);
    });
    QCOMPARE(editing.get<QSpinBox>("numTempUpper").value(), shown);
    QCOMPARE(editing.get<QSpinBox>("numTempLower").value(), shown);
}

void TestTimerBarProductEditTemperatures::celsiusIsStoredInFahrenheit_data()
{
    QTest::addColumn<int>("celsius");
    QTest::addColumn<int>("fahrenheit");
    QTest::newRow("69") << 69 << 156;
    QTest::newRow("93") << 93 << 199;
    QTest::newRow("100") << 100 << 212;
    QTest::newRow("102") << 102 << 216;
    QTest::newRow("107") << 107 << 225;
}

void TestTimerBarProductEditTemperatures::celsiusIsStoredInFahrenheit()
{
    QFETCH(int, celsius);
    QFETCH(int, fahrenheit);
    Editing editing(1, [](ProductInfo &product) {
        product.set_upperTemp(190);
        product.set_lowerTemp(190);
    });
    ui::type(*editing.dialog, "numTempUpper", QString::number(celsius));
    ui::type(*editing.dialog, "numTempLower", QString::number(celsius));
    editing.saveAccepted();
    QCOMPARE(editing.product.get_upperTemp(), fahrenheit);
    QCOMPARE(editing.product.get_lowerTemp(), fahrenheit);
}

void TestTimerBarProductEditTemperatures::untouchedCelsiusKeepsItsFahrenheit_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<QStringList>("stored");
    QTest::newRow("93 °C would be 199 °F") << 215 << 200 << QStringList{u"215"_s, u"200"_s};
    QTest::newRow("68 °C would be 154 °F and a notice") << 155 << 155 << QStringList{u"155"_s, u"155"_s};
    QTest::newRow("beyond the boxes") << 354 << 240 << QStringList{u"225"_s, u"225"_s};
}

void TestTimerBarProductEditTemperatures::untouchedCelsiusKeepsItsFahrenheit()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(QStringList, stored);
    Editing editing(1, [upper, lower](ProductInfo &product) {
        product.set_upperTemp(upper);
        product.set_lowerTemp(lower);
    });
    const ModalAnswers noBoxes;
    editing.saveAccepted();
    QCOMPARE(editing.record().sliced(2, 2), stored);
}

void TestTimerBarProductEditTemperatures::celsiusChangedBackIsUntouched()
{
    Editing editing(1);
    ui::type(*editing.dialog, "numTempLower", u"94"_s);
    ui::type(*editing.dialog, "numTempLower", u"93"_s);
    editing.saveAccepted();
    QCOMPARE(editing.product.get_lowerTemp(), 200);
}

void TestTimerBarProductEditTemperatures::lowTemperaturesAreNoticed_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<bool>("noticed");
    QTest::newRow("both 155") << 155 << 155 << false;
    QTest::newRow("upper 154") << 154 << 155 << true;
    QTest::newRow("lower 154") << 155 << 154 << true;
    QTest::newRow("both 100, one box") << 100 << 100 << true;
}

void TestTimerBarProductEditTemperatures::lowTemperaturesAreNoticed()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(bool, noticed);
    Editing editing;
    ui::type(*editing.dialog, "numTempUpper", QString::number(upper));
    ui::type(*editing.dialog, "numTempLower", QString::number(lower));
    ModalAnswers answers;
    if (noticed)
        answers.expectBox(ModalAnswers::removalWarning(notice), QMessageBox::Ok);
    editing.saveAccepted();
    QCOMPARE(editing.product.get_upperTemp(), upper);
    QCOMPARE(editing.product.get_lowerTemp(), lower);
}

void TestTimerBarProductEditTemperatures::lowCelsiusIsNoticedBeforeTheTimesAreStored()
{
    Editing editing(1);
    ui::type(*editing.dialog, "numTempLower", u"68"_s);
    ui::type(*editing.dialog, "txtProductName", u"Ham"_s);
    editing.enterTime("timeHoldTime", 2, 0);
    editing.enterTime("timeWarningTime", 1, 0);
    ModalAnswers answers;
    answers.expect<QMessageBox>([&editing](QMessageBox &box) {
        QCOMPARE(box.text(), notice);
        // The times are stored only after it.
        QCOMPARE(editing.record(),
                 (QStringList{u"Ham"_s, u"BACN"_s, u"215"_s, u"154"_s, u"3600"_s, u"600"_s}));
        QTest::keyClick(&box, Qt::Key_Escape); // a notice only
    });
    editing.saveAccepted();
    QCOMPARE(editing.record(), (QStringList{u"Ham"_s, u"BACN"_s, u"215"_s, u"154"_s, u"7200"_s, u"3600"_s}));
}

QTEST_MAIN(TestTimerBarProductEditTemperatures)
#include "tst_timerbarproductedit_temperatures.moc"
