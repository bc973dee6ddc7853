// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/binplanfile.h"

#include <algorithm>
#include <array>

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>

#include "widgets/longtext.h"

using namespace Qt::StringLiterals;

namespace {

// So fine that rounding to whole dots shows nowhere.
constexpr int dotsPerInch = 1200;
constexpr qreal dots = dotsPerInch / 72.0; ///< a point

constexpr qreal filledOutline = 1.5; ///< in points, as all widths of lines
constexpr qreal emptyOutline = 0.75;
constexpr QColor emptyColor(0x80, 0x80, 0x80);

QRectF inDots(const QRectF &place)
{
    return {place.topLeft() * dots, place.size() * dots};
}

/// A text as it is set: its lines in a font that they fit in.
struct SetText
{
    QStringList lines;
    QFont font;
    qreal step = 0; ///< from line to line, in dots
};

QFont fontOf(const binplan::Text &text, qreal size)
{
    QFont font;
    font.setPixelSize(qMax(1, qRound(size * dots)));
    font.setBold(text.isBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

struct BrokenText
{
    QStringList lines;
    qreal widest = 0;
};

BrokenText breakText(const QString &text, const QFont &font, qreal width, QTextOption::WrapMode mode)
{
    QTextOption option;
    option.setWrapMode(mode);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    BrokenText broken;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        broken.lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
        broken.widest = qMax(broken.widest, line.naturalTextWidth());
    }
    layout.endLayout();
    return broken;
}

// A file may bring megabytes, and characters that break lines.
QString asWords(const QString &text)
{
    QString words = beginningOf(text);
    for (QChar &letter : words) {
        if (letter.category() == QChar::Other_Control || letter.category() == QChar::Separator_Line ||
            letter.category() == QChar::Separator_Paragraph)
            letter = u' ';
    }
    return words.trimmed();
}

/// Sets a text into its place.
class Typesetter
{
public:
    explicit Typesetter(const binplan::Text &text)
        : m_text(text)
        , m_words(asWords(text.text))
        , m_room(text.place.size() * dots)
        , m_fullWidth(QFontMetricsF(fontOf(text, text.size)).horizontalAdvance(m_words))
    {}

    [[nodiscard]] SetText set() const
    {
        constexpr std::array shares{1.0, 0.9, 0.8, 0.7, 0.6};
        for (const qreal share : shares) {
            SetText attempt = trySize(share * m_text.size);
            if (!attempt.lines.isEmpty())
                return attempt;
        }
        return setSmallest();
    }

private:
    [[nodiscard]] qsizetype mostLines(qreal size) const
    {
        constexpr qreal roundingError = 0.01;
        const qreal lines = m_room.height() / dots / binplan::lineStep(size) + roundingError;
        return m_text.wraps ? qMax<qsizetype>(static_cast<qsizetype>(lines), 1) : 1;
    }

    /// No lines where they do not fit.
    [[nodiscard]] SetText trySize(qreal size) const
    {
        const qsizetype most = mostLines(size);
        if (m_fullWidth * size / m_text.size > static_cast<qreal>(most) * m_room.width())
            return {};
        const QFont font = fontOf(m_text, size);
        const BrokenText broken = breakText(m_words, font, m_room.width(),
                                            m_text.wraps ? QTextOption::WordWrap : QTextOption::NoWrap);
        if (broken.lines.size() > most || broken.widest > m_room.width())
            return {};
        return {broken.lines, font, binplan::lineStep(size) * dots};
    }

    [[nodiscard]] SetText setSmallest() const
    {
        const qreal size = m_text.smallestSize();
        const QFont font = fontOf(m_text, size);
        const qsizetype most = mostLines(size);
        QStringList lines =
            breakText(m_words, font, m_room.width(), QTextOption::WrapAtWordBoundaryOrAnywhere).lines;
        if (lines.size() > most) {
            const QString rest = lines.mid(most - 1).join(u' ');
            lines = lines.first(most - 1);
            lines.append(QFontMetricsF(font).elidedText(rest, Qt::ElideRight, m_room.width()));
        }
        return {lines, font, binplan::lineStep(size) * dots};
    }

    const binplan::Text &m_text;
    QString m_words;
    QSizeF m_room; ///< in dots
    qreal m_fullWidth;
};

void paintText(QPainter &painter, const binplan::Text &text)
{
    const SetText set = Typesetter(text).set();
    const QRectF place = inDots(text.place);
    const qreal height = static_cast<qreal>(set.lines.size()) * set.step;
    constexpr int lineFlags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip;
    const int flags = lineFlags | static_cast<int>((text.alignment | Qt::AlignAbsolute).toInt());
    painter.setPen(Qt::black);
    painter.setFont(set.font);
    QRectF line(place.left(), place.center().y() - height / 2, place.width(), set.step);
    for (const QString &words : set.lines) {
        painter.drawText(line, flags, words);
        line.translate(0, set.step);
    }
}

void paintBox(QPainter &painter, const binplan::Box &box)
{
    const QRectF place = inDots(box.place);
    if (!box.swatch.isNull()) {
        painter.setPen(QPen(Qt::black, emptyOutline * dots));
        painter.setBrush(QColor::fromRgb(static_cast<QRgb>(box.color)));
        painter.drawRect(inDots(box.swatch));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(box.isEmpty() ? QPen(emptyColor, emptyOutline * dots, Qt::DashLine)
                                 : QPen(Qt::black, filledOutline * dots));
    painter.drawRect(place);
    for (const binplan::Text &text : box.texts)
        paintText(painter, text);
}

void paintPage(QPainter &painter, const binplan::Page &page)
{
    for (const binplan::Text &text : page.heading)
        paintText(painter, text);
    for (const binplan::Box &box : page.boxes)
        paintBox(painter, box);
}

QPageLayout pageLayout(const QSizeF &size)
{
    const bool upright = size.width() < size.height();
    const QPageSize paper((upright ? size : size.transposed()).toSize());
    return {paper, upright ? QPageLayout::Portrait : QPageLayout::Landscape, {}, QPageLayout::Point};
}

} // namespace

QByteArray pdfOf(const binplan::Plan &plan)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(plan.title);
        writer.setCreator(u"Varno Plexora"_s);
        writer.setResolution(dotsPerInch);
        writer.setPageLayout(pageLayout(plan.pageSize));
        QPainter painter(&writer);
        for (const binplan::Page &page : plan.pages) {
            if (&page != &plan.pages.constFirst())
                writer.newPage();
            paintPage(painter, page);
        }
    } // the painter ends the file
    return buffer.data();
}
