// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tour/chapter.h"

/// A lane configuration from New to its two files.
class LanesChapter final : public Chapter
{
    Q_OBJECT

public:
    using Chapter::Chapter;

private slots:
    void createConfiguration();
    void changeLanes();
    void saveAndReopen();
};
