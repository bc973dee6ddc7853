// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "lanes/laneconfiguration.h"
#include "tests/support/lanefile.h"
#include "tests/support/require.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace lanes;

namespace {

const QString wrongFormat = u"Invalid file format"_s;
const QString wrongIdentifier = u"Invalid file identifier value"_s;
const QString wrongContents = u"Invalid file contents"_s;

const QByteArray oneLane = "T1=350,T2=0,T3=0,T4=0,F1=1,F2=0,F3=0,F4=0"; // identifier 9adb
const QByteArray twoLanes = "T1=375,T2=375,T3=0,T4=0,F1=1800,F2=1800,F3=0,F4=0";

// The lanes that were read, each as "temperature/fan speed", or the message.
QString outcome(const QByteArray &text)
{
    Configuration configuration;
    const QString message = readConfiguration(text, configuration);
    if (!message.isEmpty())
        return message;
    QStringList lanes;
    for (int i = 0; i < configuration.laneCount; ++i) {
        const Lane &lane = configuration.lanes[std::size_t(i)];
        lanes.append(u"%1/%2"_s.arg(lane.temperature).arg(lane.fanSpeed));
    }
    return lanes.join(u' ');
}

// Latin-1 bytes as they stand in a file.
QByteArray utf8(const QByteArray &latin1)
{
    return QString::fromLatin1(latin1).toUtf8();
}

void addRow(const char *name, const QByteArray &text, const QString &expected)
{
    QTest::newRow(name) << text << expected;
}

void addColumns()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
}

void checkOutcome()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, expected);
    REQUIRE_EQUAL(outcome(text), expected);
}

} // namespace

class TestLaneConfigurationRead : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void lines_data();
    void lines() { checkOutcome(); }
    void identifiers_data();
    void identifiers() { checkOutcome(); }
    void fields_data();
    void fields() { checkOutcome(); }
    void laneCounts_data();
    void laneCounts() { checkOutcome(); }
    void charactersBeyondLatin_data();
    void charactersBeyondLatin() { checkOutcome(); }
    void lanesBeyondTheFileStartFromTheDefaults();
    void faultChangesNothing_data();
    void faultChangesNothing();
};

void TestLaneConfigurationRead::lines_data()
{
    addColumns();
    const QByteArray good = lanefile::text(oneLane);
    const QByteArray sealed = "Identifier=9adb\n" + oneLane;
    const auto ending = [&good](const char *lineEnd) { return QByteArray(good).replace("\n", lineEnd); };
    const QString one = u"350/1"_s;
    addRow("as written", good, one);
    addRow("line end after the last line", good + '\n', one);
    addRow("CR LF", ending("\r\n") + "\r\n", one);
    addRow("CR alone", ending("\r"), one);
    addRow("CR alone, also at the end", ending("\r") + '\r', one);
    addRow("LF CR", ending("\n\r"), one);
    addRow("empty lines", "\n\r\n\n" + ending("\n\n\r\r\n"), one);
    addRow("without the first line", sealed, one);
    addRow("byte order mark", "\xEF\xBB\xBF" + good, one);
    addRow("byte order mark before the identifier", "\xEF\xBB\xBF" + sealed, one);
    addRow("byte order mark before the contents", "Identifier=9adb\n\xEF\xBB\xBF" + oneLane, wrongIdentifier);
    addRow("another first line", "Hello\n" + sealed, one);
    addRow("lines in another order", oneLane + "\nIdentifier=9adb\nnote", one);
    addRow("other lines between", "note\nIdentifier=9adb\nT2=1\nx\n" + oneLane + "\nF1=9", one);
    addRow("contents twice", "Identifier=9adb\n" + twoLanes + '\n' + oneLane, one);
    addRow("contents twice, the wrong one last", sealed + '\n' + twoLanes, wrongIdentifier);
    addRow("empty file", "", wrongFormat);
    addRow("line ends only", "\r\n\n\r", wrongFormat);
    addRow("one other line", "x", wrongIdentifier);
    addRow("a blank", " ", wrongIdentifier);
    addRow("no contents", "Identifier=9adb", wrongIdentifier);
    addRow("no contents, identifier of none", "Identifier=0000", wrongContents);
    addRow("contents after a blank", "Identifier=9adb\n " + oneLane, wrongIdentifier);
    addRow("contents in lower case", lanefile::text(oneLane.toLower()), wrongIdentifier);
    addRow("contents broken in two", "Identifier=9adb\n" + oneLane.first(20) + '\n' + oneLane.mid(20),
           wrongIdentifier);
    addRow("blank after the contents", good + ' ', wrongIdentifier);
    addRow("changed contents", QByteArray(good).replace("350", "351"), wrongIdentifier);
    addRow("both faults", "Identifier=0001\nT1=0", wrongIdentifier);
}

