// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

/// Fixes a dialog's or an editor's size to its designed geometry, grown to what its layout needs where the
/// running font is larger than the designer's. Call it after the form is built, and again where rows were
/// shown that the design does not count.
void fixDesignedSize(QWidget *window);
