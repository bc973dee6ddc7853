// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/find.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestSearched = 500; // in characters

// What nobody types: accents, and what pasted names have unseen, such as soft hyphens and direction marks.
// The voiced sound marks of kana make other letters of them and are no accents.
bool isPassedOver(QChar character)
{
    if (character == u'\u3099' || character == u'\u309A')
        return false;
    const QChar::Category category = character.category();
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing ||
           category == QChar::Other_Format;
}

// Letters of the menu languages that Qt leaves as they are.
void replaceLigaturesAndStrokes(QString &text)
{
    const bool isPlain =
        std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x80; });
    if (isPlain)
        return;
    text.replace(u'\u00DF', "ss"_L1); // German
    text.replace(u'\u0142', u'l');    // Polish
    text.replace(u'\u00F8', u'o');
    text.replace(u'\u0153', "oe"_L1); // French
    text.replace(u'\u00E6', "ae"_L1);
}

QString folded(QStringView text)
{
    QString plain = text.toString().normalized(QString::NormalizationForm_KD);
    plain.removeIf(isPassedOver);
    plain = plain.toCaseFolded();
    replaceLigaturesAndStrokes(plain);
    return plain;
}

} // namespace

QStringList findWords(const QString &typed)
{
    return folded(QStringView(typed).left(longestSearched)).simplified().split(u' ', Qt::SkipEmptyParts);
}

bool matchesFind(const QStringList &words, QStringView name, int number)
{
    if (words.isEmpty())
        return true;
    const QString shown = folded(name.left(longestSearched));
    const QString digits = QString::number(number);
    return std::all_of(words.begin(), words.end(),
                       [&](const QString &word) { return shown.contains(word) || digits.contains(word); });
}
