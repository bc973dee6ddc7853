// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <iterator>

#include <QSet>
#include <QTest>

#include "holding/timercolors.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;
using namespace holding;

namespace {

struct Expected
{
    const char *colorName;
    const char *textColorName;
    int color;
    int textColor;
};

constexpr Expected expectedPalette[] = {
    // clang-format off
    {"#fffffd", "#fffffd", 0xfffffd, 0x000000},
    {"#700000", "#000000", 0x700000, 0x000000},
    {"#a00000", "#000000", 0xa00000, 0x000000},
    {"#cf0000", "#000000", 0xcf0000, 0x000000},
    {"#ff0000", "#000000", 0xff0000, 0x000000},
    {"#ff3030", "#000000", 0xff3030, 0x000000},
    {"#ff6060", "#000000", 0xff6060, 0x000000},
    {"#ff9090", "#000000", 0xff9090, 0x000000},
    {"#ffc0c0", "#000000", 0xffc0c0, 0x000000},
    {"#402100", "#a0a0a0", 0x402100, 0xa0a0a0},
    {"#703a00", "#000000", 0x703a00, 0x000000},
    {"#a05000", "#000000", 0xa05000, 0x000000},
    {"#cf6800", "#000000", 0xcf6800, 0x000000},
    {"#ff8000", "#000000", 0xff8000, 0x000000},
    {"#ff9830", "#000000", 0xff9830, 0x000000},
    {"#ffb060", "#000000", 0xffb060, 0x000000},
    {"#ffc890", "#000000", 0xffc890, 0x000000},
    {"#ffdfc0", "#000000", 0xffdfc0, 0x000000},
    {"#404000", "#a0a0a0", 0x404000, 0xa0a0a0},
    {"#707000", "#000000", 0x707000, 0x000000},
    {"#a0a000", "#000000", 0xa0a000, 0x000000},
    {"#cfcf00", "#000000", 0xcfcf00, 0x000000},
    {"#ffff00", "#000000", 0xffff00, 0x000000},
    {"#ffff30", "#000000", 0xffff30, 0x000000},
    {"#ffff60", "#000000", 0xffff60, 0x000000},
    {"#ffff90", "#000000", 0xffff90, 0x000000},
    {"#ffffc0", "#000000", 0xffffc0, 0x000000},
    {"#004000", "#a0a0a0", 0x004000, 0xa0a0a0},
    {"#007000", "#000000", 0x007000, 0x000000},
    {"#00a000", "#000000", 0x00a000, 0x000000},
    {"#00cf00", "#000000", 0x00cf00, 0x000000},
    {"#00ff00", "#000000", 0x00ff00, 0x000000},
    {"#30ff30", "#000000", 0x30ff30, 0x000000},
    {"#60ff60", "#000000", 0x60ff60, 0x000000},
    {"#90ff90", "#000000", 0x90ff90, 0x000000},
    {"#c0ffc0", "#000000", 0xc0ffc0, 0x000000},
    {"#004040", "#a0a0a0", 0x004040, 0xa0a0a0},
    {"#007070", "#000000", 0x007070, 0x000000},
    {"#00a0a0", "#000000", 0x00a0a0, 0x000000},
    {"#00cfcf", "#000000", 0x00cfcf, 0x000000},
    {"#00ffff", "#000000", 0x00ffff, 0x000000},
    {"#30ffff", "#000000", 0x30ffff, 0x000000},
    {"#60ffff", "#000000", 0x60ffff, 0x000000},
    {"#90ffff", "#000000", 0x90ffff, 0x000000},
    {"#c0ffff", "#000000", 0xc0ffff, 0x000000},
    {"#000040", "#a0a0a0", 0x000040, 0xa0a0a0},
    {"#000070", "#a0a0a0", 0x000070, 0xa0a0a0},
    {"#0000a0", "#a0a0a0", 0x0000a0, 0xa0a0a0},
    {"#0000cf", "#a0a0a0", 0x0000cf, 0xa0a0a0},
    {"#0000ff", "#a0a0a0", 0x0000ff, 0xa0a0a0},
    {"#3030ff", "#a0a0a0", 0x3030ff, 0xa0a0a0},
    {"#6060ff", "#000000", 0x6060ff, 0x000000},
    {"#9090ff", "#000000", 0x9090ff, 0x000000},
    {"#c0c0ff", "#000000", 0xc0c0ff, 0x000000},
    {"#200040", "#a0a0a0", 0x200040, 0xa0a0a0},
    {"#380070", "#a0a0a0", 0x380070, 0xa0a0a0},
    {"#5000a0", "#a0a0a0", 0x5000a0, 0xa0a0a0},
    {"#6800cf", "#000000", 0x6800cf, 0x000000},
    {"#8000ff", "#000000", 0x8000ff, 0x000000},
    {"#9830ff", "#000000", 0x9830ff, 0x000000},
    {"#b060ff", "#000000", 0xb060ff, 0x000000},
    {"#c890ff", "#000000", 0xc890ff, 0x000000},
    {"#f4c0ff", "#000000", 0xf4c0ff, 0x000000},
    {"#400040", "#a0a0a0", 0x400040, 0xa0a0a0},
    {"#700070", "#a0a0a0", 0x700070, 0xa0a0a0},
    {"#a000a0", "#a0a0a0", 0xa000a0, 0xa0a0a0},
    {"#cf00cf", "#000000", 0xcf00cf, 0x000000},
    {"#ff00ff", "#000000", 0xff00ff, 0x000000},
    {"#ff30ff", "#000000", 0xff30ff, 0x000000},
    {"#ff60ff", "#000000", 0xff60ff, 0x000000},
    {"#ff90ff", "#000000", 0xff90ff, 0x000000},
    {"#ffc0ff", "#000000", 0xffc0ff, 0x000000},
    {"#000000", "#a0a0a0", 0x000000, 0xa0a0a0},
    {"#202020", "#a0a0a0", 0x202020, 0xa0a0a0},
    {"#404040", "#a0a0a0", 0x404040, 0xa0a0a0},
    {"#606060", "#000000", 0x606060, 0x000000},
    {"#808080", "#000000", 0x808080, 0x000000},
    {"#a0a0a0", "#000000", 0xa0a0a0, 0x000000},
    {"#c0c0c0", "#000000", 0xc0c0c0, 0x000000},
    {"#dfdfdf", "#000000", 0xdfdfdf, 0x000000},
    {"#ffffff", "#000000", 0xffffff, 0x000000},
    // clang-format on
};

} // namespace

