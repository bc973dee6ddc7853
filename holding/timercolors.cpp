// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/timercolors.h"

#include <algorithm>
#include <unordered_map>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

constexpr int noColor = 0xfffffd;
constexpr int black = 0x000000;
constexpr int grey = 0xa0a0a0;

struct Shade
{
    int color = noColor;
    int text = black;
};

// The steps are not regular (cf rather than d0, 402100, f4c0ff, dfdfdf): cabinets know exactly these.
constexpr std::array<Shade, paletteRows * paletteColumns> shades{{
    // clang-format off
    {noColor}, {0x700000}, {0xa00000}, {0xcf0000}, {0xff0000}, {0xff3030}, {0xff6060}, {0xff9090}, {0xffc0c0},
    {0x402100, grey}, {0x703a00}, {0xa05000}, {0xcf6800}, {0xff8000}, {0xff9830}, {0xffb060}, {0xffc890}, {0xffdfc0},
    {0x404000, grey}, {0x707000}, {0xa0a000}, {0xcfcf00}, {0xffff00}, {0xffff30}, {0xffff60}, {0xffff90}, {0xffffc0},
    {0x004000, grey}, {0x007000}, {0x00a000}, {0x00cf00}, {0x00ff00}, {0x30ff30}, {0x60ff60}, {0x90ff90}, {0xc0ffc0},
    {0x004040, grey}, {0x007070}, {0x00a0a0}, {0x00cfcf}, {0x00ffff}, {0x30ffff}, {0x60ffff}, {0x90ffff}, {0xc0ffff},
    {0x000040, grey}, {0x000070, grey}, {0x0000a0, grey}, {0x0000cf, grey}, {0x0000ff, grey}, {0x3030ff, grey}, {0x6060ff}, {0x9090ff}, {0xc0c0ff},
    {0x200040, grey}, {0x380070, grey}, {0x5000a0, grey}, {0x6800cf}, {0x8000ff}, {0x9830ff}, {0xb060ff}, {0xc890ff}, {0xf4c0ff},
    {0x400040, grey}, {0x700070, grey}, {0xa000a0, grey}, {0xcf00cf}, {0xff00ff}, {0xff30ff}, {0xff60ff}, {0xff90ff}, {0xffc0ff},
    {0x000000, grey}, {0x202020, grey}, {0x404040, grey}, {0x606060}, {0x808080}, {0xa0a0a0}, {0xc0c0c0}, {0xdfdfdf}, {0xffffff},
    // clang-format on
}};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimerColors)
};

// The columns go from dark to light, the last row through the greys.
constexpr std::array<const char *, paletteColumns> shadeWords{
    QT_TRANSLATE_NOOP("TimerColors", "very dark %1"),   QT_TRANSLATE_NOOP("TimerColors", "dark %1"),
    QT_TRANSLATE_NOOP("TimerColors", "medium dark %1"), QT_TRANSLATE_NOOP("TimerColors", "medium %1"),
    QT_TRANSLATE_NOOP("TimerColors", "full %1"),        QT_TRANSLATE_NOOP("TimerColors", "bright %1"),
    QT_TRANSLATE_NOOP("TimerColors", "light %1"),       QT_TRANSLATE_NOOP("TimerColors", "very light %1"),
    QT_TRANSLATE_NOOP("TimerColors", "pale %1")};
constexpr std::array<const char *, paletteRows - 1> hueWords{
    QT_TRANSLATE_NOOP("TimerColors", "red"),    QT_TRANSLATE_NOOP("TimerColors", "orange"),
    QT_TRANSLATE_NOOP("TimerColors", "yellow"), QT_TRANSLATE_NOOP("TimerColors", "green"),
    QT_TRANSLATE_NOOP("TimerColors", "cyan"),   QT_TRANSLATE_NOOP("TimerColors", "blue"),
    QT_TRANSLATE_NOOP("TimerColors", "violet"), QT_TRANSLATE_NOOP("TimerColors", "magenta")};
constexpr std::array<const char *, paletteColumns> greyWords{
    QT_TRANSLATE_NOOP("TimerColors", "black"),
    QT_TRANSLATE_NOOP("TimerColors", "blackish gray"),
    QT_TRANSLATE_NOOP("TimerColors", "very dark gray"),
    QT_TRANSLATE_NOOP("TimerColors", "dark gray"),
    QT_TRANSLATE_NOOP("TimerColors", "gray"),
    QT_TRANSLATE_NOOP("TimerColors", "light gray"),
    QT_TRANSLATE_NOOP("TimerColors", "very light gray"),
    QT_TRANSLATE_NOOP("TimerColors", "pale gray"),
    QT_TRANSLATE_NOOP("TimerColors", "white")};

QString wordsAt(std::size_t row, std::size_t column)
{
    return row < hueWords.size() ? Text::tr(shadeWords[column]).arg(Text::tr(hueWords[row]))
                                 : Text::tr(greyWords[column]);
}

QString nameOf(int color)
{
    return u"#%1"_s.arg(color, 6, 16, QLatin1Char('0'));
}

TimerPalette makePalette()
{
    TimerPalette palette;
    std::transform(shades.begin(), shades.end(), palette.begin(), [](const Shade &shade) {
        // The no-colour entry names its marker as the text colour too; as a number its text is black.
        const int textName = shade.color == noColor ? noColor : shade.text;
        return TimerColor{nameOf(textName), nameOf(shade.color), shade.text, shade.color};
    });
    return palette;
}

} // namespace

bool TimerColor::isNone() const
{
    return color == noColor;
}

const TimerPalette &timerPalette()
{
    static const TimerPalette palette = makePalette();
    return palette;
}

QString shadeName(const TimerColor &entry)
{
    if (entry.isNone())
        return Text::tr("No color");
    const TimerPalette &palette = timerPalette();
    const auto *found = std::find_if(palette.begin(), palette.end(),
                                     [&](const TimerColor &each) { return each.color == entry.color; });
    if (found == palette.end())
        return entry.colorName;
    const auto place = static_cast<std::size_t>(found - palette.begin());
    return wordsAt(place / paletteColumns, place % paletteColumns);
}

QString colorWords(const TimerColor &entry)
{
    QString shade = shadeName(entry);
    if (entry.isNone() || shade == entry.colorName)
        return shade;
    return Text::tr("%1, %2").arg(shade, entry.colorName);
}

// Every product of a menu that is opened asks for its own.
const TimerColor &timerColorByName(const QString &colorName)
{
    static const std::unordered_map<QString, const TimerColor *> byName = [] {
        std::unordered_map<QString, const TimerColor *> all;
        for (const TimerColor &entry : timerPalette())
            all.emplace(entry.colorName, &entry);
        return all;
    }();
    const auto found = byName.find(colorName);
    return found == byName.end() ? timerPalette().front() : *found->second;
}

} // namespace holding
