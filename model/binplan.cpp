// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/binplan.h"

#include <algorithm>
#include <array>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace binplan {

namespace {

struct Label
{
    Q_DECLARE_TR_FUNCTIONS(BinPlan)
};

// Where Letter is the usual paper by the Unicode Common Locale Data Repository.
constexpr std::array letterTerritories{
    QLocale::Belize,     QLocale::Canada,     QLocale::Chile,        QLocale::Colombia, QLocale::CostaRica,
    QLocale::Guatemala,  QLocale::Mexico,     QLocale::Nicaragua,    QLocale::Panama,   QLocale::Philippines,
    QLocale::PuertoRico, QLocale::ElSalvador, QLocale::UnitedStates, QLocale::Venezuela};

constexpr int zoneGap = 16; // in pixels, as in the editors' forms

// All in points. No printer needs more of a margin.
constexpr qreal margin = 28;
constexpr qreal headingHeight = 44;
constexpr qreal daypartSize = 30;
constexpr qreal remarkSize = 15;
constexpr qreal daypartShare = 0.6; ///< of the heading's width
constexpr qreal gapBelowHeading = 8;
constexpr qreal binGap = 4;
constexpr qreal padding = 6;
constexpr qreal swatchWidth = 14;
constexpr qreal largestName = 36;

// Sizes of type beside that of the name. What matters across a room is large.
constexpr qreal settingsSize = 0.8;
constexpr qreal colorSize = 0.6;
constexpr qreal membersSize = 0.55;
// The least sizes that texts are made smaller to: what has to be read from two metres, and what may ask for a
// step nearer.
constexpr qreal smallestAcross = 12;
constexpr qreal smallestNear = 7;

constexpr int nameLines = 2;
constexpr int fewestMemberLines = 2;

QSizeF sizeOf(Paper paper)
{
    return paper == Paper::Letter ? QSizeF(612, 792) : QSizeF(595, 842);
}

// Bins are rather wide than high, as names are.
bool isUpright(const Cabinet &cabinet)
{
    return cabinet.rows >= 2 * cabinet.columns;
}

/// A text that is made smaller down to half its size, and not below `least`.
Text textOf(const QRectF &place, const QString &text, qreal size, qreal least)
{
    return {.place = place,
            .text = text,
            .size = size,
            .smallestSize = std::min(size, std::max(size / 2, least))};
}

QList<Text> headingOf(const Cabinet &cabinet, const QString &fileName, const Daypart &daypart,
                      qreal pageWidth)
{
    const QRectF all(margin, margin, pageWidth - 2 * margin, headingHeight);
    const qreal half = headingHeight / 2;
    QRectF left = all;
    left.setWidth(daypartShare * all.width());
    QRectF right = all;
    right.setLeft(left.right() + padding);
    right.setHeight(half);
    Text title = textOf(left, daypart.name, daypartSize, smallestAcross);
    title.isBold = true;
    title.alignment = Qt::AlignLeft | Qt::AlignVCenter;
    QList<Text> texts{title};
    const auto addRemark = [&texts](const QRectF &place, const QString &text) {
        texts.append(textOf(place, text, remarkSize, smallestNear));
        texts.last().alignment = Qt::AlignRight | Qt::AlignVCenter;
    };
    if (!fileName.isEmpty())
        addRemark(right, fileName);
    addRemark(right.translated(0, half), cabinet.model);
    return texts;
}

/// Cuts a strip off the top.
QRectF cutTop(QRectF &room, qreal height)
{
    QRectF strip = room;
    strip.setHeight(height);
    room.setTop(strip.bottom());
    return strip;
}

// A name of two lines, the settings and the colour fill a bin.
qreal nameSizeFor(qreal height)
{
    return std::min(largestName, height / lineStep(nameLines + settingsSize + colorSize));
}

QList<Text> textsOf(const Content &content, const QRectF &place)
{
    const qreal size = nameSizeFor(place.height());
    const qreal settingsHeight = content.settings.isEmpty() ? 0 : lineStep(settingsSize * size);
    const qreal colorHeight = content.colorName.isEmpty() ? 0 : lineStep(colorSize * size);
    const qreal membersStep = content.members.isEmpty() ? 0 : lineStep(membersSize * size);
    const qreal nameRoom = place.height() - settingsHeight - colorHeight - fewestMemberLines * membersStep;
    const qreal nameHeight = nameRoom < lineStep(nameLines * size) && membersStep > 0
                                 ? lineStep(size)
                                 : lineStep(nameLines * size);
    QRectF room = place;
    if (membersStep <= 0) // in the middle
        room.setTop(place.center().y() - (nameHeight + settingsHeight + colorHeight) / 2);
    QList<Text> texts{textOf(cutTop(room, nameHeight), content.name, size, smallestAcross)};
    texts.last().isBold = true;
    texts.last().wraps = true;
    if (settingsHeight > 0)
        texts.append(
            textOf(cutTop(room, settingsHeight), content.settings, settingsSize * size, smallestAcross));
    if (colorHeight > 0)
        texts.append(textOf(cutTop(room, colorHeight), content.colorName, colorSize * size, smallestNear));
    if (membersStep > 0) {
        texts.append(textOf(room, content.members, membersSize * size, smallestNear));
        texts.last().wraps = true;
    }
    return texts;
}

Box boxOf(const Content &content, const QRectF &place)
{
    Box box{place, {}, content.color, {}};
    if (content.name.isEmpty())
        return box;
    QRectF inside = place;
    if (!content.colorName.isEmpty()) {
        box.swatch = place;
        box.swatch.setWidth(swatchWidth);
        inside.setLeft(box.swatch.right());
    }
    box.texts = textsOf(content, inside.adjusted(padding, padding, -padding, -padding));
    return box;
}

Page pageOf(const Cabinet &cabinet, const QString &fileName, const Daypart &daypart, const QSizeF &size)
{
    Page page{headingOf(cabinet, fileName, daypart, size.width()), {}};
    const qreal top = margin + headingHeight + gapBelowHeading;
    const QRectF grid(margin, top, size.width() - 2 * margin, size.height() - margin - top);
    const qreal rowHeight = grid.height() / cabinet.rows;
    constexpr qreal gap = binGap / 2;
    for (const GridBin &bin : daypart.bins) {
        const QRectF place(grid.left() + bin.left * grid.width(), grid.top() + bin.row * rowHeight,
                           (bin.right - bin.left) * grid.width(), rowHeight);
        page.boxes.append(boxOf(bin.content, place.adjusted(gap, gap, -gap, -gap)));
    }
    return page;
}

} // namespace

Paper usualPaper(const QLocale &locale)
{
    const bool isLetter = std::find(letterTerritories.begin(), letterTerritories.end(), locale.territory()) !=
                          letterTerritories.end();
    return isLetter ? Paper::Letter : Paper::A4;
}

Span zoneSpan(int leftWidth, int rightWidth, bool right)
{
    if (rightWidth == 0)
        return {};
    const qreal all = leftWidth + zoneGap + rightWidth;
    return right ? Span{(leftWidth + zoneGap) / all, rightWidth / all} : Span{0, leftWidth / all};
}

Plan layOut(const Cabinet &cabinet, const QString &fileName, Paper paper)
{
    const QSizeF upright = sizeOf(paper);
    Plan plan{Label::tr("Bin Plan"), isUpright(cabinet) ? upright : upright.transposed(), {}};
    if (!fileName.isEmpty())
        plan.title = Label::tr("Bin Plan - %1").arg(fileName);
    for (const Daypart &daypart : cabinet.dayparts)
        plan.pages.append(pageOf(cabinet, fileName, daypart, plan.pageSize));
    return plan;
}

} // namespace binplan
