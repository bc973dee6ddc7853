// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/timercolorsample.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

/// The style sheets that show a timer colour.
class TestTimerColorSample : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void styles_data();
    void styles();
    void noColour();
};

void TestTimerColorSample::styles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("background");
    QTest::newRow("three different parts, grey text")
        << u"#380070"_s << u"background-color: rgb(56,0,112); color: rgb(160, 160, 160);"_s
        << u"background-color: rgb(56,0,112);"_s;
    QTest::newRow("three different parts, black text")
        << u"#ff9830"_s << u"background-color: rgb(255,152,48); color: rgb(0, 0, 0);"_s
        << u"background-color: rgb(255,152,48);"_s;
    QTest::newRow("white") << u"#ffffff"_s << u"background-color: rgb(255,255,255); color: rgb(0, 0, 0);"_s
                           << u"background-color: rgb(255,255,255);"_s;
    QTest::newRow("black") << u"#000000"_s << u"background-color: rgb(0,0,0); color: rgb(160, 160, 160);"_s
                           << u"background-color: rgb(0,0,0);"_s;
}

void TestTimerColorSample::styles()
{
    QFETCH(QString, name);
    const TimerColor &entry = timerColorByName(name);
    QTEST(timerColorSample(entry).styleSheet, "sample");
    QCOMPARE(timerColorSample(entry).text, u"SampleText"_s);
    QTEST(backgroundStyle(entry), "background");
}

void TestTimerColorSample::noColour()
{
    const TimerColorSample sample = timerColorSample(timerColorByName(u"#fffffd"_s));
    QCOMPARE(sample.styleSheet, u"border-image: url(:/images/noColor.png);"_s);
    QCOMPARE(sample.text, QString());
}

QTEST_APPLESS_MAIN(TestTimerColorSample)
#include "tst_timercolorsample.moc"
