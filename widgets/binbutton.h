// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPushButton>

/// The button of a bin. Its text() is the name of what the bin holds, the full or the short one as the editor
/// chooses, drawn as it stands, ampersands included; where it does not fit, it is elided while painting. Its
/// size does not depend on the text, so that filling a grid never moves it.
class BinButton final : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The style sheet of bin buttons: grey while idle, darker while pressed or checked. For a container that
/// holds nothing else: on a whole editor it would double the cost of opening it.
[[nodiscard]] QString binButtonStyle();
