// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tour/chapter.h"

/// A Timer Bar menu from New to a file that opens as it was saved.
class TimerBarChapter final : public Chapter
{
    Q_OBJECT

public:
    using Chapter::Chapter;

private slots:
    void createMenu();
    void editProduct();
    void fillAndClearBins();
    void saveAndReopen();
    void lookAtEveryModel_data();
    void lookAtEveryModel();
};
