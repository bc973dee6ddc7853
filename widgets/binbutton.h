// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QPushButton>

class QTabWidget;

/// What a bin is written in. To look fonts up costs as much as to paint a text in them.
struct BinFonts
{
    explicit BinFonts(const QFont &font);

    QFont name;
    QFont details;
    QFontMetrics nameMetrics;
    QFontMetrics detailsMetrics;
};

/// The button of a bin. Its text() is the name of what the bin holds, the full or the short one as the editor
/// chooses, drawn as it stands, ampersands included, on up to two lines; what does not fit is elided while
/// painting. Its size does not depend on the text, so that filling a grid never moves it; it takes what
/// height there is.
class BinButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit BinButton(QWidget *parent = nullptr);

    /// What stands below the name in smaller type, where there is room; not part of text().
    void setDetails(const QString &details);
    [[nodiscard]] const QString &details() const { return m_details; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] const BinFonts &fonts() const;
    void paintTexts(QPainter &painter) const;

    QString m_details;
    mutable std::optional<BinFonts> m_fonts; ///< of the current font, once they were asked for
};

/// Gives a frame of bin buttons on a page of the tabs its style sheet when the page is first shown: a dark
/// panel with grey bins, darker while pressed or checked, and white captions. The frame holds nothing else.
void styleWhenShown(QWidget *frame, QWidget *page, QTabWidget *tabs);
