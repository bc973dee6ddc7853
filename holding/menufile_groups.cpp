// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"

#include <QListWidget>

#include "holding/groupedit.h"
#include "holding/newentries.h"
#include "holding/settings.h"
#include "ui_menufile.h"
#include "widgets/messages.h"
#include "widgets/numberedrows.h"

namespace {

constexpr int maxListedMembers = 1000;

void appendMember(QListWidget *list, const ProductInfo &member, int position, bool isDefault)
{
    QListWidgetItem *item = numberedrows::append(list, position + 1, shownName(member.get_productName()));
    item->setData(numberedrows::idRole, member.get_productId());
    item->setFlags(Qt::ItemIsEnabled);
    item->setCheckState(isDefault ? Qt::Checked : Qt::Unchecked);
}

void appendNote(QListWidget *list, const QString &text)
{
    auto *note = new QListWidgetItem(text, list);
    note->setFlags(Qt::ItemIsEnabled);
}

} // namespace

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

// The members in the group's order, the default one ticked. A member whose product is missing has no row. A
// file may list millions of members: the first ones tell enough.
void MenuFile::loadGroupMembers()
{
    QListWidget *list = m_ui->listWidgetMembers;
    list->clear();
    const ProductInfo *group = currentGroup();
    if (!group)
        return;
    const EntryIndex products = indexById(getMenuProducts());
    const QList<int> members = group->get_productList();
    int unlisted = 0;
    for (int position = 0; position < members.size(); ++position) {
        const ProductInfo *member = findEntry(products, members[position]);
        if (member && list->count() < maxListedMembers)
            appendMember(list, *member, position, position == group->get_defaultIndex());
        else if (member)
            ++unlisted;
    }
    if (unlisted > 0)
        appendNote(list, tr("and %1 more").arg(unlisted));
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
    noteChange();
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
    noteChange();
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
