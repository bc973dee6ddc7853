// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

/// Keeps the mouse wheel from changing number, time and combo boxes that do not have the focus: the wheel
/// scrolls what the editor lies in, and passes over them by chance. Call it after the form is built.
void needFocusForWheel(QWidget *editor);
