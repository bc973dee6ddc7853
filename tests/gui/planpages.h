// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>

#include <QImage>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "tests/support/require.h"
#include "tests/support/testfolder.h"

/// What another program than ours sees in a PDF file. Lengths are in points, from the top left corner.
namespace planpages {

using namespace Qt::StringLiterals;

struct Word
{
    int page = 0;
    QRectF place;
    QString text;
};

/// What a program writes to its standard output; one that fails ends the test.
inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    REQUIRE(process.waitForFinished(60'000), program + u": "_s + process.errorString());
    REQUIRE(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            QString::fromUtf8(process.readAllStandardError()));
    return process.readAllStandardOutput();
}

inline QList<Word> wordsIn(const QString &pdf)
{
    QXmlStreamReader xml(outputOf(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s}));
    QList<Word> words;
    int page = -1;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        page += xml.name() == "page"_L1 ? 1 : 0;
        if (xml.name() != "word"_L1)
            continue;
        const QXmlStreamAttributes at = xml.attributes();
        const QPointF topLeft(at.value("xMin"_L1).toDouble(), at.value("yMin"_L1).toDouble());
        const QPointF bottomRight(at.value("xMax"_L1).toDouble(), at.value("yMax"_L1).toDouble());
        words.append({page, QRectF(topLeft, bottomRight), xml.readElementText()});
    }
    REQUIRE(!xml.hasError(), xml.errorString());
    return words;
}

/// The words whose middle is in a place.
inline QList<Word> wordsAt(const QList<Word> &words, int page, const QRectF &place)
{
    QList<Word> found = words;
    found.removeIf(
        [&](const Word &word) { return word.page != page || !place.contains(word.place.center()); });
    return found;
}

/// Letters as they are written by themselves, without what only tells their direction.
inline QString plainLetters(const QString &text)
{
    static const QRegularExpression directions(u"[\\x{200E}\\x{200F}\\x{202A}-\\x{202E}]"_s);
    return text.normalized(QString::NormalizationForm_KC).remove(directions);
}

/// In the order of the alphabet, as the order of a text says nothing of its place.
inline QString sortedWords(const QStringList &texts)
{
    QStringList words;
    for (const QString &text : texts)
        words.append(plainLetters(text));
    words.removeAll(QString());
    words.sort();
    return words.join(u' ');
}

inline QString sortedTexts(const QList<Word> &words)
{
    QStringList texts;
    for (const Word &word : words)
        texts.append(word.text);
    return sortedWords(texts);
}

/// Likewise for what is written from the right: its words are told letter by letter.
inline QString sortedLetters(const QString &text)
{
    QString letters = plainLetters(text).remove(u' ');
    std::sort(letters.begin(), letters.end());
    return letters;
}

/// Dots a point of the pictures.
constexpr int pictureScale = 2;

inline QImage pictureOf(const QString &pdf, int page)
{
    const QString number = QString::number(page + 1);
    const TestFolder folder;
    outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(72 * pictureScale), u"-f"_s, number, u"-l"_s, number,
                             u"-singlefile"_s, u"-png"_s, pdf, folder.path(u"page"_s)});
    const QImage picture(folder.path(u"page.png"_s));
    REQUIRE(!picture.isNull());
    return picture;
}

/// The darkest gray in a place, from 0 to 255.
inline int darkestIn(const QImage &picture, const QRectF &place)
{
    const QRect dots(qRound(place.left() * pictureScale), qRound(place.top() * pictureScale),
                     qMax(1, qRound(place.width() * pictureScale)),
                     qMax(1, qRound(place.height() * pictureScale)));
    int darkest = 255;
    for (int y = dots.top(); y <= dots.bottom(); ++y) {
        for (int x = dots.left(); x <= dots.right(); ++x)
            darkest = qMin(darkest, qGray(picture.pixel(x, y)));
    }
    return darkest;
}

inline QColor colorAt(const QImage &picture, const QPointF &point)
{
    return picture.pixelColor((point * pictureScale).toPoint());
}

} // namespace planpages
