// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>

#include <QTest>

#include "model/temperature.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestTemperature : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void toCelsius_data();
    void toCelsius();
    void toFahrenheit_data();
    void toFahrenheit();
    void wholeRange();
    void enteredCelsiusIsShownAgain();
    void followsUnit_data();
    void followsUnit();
    void keepsUntouched_data();
    void keepsUntouched();
    void keepsEveryUntouched();
};

void TestTemperature::toCelsius_data()
{
    using Limits = std::numeric_limits<int>;
    QTest::addColumn<int>("fahrenheit");
    QTest::addColumn<int>("celsius");
    QTest::newRow("not set stays not set") << 0 << 0;
    QTest::newRow("boiling water") << 212 << 100;
    QTest::newRow("freezing water") << 32 << 0;
    QTest::newRow("71.1 down") << 160 << 71;
    QTest::newRow("93.3 down") << 200 << 93;
    QTest::newRow("101.7 up") << 215 << 102;
    QTest::newRow("lowest that can be entered, 32.2") << 90 << 32;
    QTest::newRow("highest that can be entered, 107.2") << 225 << 107;
    QTest::newRow("0.56 up") << 33 << 1;
    QTest::newRow("0.56 below zero, away from zero") << 31 << -1;
    QTest::newRow("-17.2, next to not set") << 1 << -17;
    QTest::newRow("-18.3") << -1 << -18;
    QTest::newRow("both scales meet") << -40 << -40;
    // In double precision these would be 1193046453 and -1193046489.
    QTest::newRow("largest number, single precision") << Limits::max() << 1193046528;
    QTest::newRow("smallest number, single precision") << Limits::min() << -1193046528;
}

void TestTemperature::toCelsius()
{
    QFETCH(int, fahrenheit);
    QFETCH(int, celsius);
    QCOMPARE(celsiusFromFahrenheit(fahrenheit), celsius);
}

void TestTemperature::toFahrenheit_data()
{
    using Limits = std::numeric_limits<int>;
    QTest::addColumn<int>("celsius");
    QTest::addColumn<int>("fahrenheit");
    QTest::newRow("not set stays not set") << 0 << 0;
    QTest::newRow("boiling water") << 100 << 212;
    QTest::newRow("127.8 up") << 71 << 160;
    QTest::newRow("167.4 down") << 93 << 199;
    QTest::newRow("lowest that can be entered, 57.6 up") << 32 << 90;
    QTest::newRow("highest that can be entered, 192.6 up") << 107 << 225;
    QTest::newRow("-1.8, away from zero") << -1 << 30;
    QTest::newRow("both scales meet") << -40 << -40;
    QTest::newRow("too large for the result") << Limits::max() << Limits::max();
    QTest::newRow("too small for the result") << Limits::min() << Limits::min();
}

void TestTemperature::toFahrenheit()
{
    QFETCH(int, celsius);
    QFETCH(int, fahrenheit);
    QCOMPARE(fahrenheitFromCelsius(celsius), fahrenheit);
}

// No whole temperature converts to a half, so that in whole numbers the nearest one is plain to compute.
void TestTemperature::wholeRange()
{
    for (int fahrenheit = -1000; fahrenheit <= 1000; ++fahrenheit) {
        const int ninths = (fahrenheit - 32) * 5;
        const int nearest = ninths < 0 ? -((-ninths * 2 + 9) / 18) : (ninths * 2 + 9) / 18;
        QCOMPARE(celsiusFromFahrenheit(fahrenheit), fahrenheit == 0 ? 0 : nearest);
    }
    for (int celsius = -1000; celsius <= 1000; ++celsius) {
        const int fifths = celsius * 9;
        const int nearest = fifths < 0 ? -((-fifths * 2 + 5) / 10) : (fifths * 2 + 5) / 10;
        QCOMPARE(fahrenheitFromCelsius(celsius), celsius == 0 ? 0 : nearest + 32);
    }
}

void TestTemperature::enteredCelsiusIsShownAgain()
{
    for (int celsius = 32; celsius <= 107; ++celsius)
        QCOMPARE(celsiusFromFahrenheit(fahrenheitFromCelsius(celsius)), celsius);
}

void TestTemperature::followsUnit_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("shown");
    QTest::addColumn<QString>("text");
    QTest::newRow("Fahrenheit") << 0 << 215 << 215 << u"215°F"_s;
    QTest::newRow("Celsius") << 1 << 212 << 100 << u"100°C"_s;
    QTest::newRow("Celsius below zero") << 1 << 23 << -5 << u"-5°C"_s;
    QTest::newRow("nothing set, Fahrenheit") << 0 << 0 << 0 << u"0°F"_s;
    QTest::newRow("nothing set, Celsius") << 1 << 0 << 0 << u"0°C"_s;
    QTest::newRow("unknown unit") << 2 << 212 << 212 << u"212°F"_s;
    QTest::newRow("negative unit") << -1 << 212 << 212 << u"212°F"_s;
}

void TestTemperature::followsUnit()
{
    QFETCH(int, unit);
    QFETCH(int, stored);
    QFETCH(int, shown);
    QFETCH(QString, text);
    QCOMPARE(shownTemperature(stored, unit), shown);
    QCOMPARE(storedTemperature(shown, unit), stored);
    QCOMPARE(temperatureText(stored, unit), text);
    QCOMPARE(unitText(unit), text.last(2));
}

void TestTemperature::keepsUntouched_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("boxValue");
    QTest::addColumn<int>("entered");
    QTest::newRow("Fahrenheit, untouched") << unitFahrenheit << 200 << 200 << 200;
    QTest::newRow("Fahrenheit, changed") << unitFahrenheit << 200 << 199 << 199;
    QTest::newRow("Fahrenheit, moved into the box's range") << unitFahrenheit << 99 << 100 << 100;
    QTest::newRow("Celsius, untouched between two degrees") << unitCelsius << 200 << 93 << 200;
    QTest::newRow("Celsius, untouched on the degree") << unitCelsius << 199 << 93 << 199;
    QTest::newRow("Celsius, one degree up") << unitCelsius << 200 << 94 << 201;
    QTest::newRow("Celsius, one degree down") << unitCelsius << 200 << 92 << 198;
    QTest::newRow("Celsius, untouched next to the notice") << unitCelsius << 155 << 68 << 155;
    QTest::newRow("Celsius, entered next to the notice") << unitCelsius << 200 << 68 << 154;
    QTest::newRow("Celsius, moved into the box's range") << unitCelsius << 99 << 38 << 100;
    QTest::newRow("Celsius, nothing set") << unitCelsius << 0 << 0 << 0;
    QTest::newRow("Celsius, set to nothing") << unitCelsius << 200 << 0 << 0;
    QTest::newRow("Celsius, set from nothing") << unitCelsius << 0 << 93 << 199;
}

void TestTemperature::keepsUntouched()
{
    QFETCH(int, unit);
    QFETCH(int, stored);
    QFETCH(int, boxValue);
    QFETCH(int, entered);
    QCOMPARE(enteredTemperature(boxValue, stored, unit), entered);
}

void TestTemperature::keepsEveryUntouched()
{
    for (int stored = 0; stored <= 400; ++stored) {
        for (const int unit : {unitFahrenheit, unitCelsius})
            QCOMPARE(enteredTemperature(shownTemperature(stored, unit), stored, unit), stored);
    }
}

QTEST_APPLESS_MAIN(TestTemperature)
#include "tst_temperature.moc"
