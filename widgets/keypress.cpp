// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/keypress.h"

#include <QKeyEvent>

namespace keypress {

bool isEnter(const QKeyEvent &press)
{
    return press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
}

bool isUnmodified(const QKeyEvent &press)
{
    return !(press.modifiers() & ~Qt::KeypadModifier);
}

bool isCommand(const QKeyEvent &press)
{
    return press.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool isTyped(const QKeyEvent &press)
{
    return !isCommand(press) && !press.text().isEmpty() && press.text().front().isPrint();
}

} // namespace keypress
