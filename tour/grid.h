// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tour/chapter.h"

class AssignDaypartItem;

/// The day parts of holding cabinets: a grid is filled and cleared, every model shown, an old menu brought
/// along.
class GridChapter final : public Chapter
{
    Q_OBJECT

public:
    using Chapter::Chapter;

private slots:
    void openTheMenu();
    void fillBins();
    void clearABinByHolding();
    void saveAndReopen();
    void lookAtEveryModel_data();
    void lookAtEveryModel();
    void importAnOldMenu();

private:
    void assign(const char *button, int row);
};
