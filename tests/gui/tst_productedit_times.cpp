// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/gui/editproduct.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace productedit;

namespace {

constexpr int day = 24 * 60 * 60;
const QString tooLong = u"Invalid hold time. Maximum value is 8 hours!"_s;

} // namespace

/// Times that no day has, which only a file can bring: they are shown wrapped into a day, but not taken for
/// that time until somebody says so.
class TestProductEditTimes : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void storedTimeStands_data();
    void storedTimeStands();
    void sameDigitsAreAnEntry();
    void stepIsAnEntry();
    void otherBoxesDoNotCount();
    void untouchedTimesOfADayStay();
};

void TestProductEditTimes::storedTimeStands_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QTime>("shown");
    QTest::addColumn<QString>("message");
    const QString alert = u"Invalid cook more alert time. Value must be less than hold time!"_s;
    QTest::newRow("a day") << u"holdingTime"_s << day << QByteArray("timeHoldTime") << QTime(0, 0) << tooLong;
    QTest::newRow("more than a day") << u"holdingTime"_s << day + 3600 << QByteArray("timeHoldTime")
                                     << QTime(1, 0) << tooLong;
    QTest::newRow("below zero") << u"holdingTime"_s << -60 << QByteArray("timeHoldTime") << QTime(23, 59)
                                << tooLong;
    QTest::newRow("alert below zero")
        << u"warningTime"_s << -60 << QByteArray("timeWarningTime") << QTime(23, 59) << alert;
    QTest::newRow("reset below zero")
        << u"resetTime"_s << -60 << QByteArray("timeResetTime") << QTime(23, 59) << u"Invalid reset time!"_s;
    QTest::newRow("alert") << u"warningTime"_s << day + 60 << QByteArray("timeWarningTime") << QTime(0, 1)
                           << alert;
    QTest::newRow("reset") << u"resetTime"_s << day + 60 << QByteArray("timeResetTime") << QTime(0, 1)
                           << u"Invalid reset time!"_s;
}

void TestProductEditTimes::storedTimeStands()
{
    QFETCH(QString, key);
    QFETCH(int, seconds);
    QFETCH(QByteArray, box);
    QFETCH(QString, message);
    OpenEditor editor(menuWith(samplefile::headerWithAllSwitches(), {{key, seconds}}));
    edit(editor, [&](ProductEdit &dialog, ModalAnswers &answers) {
        QTEST(timeIn(dialog, box.constData()), "shown");
        saveRefused(dialog, answers, message);
        cancel(dialog);
    });
    QCOMPARE(savedProduct(editor).value(key).toInt(), seconds);
}

void TestProductEditTimes::sameDigitsAreAnEntry()
{
    OpenEditor editor(menuWith(samplefile::header(), {{u"holdingTime"_s, day + 3600}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        saveRefused(dialog, answers, tooLong);
        ui::activate(dialog);
        ui::enterTime(dialog, "timeHoldTime", {1, 0, 0});
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"holdingTime"_s).toInt(), 3600);
}

void TestProductEditTimes::stepIsAnEntry()
{
    OpenEditor editor(menuWith(samplefile::header(), {{u"holdingTime"_s, day + 3600}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) {
        auto &box = ui::get<QTimeEdit>(dialog, "timeHoldTime");
        box.setFocus();
        box.setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClick(&box, Qt::Key_Up);
        save(dialog);
    });
    QCOMPARE(savedProduct(editor).value(u"holdingTime"_s).toInt(), 7200);
}

void TestProductEditTimes::otherBoxesDoNotCount()
{
    OpenEditor editor(menuWith(samplefile::header(), {{u"holdingTime"_s, day + 3600}}));
    edit(editor, [](ProductEdit &dialog, ModalAnswers &answers) {
        ui::type(dialog, "txtName", u"Ham"_s);
        ui::enterTime(dialog, "timeWarningTime", {0, 5, 0});
        saveRefused(dialog, answers, tooLong);
        cancel(dialog);
    });
}

void TestProductEditTimes::untouchedTimesOfADayStay()
{
    OpenEditor editor(
        menuWith(samplefile::headerWithAllSwitches(),
                 {{u"holdingTime"_s, 8 * 3600}, {u"warningTime"_s, 8 * 3600 - 1}, {u"resetTime"_s, 3599}}));
    const QJsonObject before = savedProduct(editor);
    edit(editor, [](ProductEdit &dialog, ModalAnswers &) { save(dialog); });
    QCOMPARE(savedProduct(editor), before);
}

QTEST_MAIN(TestProductEditTimes)
#include "tst_productedit_times.moc"