class TestTimerColors : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void palette_data();
    void palette();
    void onlyFirstIsNone();
    void unknownNames_data();
    void unknownNames();
    void words_data();
    void words();
    void wordsTellColorsApart();
};

void TestTimerColors::palette_data()
{
    QTest::addColumn<int>("index");
    QCOMPARE(int(std::size(expectedPalette)), 81);
    for (int i = 0; i < 81; ++i)
        QTest::addRow("row %d, column %d", i / paletteColumns, i % paletteColumns) << i;
}

void TestTimerColors::palette()
{
    QFETCH(int, index);
    const Expected &expected = expectedPalette[index];
    const TimerColor &entry = timerPalette().at(static_cast<std::size_t>(index));
    QCOMPARE(entry.colorName, QLatin1StringView(expected.colorName));
    QCOMPARE(entry.textColorName, QLatin1StringView(expected.textColorName));
    QCOMPARE(entry.color, expected.color);
    QCOMPARE(entry.textColor, expected.textColor);
    QCOMPARE(&timerColorByName(QString::fromLatin1(expected.colorName)), &entry);
}

void TestTimerColors::onlyFirstIsNone()
{
    QCOMPARE(timerPalette().size(), std::size_t(81));
    QSet<QString> names;
    for (const TimerColor &entry : timerPalette()) {
        QCOMPARE(entry.isNone(), &entry == &timerPalette().front());
        names.insert(entry.colorName);
    }
    QCOMPARE(names.size(), 81);
}

void TestTimerColors::unknownNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("no colour itself") << u"#fffffd"_s;
    QTest::newRow("upper case") << u"#FF0000"_s;
    QTest::newRow("without its sign") << u"ff0000"_s;
    QTest::newRow("blank behind") << u"#ff0000 "_s;
    QTest::newRow("regular step that is none") << u"#d00000"_s;
    QTest::newRow("beside a colour") << u"#ff0001"_s;
    QTest::newRow("word for a colour") << u"red"_s;
}

void TestTimerColors::unknownNames()
{
    QFETCH(QString, name);
    QCOMPARE(&timerColorByName(name), &timerPalette().front());
}

void TestTimerColors::words_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("words");
    QTest::newRow("none") << 0 << u"No color"_s;
    QTest::newRow("first") << 1 << u"dark red, #700000"_s;
    QTest::newRow("end of the row") << 8 << u"pale red, #ffc0c0"_s;
    QTest::newRow("darkest") << 9 << u"very dark orange, #402100"_s;
    QTest::newRow("full") << 49 << u"full blue, #0000ff"_s;
    QTest::newRow("last but one row") << 66 << u"medium magenta, #cf00cf"_s;
    QTest::newRow("black") << 72 << u"black, #000000"_s;
    QTest::newRow("gray") << 76 << u"gray, #808080"_s;
    QTest::newRow("white") << 80 << u"white, #ffffff"_s;
}

void TestTimerColors::words()
{
    QFETCH(const int, index);
    QFETCH(const QString, words);
    const TimerColor &color = timerPalette()[std::size_t(index)];
    QCOMPARE(colorWords(color), words);
    QCOMPARE(shadeName(color), words.section(u',', 0, 0));
}

void TestTimerColors::wordsTellColorsApart()
{
    QSet<QString> words;
    for (const TimerColor &entry : timerPalette())
        words.insert(colorWords(entry).section(u',', 0, 0));
    QCOMPARE(words.size(), 81);
}

QTEST_APPLESS_MAIN(TestTimerColors)
#include "tst_timercolors.moc"
