// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QDialog;

/// Lets Enter press the button that has the focus. A dialog's default button alone is auto-default, so that
/// Enter on a focused Cancel would save. Call it after the form is built.
void letEnterPressFocusedButton(QDialog *dialog);
