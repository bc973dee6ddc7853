// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <limits>

#include <QTest>

#include "model/timelimits.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestTimeLimits : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void holdTimes_data();
    void holdTimes();
    void resetTimes_data();
    void resetTimes();
};

namespace {

const QString tooShort = u"Invalid hold time. Minimum value is 6 minutes!"_s;
const QString tooLong = u"Invalid hold time. Maximum value is 8 hours!"_s;
const QString lateAlert = u"Invalid cook more alert time. Value must be less than hold time!"_s;
constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

QString firstFault(int hold, int alert)
{
    const QString fault = holdTimeFault(hold);
    return fault.isEmpty() ? alertTimeFault(hold, alert) : fault;
}

} // namespace

void TestTimeLimits::holdTimes_data()
{
    QTest::addColumn<int>("hold"); // seconds
    QTest::addColumn<int>("alert");
    QTest::addColumn<QString>("message");
    QTest::newRow("usual") << 1800 << 300 << QString();
    QTest::newRow("below 6 minutes") << 359 << 0 << tooShort;
    QTest::newRow("6 minutes") << 360 << 0 << QString();
    QTest::newRow("above 6 minutes") << 361 << 0 << QString();
    QTest::newRow("below 8 hours") << 28799 << 0 << QString();
    QTest::newRow("8 hours") << 28800 << 0 << QString();
    QTest::newRow("above 8 hours") << 28801 << 0 << tooLong;
    QTest::newRow("none") << 0 << 0 << tooShort;
    QTest::newRow("negative") << -1 << 0 << tooShort;
    QTest::newRow("smallest number") << least << 0 << tooShort;
    QTest::newRow("a day and half an hour") << 88200 << 0 << tooLong;
    QTest::newRow("largest number") << most << 0 << tooLong;
    QTest::newRow("alert before the end") << 1800 << 1799 << QString();
    QTest::newRow("alert at the end") << 1800 << 1800 << lateAlert;
    QTest::newRow("alert after the end") << 1800 << 1801 << lateAlert;
    QTest::newRow("latest alert of the shortest time") << 360 << 359 << QString();
    QTest::newRow("latest alert of the longest time") << 28800 << 28799 << QString();
    QTest::newRow("alert a day later") << 1800 << 86400 + 300 << lateAlert;
    QTest::newRow("too short comes before the alert") << 359 << 359 << tooShort;
    QTest::newRow("too long comes before the alert") << 28801 << 28801 << tooLong;
}

void TestTimeLimits::holdTimes()
{
    QFETCH(int, hold);
    QFETCH(int, alert);
    QFETCH(QString, message);
    QCOMPARE(firstFault(hold, alert), message);
}

void TestTimeLimits::resetTimes_data()
{
    QTest::addColumn<int>("reset"); // seconds
    QTest::addColumn<QString>("message");
    const QString fault = u"Invalid reset time!"_s;
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("usual") << 300 << QString();
    QTest::newRow("below the longest") << 3598 << QString();
    QTest::newRow("longest") << 3599 << QString();
    QTest::newRow("an hour") << 3600 << fault;
    QTest::newRow("a day and five minutes") << 86700 << fault;
    QTest::newRow("largest number") << most << fault;
}

void TestTimeLimits::resetTimes()
{
    QFETCH(int, reset);
    QFETCH(QString, message);
    QCOMPARE(resetTimeFault(reset), message);
}

QTEST_APPLESS_MAIN(TestTimeLimits)
#include "tst_timelimits.moc"