void TestLaneConfigurationRead::identifiers_data()
{
    addColumns();
    const auto with = [](const char *identifier) { return lanefile::text(oneLane, identifier); };
    const auto lines = [](const QByteArray &identifierLines) -> QByteArray {
        return identifierLines + '\n' + oneLane;
    };
    const QString one = u"350/1"_s;
    addRow("upper case", with("9ADB"), one);
    addRow("mixed case", with("9aDb"), one);
    addRow("padded", with("00009adb"), one);
    addRow("without its zeros", lanefile::text(twoLanes, "6b3"), u"375/1800 375/1800"_s);
    addRow("more after a second =", with("9adb=7"), one);
    addRow("two =", with("=9adb"), one);
    addRow("longer word", lines("Identifier of the lanes=9adb"), one);
    addRow("twice, the right one last", lines("Identifier=0001\nIdentifier=9adb"), one);
    addRow("twice, the wrong one last", lines("Identifier=9adb\nIdentifier=0001"), wrongIdentifier);
    addRow("twice, the last no number", lines("Identifier=9adb\nIdentifier=x"), wrongIdentifier);
    addRow("twice, the last without value", lines("Identifier=9adb\nIdentifier=\nIdentifier"), one);
    addRow("missing", oneLane, wrongIdentifier);
    addRow("lower-case word", lines("identifier=9adb"), wrongIdentifier);
    addRow("after a blank", lines(" Identifier=9adb"), wrongIdentifier);
    addRow("without =", lines("Identifier 9adb"), wrongIdentifier);
    addRow("empty", with(""), wrongIdentifier);
    addRow("one less", with("9ada"), wrongIdentifier);
    addRow("bytes swapped", with("db9a"), wrongIdentifier);
    addRow("other start value", with("95de"), wrongIdentifier);
    addRow("not hexadecimal", with("9adg"), wrongIdentifier);
    addRow("decimal", with("39643"), wrongIdentifier);
    addRow("negative", with("-9adb"), wrongIdentifier);
    addRow("above ffff", with("19adb"), wrongIdentifier);
    addRow("at the end of 32 bits", with("ffff9adb"), wrongIdentifier);
    addRow("above 32 bits", with("100009adb"), wrongIdentifier);
    addRow("0 for a number that is none", lanefile::text("", "x"), wrongIdentifier);
    addRow("0 for a missing one", "note", wrongIdentifier);
}

void TestLaneConfigurationRead::fields_data()
{
    addColumns();
    const auto row = [](const char *name, const QByteArray &contents, const QString &expected) {
        addRow(name, lanefile::text(contents), expected);
    };
    row("only one lane's", "T1=200,F1=1500", u"200/1500"_s);
    row("in another order", "T1=200,F2=1600,F1=1500,T2=300", u"200/1500 300/1600"_s);
    row("more fields", oneLane + ",X=7,T5=9,F5=9,T=1,F11=3", u"350/1"_s);
    row("empty fields", "T1=200,,F1=1500,,", u"200/1500"_s);
    row("field without =", "T1=200,T2,F1=1500,F2", u"200/1500"_s);
    row("field without value", "T1=200,T2=,F1=1500,F2=", u"200/1500"_s);
    row("third part", "T1=200=7,F1=1500=x", u"200/1500"_s);
    row("missing fan speed", "T1=200,T2=300,F1=1500", u"200/1500"_s);
    row("missing temperature", "T1=200,F1=1500,F2=1600", u"200/1500"_s);
    row("outside the limits", "T1=1,T2=9999,F1=1,F2=99999", u"1/1 9999/99999"_s);
    row("negative", "T1=-40,F1=-1", u"-40/-1"_s);
    row("largest", "T1=2147483647,F1=-2147483648", u"2147483647/-2147483648"_s);
    row("too large", "T1=2147483648,F1=1500", wrongContents);
    row("far too large", "T1=200,F1=99999999999999999999", wrongContents);
    row("sign and blanks", "T1=+200,F1= 1500 ", u"200/1500"_s);
    row("zeros in front", "T1=0200,F1=001500", u"200/1500"_s);
    row("hexadecimal", "T1=0x10,F1=1500", wrongContents);
    row("fraction", "T1=200.0,F1=1500", wrongContents);
    row("no number", "T1=warm,F1=1500", wrongContents);
    row("number and more", "T1=200F,F1=1500", wrongContents);
    row("empty first", "T1=,F1=1500", wrongContents);
    row("semicolons", "T1=200;F1=1500", wrongContents);
    row("names in lower case", "T1=200,f1=1500", wrongContents);
    row("names after blanks", "T1=200, F1=1500", wrongContents);
}

