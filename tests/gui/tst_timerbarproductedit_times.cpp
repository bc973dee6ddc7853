// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/edittimerbarproduct.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestTimerBarProductEditTimes : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void holdTimes_data();
    void holdTimes();
    void alertTimes_data();
    void alertTimes();
    void secondsCountForTheAlertOnly();
    void timesOfADayAndMoreAreRefused_data();
    void timesOfADayAndMoreAreRefused();
    void timeOfADayAndMoreCanBeReplaced();
    void sameDigitsTypedAgainCount_data();
    void sameDigitsTypedAgainCount();
    void stepsWithTheArrowKeysCount_data();
    void stepsWithTheArrowKeysCount();
    void lookingAtATimeIsNoEdit();
};

namespace {

using Editing = TimerBarProductEditing;

const QString tooLong = u"Invalid hold time. Maximum value is 8 hours!"_s;
const QString lateAlert = u"Invalid cook more alert time. Value must be less than hold time!"_s;

// A product with one time of 24:30, which its box shows as 00:30.
Editing withTimeOfADayAndMore(bool inHoldTime)
{
    return Editing(0, [inHoldTime](ProductInfo &product) {
        product.set_holdTime(inHoldTime ? 1470 * 60 : 3600);
        product.set_warningTime(inHoldTime ? 600 : 1470 * 60);
    });
}

void addBoxes()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<bool>("inHoldTime");
    QTest::newRow("hold time") << QByteArray("timeHoldTime") << true;
    QTest::newRow("alert time") << QByteArray("timeWarningTime") << false;
}

} // namespace

void TestTimerBarProductEditTimes::holdTimes_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("message");
    QTest::newRow("00:00") << QTime(0, 0) << u"Invalid hold time. Minimum value is 6 minutes!"_s;
    QTest::newRow("00:05") << QTime(0, 5) << u"Invalid hold time. Minimum value is 6 minutes!"_s;
    QTest::newRow("00:06") << QTime(0, 6) << QString();
    QTest::newRow("08:00") << QTime(8, 0) << QString();
    QTest::newRow("08:01") << QTime(8, 1) << u"Invalid hold time. Maximum value is 8 hours!"_s;
    QTest::newRow("23:59") << QTime(23, 59) << u"Invalid hold time. Maximum value is 8 hours!"_s;
}

void TestTimerBarProductEditTimes::holdTimes()
{
    QFETCH(QTime, time);
    QFETCH(QString, message);
    Editing editing(0, [](ProductInfo &product) { product.set_warningTime(0); });
    editing.enterTime("timeHoldTime", time.hour(), time.minute());
    if (!message.isEmpty()) {
        editing.saveRefused(message);
        return;
    }
    editing.saveAccepted();
    QCOMPARE(editing.product.get_holdTime(), QTime(0, 0).secsTo(time));
}

void TestTimerBarProductEditTimes::alertTimes_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("none") << 0 << true;
    QTest::newRow("one minute less than the hold time") << 29 << true;
    QTest::newRow("the hold time") << 30 << false;
    QTest::newRow("more") << 31 << false;
}

void TestTimerBarProductEditTimes::alertTimes()
{
    QFETCH(int, minutes);
    QFETCH(bool, accepted);
    Editing editing(0, [](ProductInfo &product) { product.set_holdTime(1800); });
    editing.enterTime("timeWarningTime", 0, minutes);
    if (!accepted) {
        editing.saveRefused(u"Invalid cook more alert time. Value must be less than hold time!"_s);
        return;
    }
    editing.saveAccepted();
    QCOMPARE(editing.product.get_warningTime(), minutes * 60);
}

// A record's seconds stay in both fields, unseen.
void TestTimerBarProductEditTimes::secondsCountForTheAlertOnly()
{
    Editing kept(0, [](ProductInfo &product) {
        product.set_holdTime(3659);
        product.set_warningTime(659);
    });
    kept.saveAccepted();
    QCOMPARE(kept.product.get_holdTime(), 3600);
    QCOMPARE(kept.product.get_warningTime(), 659);
    Editing refused(0, [](ProductInfo &product) {
        product.set_holdTime(659);
        product.set_warningTime(601);
    });
    refused.saveRefused(u"Invalid cook more alert time. Value must be less than hold time!"_s);
    Editing tooShort(0, [](ProductInfo &product) {
        product.set_holdTime(359);
        product.set_warningTime(0);
    });
    tooShort.saveRefused(u"Invalid hold time. Minimum value is 6 minutes!"_s);
    Editing longest(0, [](ProductInfo &product) { product.set_holdTime(8 * 3600 + 59); });
    longest.saveAccepted();
    QCOMPARE(longest.product.get_holdTime(), 8 * 3600);
}

