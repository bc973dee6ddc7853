// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>

#include <QDialog>

#include "holding/timercolors.h"
#include "widgets/gridkeys.h"

class ColorButton;

namespace Ui {
class TimerColorPicker;
}

/// Lets the user pick one of the timer colours.
class TimerColorPicker final : public QDialog
{
    Q_OBJECT

public:
    explicit TimerColorPicker(QWidget *parent = nullptr);
    ~TimerColorPicker() override;

    /// Marks the colour that is picked so far, and starts there.
    void setCurrent(const QString &colorName);

    /// What was picked, an entry of the palette; null until an accepted run.
    [[nodiscard]] const holding::TimerColor *chosen() const { return m_chosen; }

public slots:
    void colorPick_clicked();

private:
    std::unique_ptr<Ui::TimerColorPicker> m_ui;
    std::array<std::array<ColorButton *, holding::paletteColumns>, holding::paletteRows> m_buttons{};
    GridKeys m_keys{GridKeys::TabStops::Each};
    const holding::TimerColor *m_chosen = nullptr;
};