void TestLaneConfigurationRead::laneCounts_data()
{
    addColumns();
    const auto row = [](const char *name, const QByteArray &contents, const QString &expected) {
        addRow(name, lanefile::text(contents), expected);
    };
    const QByteArray fourTemperatures = "T1=200,T2=210,T3=220,T4=230,";
    row("single", "T1=200,T2=0,T3=0,T4=0,F1=1500,F2=0,F3=0,F4=0", u"200/1500"_s);
    row("double", "T1=200,T2=210,T3=0,T4=0,F1=1500,F2=1600,F3=0,F4=0", u"200/1500 210/1600"_s);
    row("triple", "T1=200,T2=210,T3=220,T4=0,F1=1500,F2=1600,F3=1700,F4=0", u"200/1500 210/1600 220/1700"_s);
    row("quad", fourTemperatures + "F1=1500,F2=1600,F3=1700,F4=1800",
        u"200/1500 210/1600 220/1700 230/1800"_s);
    row("lane 4 without fan speed", fourTemperatures + "F1=1500,F2=1600,F3=1700,F4=0",
        u"200/1500 210/1600 220/1700"_s);
    row("lane 4 without temperature", "T1=200,T2=210,T3=220,T4=0,F1=1500,F2=1600,F3=1700,F4=1800",
        u"200/1500 210/1600 220/1700"_s);
    row("lanes 2 to 4 without fan speed", fourTemperatures + "F1=1500,F2=0,F3=0,F4=0", u"200/1500"_s);
    row("gap below the highest", "T1=200,T2=0,T3=220,T4=0,F1=1500,F2=1600,F3=1700,F4=0",
        u"200/1500 0/1600 220/1700"_s);
    row("only the highest", "T1=0,T2=0,T3=0,T4=230,F1=0,F2=0,F3=0,F4=1800", u"0/0 0/0 0/0 230/1800"_s);
    row("none", "T1=0,T2=0,T3=0,T4=0,F1=0,F2=0,F3=0,F4=0", wrongContents);
    row("temperatures only", fourTemperatures + "F1=0,F2=0,F3=0,F4=0", wrongContents);
    row("fan speeds only", "T1=0,T2=0,T3=0,T4=0,F1=1500,F2=1600,F3=1700,F4=1800", wrongContents);
    row("the halves in different lanes", "T1=200,T2=0,F1=0,F2=1600", wrongContents);
}

// The checksum is over Latin-1 bytes, in which other characters are question marks.
void TestLaneConfigurationRead::charactersBeyondLatin_data()
{
    addColumns();
    const QByteArray accent = oneLane + ",\xe9";
    addRow("Latin-1 character", lanefile::text(utf8(accent), lanefile::identifierOf(accent)), u"350/1"_s);
    addRow("its UTF-8 bytes summed", lanefile::text(utf8(accent)), wrongIdentifier);
    const QByteArray marks = oneLane + ",?";
    const QByteArray identifier = lanefile::identifierOf(marks);
    addRow("Cyrillic letter", lanefile::text(oneLane + ",\u0416", identifier), u"350/1"_s);
    addRow("byte that is no UTF-8", lanefile::text(oneLane + ",\xff", identifier), u"350/1"_s);
    addRow("Arabic digits",
           lanefile::text("T1=\u0663\u0665\u0660,F1=1", lanefile::identifierOf("T1=???,F1=1")),
           wrongContents);
    addRow("letters in the first line", "\u0416\u65e5\n" + lanefile::text(oneLane), u"350/1"_s);
    addRow("zero byte", lanefile::text(oneLane + QByteArray(",\0", 2)), u"350/1"_s);
}

void TestLaneConfigurationRead::lanesBeyondTheFileStartFromTheDefaults()
{
    Configuration configuration{4, {{{{1, 2}, {3, 4}, {5, 6}, {7, 8}}}}};
    const QByteArray contents = "T1=200,T2=210,T3=220,T4=230,F1=1500,F2=1600,F3=0,F4=0";
    QCOMPARE(readConfiguration(lanefile::text(contents), configuration), QString());
    QVERIFY(configuration == (Configuration{2, {{{{200, 1500}, {210, 1600}, {375, 1800}, {375, 1800}}}}}));
}

void TestLaneConfigurationRead::faultChangesNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("format") << QByteArray();
    QTest::newRow("identifier") << lanefile::text("T1=200,F1=1500", "0001");
    QTest::newRow("contents") << lanefile::text("T1=200,T2=0,F1=0,F2=1500");
}

void TestLaneConfigurationRead::faultChangesNothing()
{
    QFETCH(const QByteArray, text);
    const Configuration before{3, {{{{1, 2}, {3, 4}, {5, 6}, {7, 8}}}}};
    Configuration configuration = before;
    QVERIFY(!readConfiguration(text, configuration).isEmpty());
    QVERIFY(configuration == before);
}

QTEST_GUILESS_MAIN(TestLaneConfigurationRead)
#include "tst_laneconfiguration_read.moc"