void TestTimerBarProductEditTimes::timesOfADayAndMoreAreRefused_data()
{
    QTest::addColumn<int>("holdMinutes");
    QTest::addColumn<int>("alertMinutes");
    QTest::addColumn<QTime>("shownHold");
    QTest::addColumn<QTime>("shownAlert");
    QTest::addColumn<QString>("message");
    QTest::newRow("hold 24:00") << 1440 << 10 << QTime(0, 0) << QTime(0, 10) << tooLong;
    QTest::newRow("hold 24:30, shown as one that may be saved")
        << 1470 << 10 << QTime(0, 30) << QTime(0, 10) << tooLong;
    QTest::newRow("the longest of a file") << 65535 << 10 << QTime(12, 15) << QTime(0, 10) << tooLong;
    QTest::newRow("alert 24:10") << 60 << 1450 << QTime(1, 0) << QTime(0, 10) << lateAlert;
}

// Nothing is changed behind the user's back.
void TestTimerBarProductEditTimes::timesOfADayAndMoreAreRefused()
{
    QFETCH(int, holdMinutes);
    QFETCH(int, alertMinutes);
    QFETCH(QTime, shownHold);
    QFETCH(QTime, shownAlert);
    QFETCH(QString, message);
    Editing editing(0, [holdMinutes, alertMinutes](ProductInfo &product) {
        product.set_holdTime(holdMinutes * 60);
        product.set_warningTime(alertMinutes * 60);
    });
    QCOMPARE(editing.get<QTimeEdit>("timeHoldTime").time(), shownHold);
    QCOMPARE(editing.get<QTimeEdit>("timeWarningTime").time(), shownAlert);
    ui::type(*editing.dialog, "txtProductName", u"Ham"_s);
    editing.saveRefused(message);
}

void TestTimerBarProductEditTimes::timeOfADayAndMoreCanBeReplaced()
{
    Editing editing(0, [](ProductInfo &product) {
        product.set_holdTime(1470 * 60);
        product.set_warningTime(1450 * 60);
    });
    editing.enterTime("timeHoldTime", 0, 45);
    editing.saveRefused(u"Invalid cook more alert time. Value must be less than hold time!"_s);
    editing.enterTime("timeWarningTime", 0, 5);
    editing.saveAccepted();
    QCOMPARE(editing.product.get_holdTime(), 45 * 60);
    QCOMPARE(editing.product.get_warningTime(), 5 * 60);
}

void TestTimerBarProductEditTimes::sameDigitsTypedAgainCount_data()
{
    addBoxes();
}

void TestTimerBarProductEditTimes::sameDigitsTypedAgainCount()
{
    QFETCH(QByteArray, box);
    QFETCH(bool, inHoldTime);
    Editing editing = withTimeOfADayAndMore(inHoldTime);
    QCOMPARE(editing.get<QTimeEdit>(box.constData()).time(), QTime(0, 30));
    editing.saveRefused(inHoldTime ? tooLong : lateAlert);
    editing.enterTime(box.constData(), 0, 30);
    editing.saveAccepted();
    const int stored = inHoldTime ? editing.product.get_holdTime() : editing.product.get_warningTime();
    QCOMPARE(stored, 30 * 60);
}

void TestTimerBarProductEditTimes::stepsWithTheArrowKeysCount_data()
{
    addBoxes();
}

// Also those that lead back to what was shown.
void TestTimerBarProductEditTimes::stepsWithTheArrowKeysCount()
{
    QFETCH(QByteArray, box);
    QFETCH(bool, inHoldTime);
    for (const QList<Qt::Key> &keys : {QList{Qt::Key_Up}, QList{Qt::Key_Up, Qt::Key_Down}}) {
        Editing editing = withTimeOfADayAndMore(inHoldTime);
        editing.saveRefused(inHoldTime ? tooLong : lateAlert);
        auto &edit = editing.get<QTimeEdit>(box.constData());
        edit.setFocus();
        edit.setSelectedSection(QDateTimeEdit::MinuteSection);
        for (const Qt::Key key : keys)
            QTest::keyClick(&edit, key);
        editing.saveAccepted();
        const int stored = inHoldTime ? editing.product.get_holdTime() : editing.product.get_warningTime();
        QCOMPARE(stored, (keys.size() == 1 ? 31 : 30) * 60);
    }
}

void TestTimerBarProductEditTimes::lookingAtATimeIsNoEdit()
{
    Editing editing = withTimeOfADayAndMore(true);
    auto &edit = editing.get<QTimeEdit>("timeHoldTime");
    edit.setFocus();
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_End, Qt::Key_Tab})
        QTest::keyClick(&edit, key);
    editing.saveRefused(tooLong);
}

QTEST_MAIN(TestTimerBarProductEditTimes)
#include "tst_timerbarproductedit_times.moc"
