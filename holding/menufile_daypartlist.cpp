// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"

#include <utility>

#include <QSignalBlocker>

#include "holding/daypartedit.h"
#include "ui_menufile.h"
#include "widgets/longtext.h"
#include "widgets/messages.h"

void MenuFile::loadDaypartSelector()
{
    const QSignalBlocker blocker(m_ui->comboDaypartSelect);
    m_ui->comboDaypartSelect->clear();
    for (int i = 0; i < m_menu.daypartCount; ++i)
        m_ui->comboDaypartSelect->addItem(beginningOf(shownName(m_menu.dayparts[i].names)));
    m_ui->btnDeleteDaypart->setEnabled(m_menu.daypartCount > 1);
}

void MenuFile::on_btnDeleteDaypart_clicked()
{
    const int index = m_ui->comboDaypartSelect->currentIndex();
    if (index < 0 || !messages::confirmDelete(this, tr("Delete selected daypart?")))
        return;
    m_menu.removeDaypart(index);
    loadDayparts();
    noteChange();
}

void MenuFile::on_btnEditDaypart_clicked()
{
    holding::Daypart *daypart = currentDaypart();
    if (!daypart)
        return;
    DaypartEdit dialog(daypart->names, this);
    if (dialog.exec() != Accepted)
        return;
    daypart->names = dialog.names();
    m_ui->comboDaypartSelect->setItemText(m_ui->comboDaypartSelect->currentIndex(),
                                          beginningOf(shownName(daypart->names)));
    loadCurrentDaypart();
    noteChange();
}

void MenuFile::on_btnAddDaypart_clicked()
{
    addDaypart({});
}

void MenuFile::duplicateDaypart()
{
    if (const holding::Daypart *source = currentDaypart())
        addDaypart(*source);
}

void MenuFile::addDaypart(holding::Daypart daypart)
{
    if (m_menu.daypartCount >= holding::maxDayparts) {
        messages::refusal(this, tr("Cannot add dayparts. Maximum dayparts reached!"));
        return;
    }
    DaypartEdit dialog(daypart.names, this);
    if (dialog.exec() != Accepted)
        return;
    daypart.names = dialog.names();
    m_menu.addDaypart(std::move(daypart));
    loadDaypartSelector();
    const QSignalBlocker blocker(m_ui->comboDaypartSelect);
    m_ui->comboDaypartSelect->setCurrentIndex(m_menu.daypartCount - 1);
    loadCurrentDaypart();
    noteChange();
}

void MenuFile::on_checkBoxDaypartInUse_stateChanged(int arg1)
{
    if (holding::Daypart *daypart = currentDaypart())
        daypart->inUse = arg1 == Qt::Checked;
    noteChange();
}
