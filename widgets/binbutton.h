// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPushButton>

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
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_details;
};

/// The style sheet of a frame of bin buttons: a dark panel with grey bins, darker while pressed or checked,
/// and white captions. For a frame that holds nothing else: on a whole editor it would double the cost of
/// opening it.
[[nodiscard]] QString binButtonStyle();
