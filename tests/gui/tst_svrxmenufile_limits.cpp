// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/openlaneeditor.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray fourLanes = "T1=150,T2=400,T3=375,T4=211,F1=1500,F2=3200,F3=1800,F4=2000";

} // namespace

/// The limits of the numbers, in either unit.
class TestSvrxMenuFileLimits : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void numbersHaveLimits();
    void typingBeyondALimitIsRefused_data();
    void typingBeyondALimitIsRefused();
    void celsiusShowsTheSameTemperatures();
    void switchingUnitsKeepsEveryTemperature();
    void limitsSurviveTheUnit_data();
    void limitsSurviveTheUnit();
    void celsiusEntriesAreStoredInFahrenheit();
    void valuesBeyondTheLimitsAreTold();
    void valuesBeyondTheLimitsStayUntilChanged();
    void shownLimitCanBeTyped_data();
    void shownLimitCanBeTyped();
    void shownLimitCanBeTypedInCelsius();
    void nothingIsStoredWithoutTyping();
    void whatWasTypedIsStoredOnce();
    void typingTheShownTemperatureKeepsTheStoredOne();
    void notesFollowTheUnit();
    void notesFollowTheLaneCount();
};

void TestSvrxMenuFileLimits::numbersHaveLimits()
{
    OpenLaneEditor editor;
    const auto checkTemperatures = [&editor](int minimum, int maximum) {
        for (int lane = 1; lane <= 4; ++lane) {
            REQUIRE_EQUAL(editor.temperature(lane).minimum(), minimum);
            REQUIRE_EQUAL(editor.temperature(lane).maximum(), maximum);
            REQUIRE_EQUAL(editor.fanSpeed(lane).minimum(), 1500);
            REQUIRE_EQUAL(editor.fanSpeed(lane).maximum(), 3200);
        }
    };
    checkTemperatures(150, 400);
    editor.chooseUnit("rbTempUnitC");
    checkTemperatures(66, 204);
    editor.chooseUnit("rbTempUnitF");
    checkTemperatures(150, 400);
}

void TestSvrxMenuFileLimits::typingBeyondALimitIsRefused_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("temperature");
    QTest::newRow("below") << u"149"_s << 150;
    QTest::newRow("far below") << u"1"_s << 150;
    QTest::newRow("minimum") << u"150"_s << 150;
    QTest::newRow("maximum") << u"400"_s << 400;
}

void TestSvrxMenuFileLimits::typingBeyondALimitIsRefused()
{
    QFETCH(const QString, typed);
    QFETCH(const int, temperature);
    OpenLaneEditor editor;
    editor.chooseLanes(u"Single Lane"_s);
    ui::type(editor.temperature(1), u"150"_s);
    ui::type(editor.temperature(1), typed);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Tab);
    QCOMPARE(editor.temperature(1).value(), temperature);
    QCOMPARE(editor.saved(),
             "T1=" + QByteArray::number(temperature) + ",T2=0,T3=0,T4=0,F1=1800,F2=0,F3=0,F4=0");
}

void TestSvrxMenuFileLimits::celsiusShowsTheSameTemperatures()
{
    OpenLaneEditor editor(fourLanes);
    editor.chooseUnit("rbTempUnitC");
    const int celsius[] = {66, 204, 191, 99};
    for (int lane = 1; lane <= 4; ++lane) {
        QCOMPARE(editor.temperature(lane).value(), celsius[lane - 1]);
        QCOMPARE(textOf(*editor, "lblTemperatureUnit", lane), u"°C"_s);
    }
    QCOMPARE(editor.fanSpeed(2).value(), 3200);
    QCOMPARE(editor.saved(), fourLanes);
    editor.chooseUnit("rbTempUnitF");
    QCOMPARE(editor.temperature(4).value(), 211);
    QCOMPARE(textOf(*editor, "lblTemperatureUnit", 4), u"°F"_s);
    QCOMPARE(editor.saved(), fourLanes);
}

// Each four values at a time, there and back twice.
void TestSvrxMenuFileLimits::switchingUnitsKeepsEveryTemperature()
{
    OpenLaneEditor editor;
    editor.chooseLanes(u"Quad Lane"_s);
    for (int first = 150; first <= 400; first += 4) {
        QByteArray contents;
        for (int lane = 1; lane <= 4; ++lane) {
            const int temperature = std::min(first + lane - 1, 400);
            editor.temperature(lane).setValue(temperature);
            contents += 'T' + QByteArray::number(lane) + '=' + QByteArray::number(temperature) + ',';
        }
        for (const char *button : {"rbTempUnitC", "rbTempUnitF", "rbTempUnitC", "rbTempUnitF"})
            editor.chooseUnit(button);
        QCOMPARE(editor.saved(), contents + "F1=1800,F2=1800,F3=1800,F4=1800");
        QCOMPARE(editor.temperature(1).value(), first);
    }
}

