// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"

#include "holding/groupedit.h"
#include "holding/newentries.h"
#include "holding/settings.h"
#include "ui_menufile.h"
#include "widgets/messages.h"
#include "widgets/numberedrows.h"

ProductInfo *MenuFile::currentGroup() const
{
    return entryAt(m_menu.groups, m_groups.currentRow());
}

QList<ProductInfo *> MenuFile::getMenuGroups()
{
    return pointersTo(m_menu.groups);
}

void MenuFile::loadGroups()
{
    m_groups.showNames(namesOf(m_menu.groups));
}

void MenuFile::loadGroupInfo()
{
    m_ui->detailsGroup->showEntry(currentGroup(), m_menu.configuration);
    m_groups.updateButtons();
    loadGroupMembers();
}

// The members in the group's order, the default one ticked. A member whose product is missing has no row.
void MenuFile::loadGroupMembers()
{
    m_ui->listWidgetMembers->clear();
    const ProductInfo *group = currentGroup();
    if (!group)
        return;
    const QList<int> members = group->get_productList();
    for (int position = 0; position < members.size(); ++position) {
        const ProductInfo *member = m_menu.product(members[position]);
        if (!member)
            continue;
        QListWidgetItem *item =
            numberedrows::append(m_ui->listWidgetMembers, position + 1, shownName(member->get_productName()));
        item->setFlags(Qt::ItemIsEnabled);
        item->setCheckState(position == group->get_defaultIndex() ? Qt::Checked : Qt::Unchecked);
    }
}

void MenuFile::addGroup(std::unique_ptr<ProductInfo> group)
{
    const int row = static_cast<int>(m_menu.groups.size());
    if (GroupEdit(*group, this).exec() != Accepted)
        return;
    m_menu.groups.push_back(std::move(group));
    m_groups.setCurrentRow(row);
    loadGroups();
    loadGroupInfo();
    loadCurrentDaypart();
}

void MenuFile::on_btnAddGroup_clicked()
{
    if (!refuseWhenFull(tr("Cannot add groups. Maximum products and groups reached!")))
        addGroup(holding::newGroup(m_menu.nextFreeId()));
}

void MenuFile::on_btnDuplicateGroup_clicked()
{
    if (refuseWhenFull(tr("Cannot add groups. Maximum products and groups reached!")))
        return;
    if (const ProductInfo *source = currentGroup())
        addGroup(holding::duplicateOf(*source, m_menu.nextFreeId()));
}

void MenuFile::on_btnEditGroup_clicked()
{
    ProductInfo *group = currentGroup();
    if (!group || m_groups.isMultiSelecting())
        return;
    const holding::HoldingSettings before = holding::groupBinSettings(*group, getFanSpeedEnabled());
    if (GroupEdit(*group, this).exec() != Accepted)
        return;
    const bool changed = holding::groupBinSettings(*group, getFanSpeedEnabled()) != before;
    const bool leftDayparts = changed && removeIdFromAllDayparts(group->get_productId());
    loadGroups();
    loadGroupInfo();
    loadCurrentDaypart();
    if (leftDayparts)
        messages::warning(this, tr("Group has been removed from daypart(s) assignemnts"));
}

void MenuFile::on_btnDeleteGroup_clicked()
{
    deleteEntries(m_groups, m_menu.groups,
                  m_groups.isMultiSelecting() ? tr("Delete all selected groups?")
                                              : tr("Delete selected group?"));
}

void MenuFile::on_listWidgetGroups_itemSelectionChanged()
{
    m_groups.followSelection();
    loadGroupInfo();
}

void MenuFile::on_listWidgetGroups_currentRowChanged([[maybe_unused]] int currentRow)
{
    m_groups.followSelection();
    loadGroupInfo();
}

void MenuFile::on_listWidgetGroups_itemDoubleClicked(QListWidgetItem *item)
{
    m_groups.setCurrentRow(item);
    on_btnEditGroup_clicked();
}

void MenuFile::on_btnSelectMultiGroup_clicked()
{
    m_groups.setMultiSelecting(!m_groups.isMultiSelecting());
    loadGroupInfo();
}

void MenuFile::on_listWidgetGroups_itemChanged()
{
    m_groups.updateButtons();
}
