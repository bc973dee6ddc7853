// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/fixedsize.h"

#include <QLayout>
#include <QWidget>

void fixDesignedSize(QWidget *window)
{
    window->setFixedSize(window->size().expandedTo(window->layout()->totalSizeHint()));
}
