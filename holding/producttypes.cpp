// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/producttypes.h"

#include <array>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace holding {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProductTypes)
};

/// A word that menus store and the text that stands for it, still to be translated.
struct Type
{
    QLatin1StringView word;
    const char *text;
};

constexpr auto lids = std::to_array<Type>({
    {"None"_L1, QT_TRANSLATE_NOOP("ProductTypes", "None")},
    {"Solid"_L1, QT_TRANSLATE_NOOP("ProductTypes", "Solid")},
    {"Vented"_L1, QT_TRANSLATE_NOOP("ProductTypes", "Vented")},
});
constexpr int noLid = 0;

constexpr auto bottoms = std::to_array<Type>({
    {"False"_L1, QT_TRANSLATE_NOOP("ProductTypes", "False")},
    {"Normal"_L1, QT_TRANSLATE_NOOP("ProductTypes", "Normal")},
});
constexpr int normalBottom = 1;

template <typename Types>
QStringList wordsOf(const Types &types)
{
    QStringList words;
    for (const Type &type : types)
        words.append(type.word);
    return words;
}

template <typename Types>
QStringList textsOf(const Types &types)
{
    QStringList texts;
    for (const Type &type : types)
        texts.append(Text::tr(type.text));
    return texts;
}

int indexIn(const QStringList &words, const QString &word, int fallback)
{
    const auto index = words.indexOf(word);
    return index < 0 ? fallback : static_cast<int>(index);
}

} // namespace

const QStringList &lidTypes()
{
    static const QStringList words = wordsOf(lids);
    return words;
}

QStringList lidTexts()
{
    return textsOf(lids);
}

int lidIndex(const QString &lidType)
{
    return indexIn(lidTypes(), lidType, noLid);
}

QString lidText(const QString &lidType)
{
    return lidTexts().at(lidIndex(lidType));
}

const QStringList &bottomTypes()
{
    static const QStringList words = wordsOf(bottoms);
    return words;
}

QStringList bottomTexts()
{
    return textsOf(bottoms);
}

int bottomIndex(const QString &bottomType)
{
    return indexIn(bottomTypes(), bottomType, normalBottom);
}

QString bottomText(const QString &bottomType)
{
    return bottomTexts().at(bottomIndex(bottomType));
}

} // namespace holding
