// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/inconsistencies.h"
#include "holding/menufile.h"
#include "ui_menufile.h"

Findings MenuFile::findings() const
{
    return holding::inconsistencies(m_menu);
}

QStringList MenuFile::textsOf(const QList<Finding> &findings) const
{
    return holding::findingTexts(findings, m_menu);
}

void MenuFile::goTo(const MenuPlace &place)
{
    switch (place.part) {
    case MenuPlace::Part::Products:
        m_ui->tabWidget->setCurrentWidget(m_ui->tabProducts);
        m_products.goTo(place.index);
        break;
    case MenuPlace::Part::Groups:
        m_ui->tabWidget->setCurrentWidget(m_ui->tabGroups);
        m_groups.goTo(place.index);
        break;
    case MenuPlace::Part::Bins:
        m_ui->tabWidget->setCurrentWidget(m_ui->tabDayparts);
        m_ui->comboDaypartSelect->setCurrentIndex(place.index);
        m_grid.setFocus(place.bin);
        break;
    }
}
