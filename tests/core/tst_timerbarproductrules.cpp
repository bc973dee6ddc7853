// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "tests/support/warnings.h"
#include "timerbar/productrules.h"

using namespace Qt::StringLiterals;

class TestTimerBarProductRules : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void everyCharacter();
    void texts_data();
    void texts();
    void temperatureRanges_data();
    void temperatureRanges();
    void temperatureNotices_data();
    void temperatureNotices();
};

namespace {

const QString nameMessage = u"Product name should be English characters or numbers only"_s;
const QString shortNameMessage = u"Product short name should be English characters or numbers only"_s;

} // namespace

// Alone and among letters.
void TestTimerBarProductRules::everyCharacter()
{
    const QString taken = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"_s;
    for (int code = 0; code < 0x10000; ++code) {
        const QChar character(static_cast<char16_t>(code));
        const bool inShortName = taken.contains(character);
        const bool inName = inShortName || character == u' ';
        for (const QString &text : {QString(character), QString(u"A"_s + character + u"z"_s)}) {
            QCOMPARE(timerbar::nameFault(text), inName ? QString() : nameMessage);
            QCOMPARE(timerbar::shortNameFault(text), inShortName ? QString() : shortNameMessage);
        }
    }
}

void TestTimerBarProductRules::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("inName");
    QTest::addColumn<bool>("inShortName");
    QTest::newRow("nothing") << QString() << true << true;
    QTest::newRow("letters and digits") << u"Ham2"_s << true << true;
    QTest::newRow("blank inside") << u"a b"_s << true << false;
    QTest::newRow("only blanks") << u"  "_s << true << false;
    QTest::newRow("hyphen") << u"a-b"_s << false << false;
    QTest::newRow("slash") << u"Eggs / Egg Patties"_s << false << false;
    QTest::newRow("accent") << u"Cr\u00e8me"_s << false << false;
    QTest::newRow("accent of its own") << u"Cre\u0300me"_s << false << false;
    QTest::newRow("tabulator") << u"a\tb"_s << false << false;
    QTest::newRow("line break") << u"a\nb"_s << false << false;
    QTest::newRow("NUL") << QString(u"a\0b"_s) << false << false;
    QTest::newRow("blank of Latin-1") << u"a\u00a0b"_s << false << false;
    QTest::newRow("letter whose low byte is a letter's") << u"\u0141"_s << false << false;
    QTest::newRow("wide letter") << u"\uff21"_s << false << false;
    QTest::newRow("Arabic digit") << u"\u0663"_s << false << false;
    QTest::newRow("two units a character") << u"\U0001f953"_s << false << false;
    QTest::newRow("longer than any field") << QString(1000, u'a') << true << true;
}

void TestTimerBarProductRules::texts()
{
    QFETCH(QString, text);
    QFETCH(bool, inName);
    QFETCH(bool, inShortName);
    QCOMPARE(timerbar::nameFault(text), inName ? QString() : nameMessage);
    QCOMPARE(timerbar::shortNameFault(text), inShortName ? QString() : shortNameMessage);
}

void TestTimerBarProductRules::temperatureRanges_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("Fahrenheit") << 0 << 100 << 225;
    QTest::newRow("Celsius") << 1 << 38 << 107;
    for (const int unit : {2, 7, 255, -1})
        QTest::addRow("unit %d, which counts as Fahrenheit", unit) << unit << 100 << 225;
}

void TestTimerBarProductRules::temperatureRanges()
{
    QFETCH(int, unit);
    QFETCH(int, lowest);
    QFETCH(int, highest);
    QCOMPARE(timerbar::productTemperatureRange(unit), (TemperatureRange{lowest, highest}));
}

void TestTimerBarProductRules::temperatureNotices_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<bool>("noticed");
    QTest::newRow("both 155") << 155 << 155 << false;
    QTest::newRow("upper 154") << 154 << 155 << true;
    QTest::newRow("lower 154") << 155 << 154 << true;
    QTest::newRow("both 154") << 154 << 154 << true;
    QTest::newRow("upper high, lower 154") << 225 << 154 << true;
    QTest::newRow("upper 154, lower high") << 154 << 225 << true;
    QTest::newRow("both highest") << 354 << 354 << false;
    QTest::newRow("none") << 0 << 0 << true;
    QTest::newRow("one is none") << 215 << 0 << true;
}

void TestTimerBarProductRules::temperatureNotices()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(bool, noticed);
    QCOMPARE(timerbar::temperatureNotice(upper, lower),
             noticed ? u"Temperature values less than 155°F are supported in cabinet IO software version "
                       "1.6.2 or newer"_s
                     : QString());
}

QTEST_APPLESS_MAIN(TestTimerBarProductRules)
#include "tst_timerbarproductrules.moc"
