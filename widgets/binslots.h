// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The slots of one button of a grid of bins, for the editor that owns it: what a BinGrid `m_grid` has to be
// told, and assignProductToBin() for the bin of a click. What else an editor's list says of the button is
// passed over.
// clang-format off
#define DECLARE_BIN_BUTTON_SLOTS(button, ...) \
    void on_##button##_pressed(); \
    void on_##button##_released(); \
    void on_##button##_clicked();
// clang-format on

#define DEFINE_BIN_BUTTON_SLOTS(Editor, button, ...)                                                         \
    void Editor::on_##button##_pressed()                                                                     \
    {                                                                                                        \
        m_grid.press(m_ui->button);                                                                          \
    }                                                                                                        \
    void Editor::on_##button##_released()                                                                    \
    {                                                                                                        \
        m_grid.release();                                                                                    \
    }                                                                                                        \
    void Editor::on_##button##_clicked()                                                                     \
    {                                                                                                        \
        if (const std::optional<Bin> bin = m_grid.clickedBin(m_ui->button))                                  \
            assignProductToBin(bin->row, bin->slot);                                                         \
    }
