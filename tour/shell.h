// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tour/chapter.h"

/// The main window and what needs no menu.
class ShellChapter final : public Chapter
{
    Q_OBJECT

public:
    using Chapter::Chapter;

private slots:
    void startMaximized();
    void lookAtTheFileMenu();
    void lookAtTheAboutBox();
};
