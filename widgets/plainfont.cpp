// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/plainfont.h"

QFont plainFont(QFont font)
{
    font.setKerning(false);
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}
