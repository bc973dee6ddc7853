// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "model/times.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestTimes : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void seconds_data();
    void seconds();
    void everySecondOfADayStays();
};

void TestTimes::seconds_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortText");
    QTest::newRow("none") << 0 << u"00:00:00"_s << u"00:00"_s;
    QTest::newRow("59 seconds") << 59 << u"00:00:59"_s << u"00:00"_s;
    QTest::newRow("an hour, two minutes, three seconds") << 3723 << u"01:02:03"_s << u"01:02"_s;
    QTest::newRow("8 hours") << 28800 << u"08:00:00"_s << u"08:00"_s;
    QTest::newRow("last of the day") << 86399 << u"23:59:59"_s << u"23:59"_s;
    QTest::newRow("a whole day") << 86400 << u"00:00:00"_s << u"00:00"_s;
    QTest::newRow("less than none") << -1 << u"23:59:59"_s << u"23:59"_s;
}

void TestTimes::seconds()
{
    QFETCH(int, seconds);
    QTEST(timeText(seconds), "text");
    QTEST(timeText(seconds, u"HH:mm"), "shortText");
}

void TestTimes::everySecondOfADayStays()
{
    for (int seconds = 0; seconds < 86400; ++seconds)
        QCOMPARE(secondsOf(timeOfSeconds(seconds)), seconds);
}

QTEST_APPLESS_MAIN(TestTimes)
#include "tst_times.moc"
