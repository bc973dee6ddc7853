// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/binbutton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include "widgets/longtext.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int leastHeight = 44;
constexpr int textMargin = 8; // on each side, the border of a checked button included

} // namespace

QSize BinButton::sizeHint() const
{
    return minimumSizeHint();
}

QSize BinButton::minimumSizeHint() const
{
    return {minimumWidth(), qMax(leastHeight, 2 * fontMetrics().height())};
}

void BinButton::paintEvent([[maybe_unused]] QPaintEvent *event)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = fontMetrics().elidedText(beginningOf(text()), Qt::ElideRight, width() - 2 * textMargin);
    option.text.replace(u'&', u"&&"_s); // styles draw one ampersand as an underline
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

QString binButtonStyle()
{
    // The texts are black in every palette, as the greys are the same in every palette.
    // The margin makes the gaps between bins that their layout has no room for.
    return u"QPushButton { background-color: LightGray; border: none; color: black; margin: 0 2px; }"
           "QPushButton:disabled { color: #505050; }"
           "QPushButton:focus { border: 1px dotted black; }"
           "QPushButton:pressed { background-color: DarkGrey; }"
           "QPushButton:checked { background-color: DarkGrey; border: 2px outset black; }"
           "QPushButton:checked:focus { text-decoration: underline; }"
           "QPushButton:hover:!pressed:!checked { background-color: Silver; }"_s;
}
