// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QLocale>
#include <QRectF>
#include <QSizeF>
#include <QString>

/// The plan of a cabinet's bins that hangs beside it, as plain data: what a line says of its menu, and where
/// that stands on paper. Texts come from files and may be of any length; nothing here shortens them.
namespace binplan {

/// What a bin says. Without a name it is empty.
struct Content
{
    QString name;
    QString settings;  ///< temperatures and holding time
    QString colorName; ///< of the timer; empty for none
    int color = 0;     ///< 0xRRGGBB; means nothing without its name
    QString members;   ///< of a group, the default one first

    friend bool operator==(const Content &, const Content &) = default;
};

/// A zone's part of the width of the grid, which is 1.
struct Span
{
    qreal left = 0;
    qreal width = 1;
};
/// The left or the right one of two zones of these widths, in pixels of the editor's grid; 0 on the right for
/// one alone.
[[nodiscard]] Span zoneSpan(int leftWidth, int rightWidth, bool right);

/// A bin of the grid: rows are counted from the top, and the whole width of the grid is 1.
struct GridBin
{
    int row = 0;
    qreal left = 0;
    qreal right = 1;
    Content content;
};

struct Daypart
{
    QString name;
    QList<GridBin> bins; ///< those that show
};

/// What there is to draw.
struct Cabinet
{
    QString model;
    int rows = 0;
    int columns = 0;         ///< bins in a row, when all of them show
    QList<Daypart> dayparts; ///< a page each
};

enum class Paper { A4, Letter };
/// Letter in the territories where that is usual.
[[nodiscard]] Paper usualPaper(const QLocale &locale);

// From here on all lengths are in points, of which an inch has 72, from the top left corner of the page.

/// A text and the place that it must not leave. It is broken into lines where it wraps, then made smaller,
/// then elided.
struct Text
{
    QRectF place;
    QString text;
    qreal size = 0;         ///< of the type
    qreal smallestSize = 0; ///< down to which it is made smaller
    bool isBold = false;
    bool wraps = false;
    Qt::Alignment alignment = Qt::AlignCenter;

    friend bool operator==(const Text &, const Text &) = default;
};

/// How far apart lines of type of this size are.
[[nodiscard]] constexpr qreal lineStep(qreal size)
{
    return 1.3 * size;
}

/// A bin on paper.
struct Box
{
    QRectF place;
    QRectF swatch; ///< the part that has the timer's colour; null where there is none
    int color = 0; ///< 0xRRGGBB
    QList<Text> texts;

    [[nodiscard]] bool isEmpty() const { return texts.isEmpty(); }
};

struct Page
{
    QList<Text> heading;
    QList<Box> boxes;
};

struct Plan
{
    QString title;
    QSizeF pageSize; ///< as the pages are read
    QList<Page> pages;
};

/// `fileName` is the menu's; empty while it has none.
[[nodiscard]] Plan layOut(const Cabinet &cabinet, const QString &fileName, Paper paper);

} // namespace binplan
