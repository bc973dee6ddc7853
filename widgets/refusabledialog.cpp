// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/refusabledialog.h"

#include "widgets/messages.h"

int RefusableDialog::exec()
{
    return m_refused ? Rejected : QDialog::exec();
}

void RefusableDialog::refuse(const QString &message)
{
    messages::refusal(parentWidget(), message);
    m_refused = true;
    reject();
}
