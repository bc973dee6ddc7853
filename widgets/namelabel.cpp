// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/namelabel.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>
#include <QtMath>

#include "model/shortened.h"

namespace {

constexpr int longestShownName = 4 * NameLabel::ordinaryLength;

// On one paragraph: a file may hold any characters.
QString shownPart(const QString &name)
{
    return shortened(name, longestShownName).replace(u'\n', u' ');
}

QTextOption wrapping()
{
    QTextOption option(Qt::AlignLeft | Qt::AlignVCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

} // namespace

NameLabel::NameLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true); // makes the layout ask for heightForWidth()
}

void NameLabel::setAskedLength(int characters)
{
    m_askedLength = characters;
    updateGeometry();
}

QSize NameLabel::sizeHint() const
{
    return minimumSizeHint();
}

QSize NameLabel::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {m_askedLength * metrics.averageCharWidth(), metrics.height()};
}

int NameLabel::heightForWidth(int width) const
{
    QTextLayout layout(shownPart(text()), font());
    layout.setTextOption(wrapping());
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        height += line.height();
    }
    layout.endLayout();
    return qMax(qCeil(height), fontMetrics().height());
}

void NameLabel::paintEvent([[maybe_unused]] QPaintEvent *event)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(QRectF(rect()), shownPart(text()), wrapping());
}