void TestSvrxMenuFileLimits::limitsSurviveTheUnit_data()
{
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<int>("entered");
    QTest::addColumn<QByteArray>("otherUnit");
    QTest::addColumn<int>("shown");
    QTest::newRow("lowest in F") << QByteArray("rbTempUnitF") << 150 << QByteArray("rbTempUnitC") << 66;
    QTest::newRow("highest in F") << QByteArray("rbTempUnitF") << 400 << QByteArray("rbTempUnitC") << 204;
    QTest::newRow("default in F") << QByteArray("rbTempUnitF") << 375 << QByteArray("rbTempUnitC") << 191;
    QTest::newRow("lowest in C") << QByteArray("rbTempUnitC") << 66 << QByteArray("rbTempUnitF") << 151;
    QTest::newRow("highest in C") << QByteArray("rbTempUnitC") << 204 << QByteArray("rbTempUnitF") << 399;
}

void TestSvrxMenuFileLimits::limitsSurviveTheUnit()
{
    QFETCH(const QByteArray, unit);
    QFETCH(const int, entered);
    QFETCH(const QByteArray, otherUnit);
    QFETCH(const int, shown);
    OpenLaneEditor editor;
    editor.chooseUnit(unit.constData());
    ui::type(editor.temperature(1), QString::number(entered));
    const QByteArray before = editor.saved();
    for (int i = 0; i < 3; ++i) {
        editor.chooseUnit(otherUnit.constData());
        QCOMPARE(editor.temperature(1).value(), shown);
        QCOMPARE(editor.temperatureNote(1), QString());
        editor.chooseUnit(unit.constData());
        QCOMPARE(editor.temperature(1).value(), entered);
    }
    QCOMPARE(editor.saved(), before);
}

void TestSvrxMenuFileLimits::celsiusEntriesAreStoredInFahrenheit()
{
    OpenLaneEditor editor;
    editor.chooseLanes(u"Single Lane"_s);
    editor.chooseUnit("rbTempUnitC");
    for (int celsius = 66; celsius <= 204; ++celsius) {
        editor.temperature(1).setValue(celsius);
        const int fahrenheit = (celsius * 9 + 2) / 5 + 32; // fifths: never a half
        QCOMPARE(editor.saved(),
                 "T1=" + QByteArray::number(fahrenheit) + ",T2=0,T3=0,T4=0,F1=1800,F2=0,F3=0,F4=0");
        QCOMPARE(editor.temperature(1).value(), celsius);
    }
}

void TestSvrxMenuFileLimits::valuesBeyondTheLimitsAreTold()
{
    OpenLaneEditor editor("T1=1,T2=401,T3=375,T4=-7,F1=1,F2=99999,F3=1800,F4=-1");
    const int temperatures[] = {150, 400, 375, 150};
    const int fanSpeeds[] = {1500, 3200, 1800, 1500};
    const QStringList temperatureNotes{u"file holds 1"_s, u"file holds 401"_s, {}, u"file holds -7"_s};
    const QStringList fanSpeedNotes{u"file holds 1"_s, u"file holds 99999"_s, {}, u"file holds -1"_s};
    for (int lane = 1; lane <= 4; ++lane) {
        QCOMPARE(editor.temperature(lane).value(), temperatures[lane - 1]);
        QCOMPARE(editor.fanSpeed(lane).value(), fanSpeeds[lane - 1]);
        QCOMPARE(editor.temperatureNote(lane), temperatureNotes[lane - 1]);
        QCOMPARE(editor.fanSpeedNote(lane), fanSpeedNotes[lane - 1]);
    }
}

void TestSvrxMenuFileLimits::valuesBeyondTheLimitsStayUntilChanged()
{
    const QByteArray contents = "T1=1,T2=401,T3=0,T4=0,F1=1,F2=99999,F3=0,F4=0";
    OpenLaneEditor editor(contents);
    editor.chooseUnit("rbTempUnitC");
    editor.chooseUnit("rbTempUnitF");
    editor.chooseLanes(u"Quad Lane"_s);
    editor.chooseLanes(u"Double Lane"_s);
    QCOMPARE(editor.saved(), contents);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Up);
    QCOMPARE(editor.temperatureNote(1), QString());
    QCOMPARE(editor.fanSpeedNote(1), u"file holds 1"_s);
    QCOMPARE(editor.saved(), QByteArray("T1=151,T2=401,T3=0,T4=0,F1=1,F2=99999,F3=0,F4=0"));
    QTest::keyClick(&editor.fanSpeed(2), Qt::Key_Down);
    QCOMPARE(editor.fanSpeedNote(2), QString());
    QCOMPARE(editor.temperatureNote(2), u"file holds 401"_s);
    QCOMPARE(editor.saved(), QByteArray("T1=151,T2=401,T3=0,T4=0,F1=1,F2=3199,F3=0,F4=0"));
}

void TestSvrxMenuFileLimits::shownLimitCanBeTyped_data()
{
    QTest::addColumn<QString>("temperature");
    QTest::addColumn<QString>("fanSpeed");
    QTest::newRow("as shown") << u"150"_s << u"3200"_s;
    QTest::newRow("beyond, taken back") << u"149"_s << u"320"_s;
}

