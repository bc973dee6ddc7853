// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/binplanfile.h"

#include <algorithm>

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
constexpr qreal dotsPerPoint = dotsPerInch / 72.0;

constexpr qreal filledOutline = 1.5; ///< in points, as all widths of lines
constexpr qreal emptyOutline = 0.75;
constexpr QColor emptyColor(0x80, 0x80, 0x80);

QRectF inDots(const QRectF &place)
{
    return {place.topLeft() * dotsPerPoint, place.size() * dotsPerPoint};
}

/// A text as it is set: its lines in a font that they fit in.
struct Typeset
{
    QStringList lines;
    QFont font;
    qreal step = 0; ///< from line to line, in dots
};

QFont fontOf(const binplan::Text &text, qreal size)
{
    QFont font;
    font.setPixelSize(qMax(1, qRound(size * dotsPerPoint)));
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
        , m_room(text.place.size() * dotsPerPoint)
        , m_fullWidth(QFontMetricsF(fontOf(text, text.size)).horizontalAdvance(m_words))
    {}

    [[nodiscard]] Typeset typeset() const
    {
        const qreal smallest = m_text.smallestSize;
        for (int i = 0; i < attempts; ++i) {
            Typeset attempt = trySize(m_text.size + (smallest - m_text.size) * i / attempts);
            if (!attempt.lines.isEmpty())
                return attempt;
        }
        return elided();
    }

private:
    static constexpr int attempts = 5; ///< at sizes from its own one down

    [[nodiscard]] qsizetype mostLines(qreal size) const
    {
        constexpr qreal roundingError = 0.01;
        const qreal lines = m_room.height() / dotsPerPoint / binplan::lineStep(size) + roundingError;
        return m_text.wraps ? qMax<qsizetype>(static_cast<qsizetype>(lines), 1) : 1;
    }

    /// No lines where they do not fit.
    [[nodiscard]] Typeset trySize(qreal size) const
    {
        const qsizetype most = mostLines(size);
        if (m_fullWidth * size / m_text.size > static_cast<qreal>(most) * m_room.width())
            return {};
        const QFont font = fontOf(m_text, size);
        const BrokenText broken = breakText(m_words, font, m_room.width(),
                                            m_text.wraps ? QTextOption::WordWrap : QTextOption::NoWrap);
        if (broken.lines.size() > most || broken.widest > m_room.width())
            return {};
        return {broken.lines, font, binplan::lineStep(size) * dotsPerPoint};
    }

    [[nodiscard]] Typeset elided() const
    {
        const qreal size = m_text.smallestSize;
        const QFont font = fontOf(m_text, size);
        const qsizetype most = mostLines(size);
        QStringList lines =
            breakText(m_words, font, m_room.width(), QTextOption::WrapAtWordBoundaryOrAnywhere).lines;
        if (lines.size() > most) {
            const QString rest = lines.mid(most - 1).join(u' ');
            lines = lines.first(most - 1);
            lines.append(QFontMetricsF(font).elidedText(rest, Qt::ElideRight, m_room.width()));
        }
        return {lines, font, binplan::lineStep(size) * dotsPerPoint};
    }

    const binplan::Text &m_text;
    QString m_words;
    QSizeF m_room; ///< in dots
    qreal m_fullWidth;
};

void paintText(QPainter &painter, const binplan::Text &text)
{
    const Typeset typeset = Typesetter(text).typeset();
    const QRectF place = inDots(text.place);
    const qreal height = static_cast<qreal>(typeset.lines.size()) * typeset.step;
    constexpr int lineFlags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip;
    const int flags = lineFlags | static_cast<int>((text.alignment | Qt::AlignAbsolute).toInt());
    painter.setPen(Qt::black);
    painter.setFont(typeset.font);
    QRectF line(place.left(), place.center().y() - height / 2, place.width(), typeset.step);
    for (const QString &words : typeset.lines) {
        painter.drawText(line, flags, words);
        line.translate(0, typeset.step);
    }
}

void paintBox(QPainter &painter, const binplan::Box &box)
{
    const QRectF place = inDots(box.place);
    if (!box.swatch.isNull()) {
        painter.setPen(QPen(Qt::black, emptyOutline * dotsPerPoint));
        painter.setBrush(QColor::fromRgb(static_cast<QRgb>(box.color)));
        painter.drawRect(inDots(box.swatch));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(box.isEmpty() ? QPen(emptyColor, emptyOutline * dotsPerPoint, Qt::DashLine)
                                 : QPen(Qt::black, filledOutline * dotsPerPoint));
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
