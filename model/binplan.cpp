// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/binplan.h"

#include <algorithm>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace binplan {

namespace {

struct Label
{
    Q_DECLARE_TR_FUNCTIONS(BinPlan)
};

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

QList<Text> headingOf(const Cabinet &cabinet, const Daypart &daypart, qreal pageWidth)
{
    const QRectF all(margin, margin, pageWidth - 2 * margin, headingHeight);
    const qreal half = headingHeight / 2;
    QRectF left = all;
    left.setWidth(daypartShare * all.width());
    QRectF right = all;
    right.setLeft(left.right() + padding);
    right.setHeight(half);
    constexpr Qt::Alignment atTheEnd = Qt::AlignRight | Qt::AlignVCenter;
    QList<Text> texts{{left, daypart.name, daypartSize, true, false, Qt::AlignLeft | Qt::AlignVCenter}};
    if (!cabinet.fileName.isEmpty())
        texts.append({right, cabinet.fileName, remarkSize, false, false, atTheEnd});
    texts.append({right.translated(0, half), cabinet.model, remarkSize, false, false, atTheEnd});
    return texts;
}

/// Gives out the room of a bin from the top.
class Room
{
public:
    explicit Room(const QRectF &room)
        : m_room(room)
    {}

    [[nodiscard]] qreal height() const { return m_room.height(); }
    [[nodiscard]] QRectF take(qreal height)
    {
        QRectF taken = m_room;
        taken.setHeight(height);
        m_room.setTop(taken.bottom());
        return taken;
    }

private:
    QRectF m_room;
};

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
    Room room(place);
    if (membersStep <= 0) // in the middle
        (void)room.take((place.height() - nameHeight - settingsHeight - colorHeight) / 2);
    QList<Text> texts{{room.take(nameHeight), content.name, size, true, true}};
    if (settingsHeight > 0)
        texts.append({room.take(settingsHeight), content.settings, settingsSize * size});
    if (colorHeight > 0)
        texts.append({room.take(colorHeight), content.colorName, colorSize * size});
    if (membersStep > 0)
        texts.append({room.take(room.height()), content.members, membersSize * size, false, true});
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

Page pageOf(const Cabinet &cabinet, const Daypart &daypart, const QSizeF &size)
{
    Page page{headingOf(cabinet, daypart, size.width()), {}};
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
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? Paper::Letter : Paper::A4;
}

Plan layOut(const Cabinet &cabinet, Paper paper)
{
    const QSizeF upright = sizeOf(paper);
    Plan plan{Label::tr("Bin Plan"), isUpright(cabinet) ? upright : upright.transposed(), {}};
    if (!cabinet.fileName.isEmpty())
        plan.title = Label::tr("Bin Plan - %1").arg(cabinet.fileName);
    for (const Daypart &daypart : cabinet.dayparts)
        plan.pages.append(pageOf(cabinet, daypart, plan.pageSize));
    return plan;
}

} // namespace binplan