void TestSvrxMenuFileLimits::shownLimitCanBeTyped()
{
    QFETCH(const QString, temperature);
    QFETCH(const QString, fanSpeed);
    OpenLaneEditor editor("T1=1,T2=375,T3=0,T4=0,F1=1800,F2=99999,F3=0,F4=0");
    ui::type(editor.temperature(1), temperature);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Tab);
    QCOMPARE(editor.temperatureNote(1), QString());
    QCOMPARE(editor.fanSpeedNote(2), u"file holds 99999"_s);
    ui::type(editor.fanSpeed(2), fanSpeed);
    QTest::keyClick(&editor.fanSpeed(2), Qt::Key_Return);
    QCOMPARE(editor.fanSpeedNote(2), QString());
    QCOMPARE(editor.saved(), QByteArray("T1=150,T2=375,T3=0,T4=0,F1=1800,F2=3200,F3=0,F4=0"));
}

void TestSvrxMenuFileLimits::shownLimitCanBeTypedInCelsius()
{
    OpenLaneEditor editor("T1=500,T2=0,T3=0,T4=0,F1=1800,F2=0,F3=0,F4=0");
    editor.chooseUnit("rbTempUnitC");
    ui::type(editor.temperature(1), u"204"_s);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Tab);
    QCOMPARE(editor.temperatureNote(1), QString());
    QCOMPARE(editor.saved(), QByteArray("T1=399,T2=0,T3=0,T4=0,F1=1800,F2=0,F3=0,F4=0"));
}

void TestSvrxMenuFileLimits::nothingIsStoredWithoutTyping()
{
    const QByteArray contents = "T1=1,T2=401,T3=0,T4=0,F1=1,F2=99999,F3=0,F4=0";
    OpenLaneEditor editor(contents);
    for (int lane : {1, 2}) {
        for (QSpinBox *box : {&editor.temperature(lane), &editor.fanSpeed(lane)}) {
            box->setFocus();
            QTest::keyClick(box, Qt::Key_Return);
            QTest::keyClick(box, Qt::Key_Tab);
        }
    }
    QCOMPARE(editor.saved(), contents);
    QCOMPARE(editor.temperatureNote(1), u"file holds 1"_s);
}

void TestSvrxMenuFileLimits::whatWasTypedIsStoredOnce()
{
    OpenLaneEditor editor("T1=149,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0");
    ui::type(editor.temperature(1), u"150"_s);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Return);
    const QByteArray later = "T1=1,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0";
    editor.readAgain(later);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Return);
    QCOMPARE(editor.temperatureNote(1), u"file holds 1"_s);
    QCOMPARE(editor.saved(), later);
}

// 375 and 376 °F are both shown as 191 °C, and 191 °C is 376 °F.
void TestSvrxMenuFileLimits::typingTheShownTemperatureKeepsTheStoredOne()
{
    OpenLaneEditor editor;
    editor.chooseUnit("rbTempUnitC");
    ui::type(editor.temperature(1), u"191"_s);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Return);
    QTest::keyClick(&editor.temperature(1), Qt::Key_Tab);
    QCOMPARE(editor.saved(), QByteArray("T1=375,T2=375,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0"));
}

void TestSvrxMenuFileLimits::notesFollowTheUnit()
{
    OpenLaneEditor editor("T1=149,T2=401,T3=0,T4=0,F1=1500,F2=3200,F3=0,F4=0");
    editor.chooseUnit("rbTempUnitC");
    QCOMPARE(editor.temperature(1).value(), 66);
    QCOMPARE(editor.temperatureNote(1), u"file holds 65"_s);
    QCOMPARE(editor.temperature(2).value(), 204);
    QCOMPARE(editor.temperatureNote(2), u"file holds 205"_s);
    editor.chooseUnit("rbTempUnitF");
    QCOMPARE(editor.temperatureNote(1), u"file holds 149"_s);
    QCOMPARE(editor.temperatureNote(2), u"file holds 401"_s);
}

void TestSvrxMenuFileLimits::notesFollowTheLaneCount()
{
    OpenLaneEditor editor("T1=1,T2=401,T3=402,T4=403,F1=1,F2=2,F3=3,F4=4");
    const QStringList laneCounts{u"Single Lane"_s, u"Double Lane"_s, u"Triple Lane"_s, u"Quad Lane"_s};
    const QStringList temperatureNotes{u"file holds 1"_s, u"file holds 401"_s, u"file holds 402"_s,
                                       u"file holds 403"_s};
    for (int inUse : {1, 2, 3, 4, 2}) {
        editor.chooseLanes(laneCounts[inUse - 1]);
        for (int lane = 1; lane <= 4; ++lane) {
            const bool told = lane <= inUse;
            QCOMPARE(editor.temperatureNote(lane), told ? temperatureNotes[lane - 1] : QString());
            QCOMPARE(editor.fanSpeedNote(lane), told ? u"file holds %1"_s.arg(lane) : QString());
        }
    }
    editor.chooseUnit("rbTempUnitC");
    QCOMPARE(editor.temperatureNote(2), u"file holds 205"_s);
    QCOMPARE(editor.temperatureNote(3), QString());
}

QTEST_MAIN(TestSvrxMenuFileLimits)
#include "tst_svrxmenufile_limits.moc"
