// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/groupedit.h"

#include <algorithm>
#include <utility>

#include <QSignalBlocker>

#include "holding/menufile.h"
#include "holding/producttypes.h"
#include "ui_groupedit.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"
#include "widgets/messages.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

// The product's id lies on the role of a list item's picture, where no picture is.
constexpr int idRole = Qt::DecorationRole;
// A member's position in the group, which differs from its row where members before it are not listed.
constexpr int positionRole = Qt::UserRole;

int positionOf(const QListWidgetItem *item)
{
    return item->data(positionRole).toInt();
}

} // namespace

GroupEdit::GroupEdit(ProductInfo &group, MenuFile *menuFile)
    : RefusableDialog(menuFile)
    , m_ui(std::make_unique<Ui::GroupEdit>())
    , m_group(group)
    , m_menuFile(menuFile)
    , m_products(menuFile->getMenuProducts())
{
    m_ui->setupUi(this);
    for (QWidget *button : {m_ui->btnAddProduct, m_ui->btnRemoveProduct})
        button->setAttribute(Qt::WA_StyledBackground); // else a flat button does not paint it
    numberedrows::prepareColouredList(m_ui->listWidgetProducts);
    numberedrows::prepareColouredList(m_ui->listWidgetGroupProducts);
    letEnterPressFocusedButton(this);
    fixDesignedSize(this);
    setWindowTitle(tr("Group Edit"));
    applyCabinetType();
    m_ui->txtName->setText(shownName(group.get_productName()));
    m_ui->txtName->setFocus();
    loadWorkingValues();
    loadProducts();
    loadGroupProducts();
    m_ui->btnAddProduct->setEnabled(false);
    m_ui->btnRemoveProduct->setEnabled(false);
}

GroupEdit::~GroupEdit() = default;

void GroupEdit::applyCabinetType()
{
    const QString type = m_menuFile->getCabinetType();
    if (holding::isZpv(type)) {
        for (QWidget *widget : {m_ui->lblTemp2, m_ui->txtTemp2, m_ui->lblLidType, m_ui->txtLidType})
            widget->hide();
        m_ui->lblTemp1->setText(tr("Temperature:"));
    } else if (!holding::isQhx(type)) {
        refuse(tr("Unkown cabinet value!"));
    }
}

void GroupEdit::loadWorkingValues()
{
    const bool fanSpeedEnabled = m_menuFile->getFanSpeedEnabled();
    m_ui->widgetSpacer->setHidden(fanSpeedEnabled);
    m_ui->lblFanSpeed->setVisible(fanSpeedEnabled);
    m_ui->txtFanSpeed->setVisible(fanSpeedEnabled);
    m_defaultIndex = m_group.get_defaultIndex();
    m_members = m_group.get_productList();
    if (!m_members.isEmpty())
        fixSettings(m_group); // what an emptied group still stores fixes nothing
}

void GroupEdit::fixSettings(const ProductInfo &firstMember)
{
    m_settings = holding::holdingSettings(firstMember, m_menuFile->getFanSpeedEnabled());
    if (holding::isZpv(m_menuFile->getCabinetType()))
        m_settings.lidType.clear();
}

const ProductInfo *GroupEdit::product(int id) const
{
    const auto found = std::find_if(m_products.begin(), m_products.end(), [id](const ProductInfo *candidate) {
        return candidate->get_productId() == id;
    });
    return found == m_products.end() ? nullptr : *found;
}

void GroupEdit::loadProducts()
{
    QListWidget *list = m_ui->listWidgetProducts;
    list->clear();
    for (const ProductInfo *candidate : std::as_const(m_products)) {
        const bool fits = holding::fitsGroup(*candidate, m_settings, m_menuFile->getFanSpeedEnabled());
        numberedrows::appendToPick(list, shownName(candidate->get_productName()), fits)
            ->setData(idRole, candidate->get_productId());
    }
}

void GroupEdit::loadGroupProducts()
{
    QListWidget *list = m_ui->listWidgetGroupProducts;
    const QSignalBlocker blocker(list);
    list->clear();
    for (int position = 0; position < m_members.size(); ++position) {
        const ProductInfo *member = product(m_members[position]);
        if (!member)
            continue;
        QListWidgetItem *item =
            numberedrows::append(list, position + 1, shownName(member->get_productName()));
        item->setData(idRole, member->get_productId());
        item->setData(positionRole, position);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        numberedrows::colourFitting(item, position);
    }
    settleDefault();
    checkDefaultOnly();
    showSummary();
    on_listWidgetGroupProducts_itemSelectionChanged();
}

// A file may name a default that does not exist or whose product is missing. What the list then shows as
// checked is what a Save stores: the next listed member, or the last one.
void GroupEdit::settleDefault()
{
    const int lastPosition = std::max(0, static_cast<int>(m_members.size()) - 1);
    m_defaultIndex = std::clamp(m_defaultIndex, 0, lastPosition);
    const QListWidget *list = m_ui->listWidgetGroupProducts;
    for (int row = 0; row < list->count(); ++row) {
        const int position = positionOf(list->item(row));
        if (position >= m_defaultIndex || row == list->count() - 1) {
            m_defaultIndex = position;
            return;
        }
    }
}

void GroupEdit::checkDefaultOnly()
{
    QListWidget *list = m_ui->listWidgetGroupProducts;
    const QSignalBlocker blocker(list);
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem *item = list->item(row);
        item->setCheckState(positionOf(item) == m_defaultIndex ? Qt::Checked : Qt::Unchecked);
    }
}

void GroupEdit::showSummary()
{
    const int unit = m_menuFile->getTemperatureUnit();
    m_ui->txtTemp1->setText(temperatureText(m_settings.upperTemp, unit));
    m_ui->txtTemp2->setText(temperatureText(m_settings.lowerTemp, unit));
    m_ui->txtLidType->setText(holding::lidText(m_settings.lidType));
    m_ui->txtZoneSplits->setText(m_settings.zoneSplits);
    m_ui->txtFanSpeed->setText(tr("%1 RPM").arg(m_settings.fanSpeed));
}

void GroupEdit::on_btnCancel_clicked()
{
    reject();
}

void GroupEdit::on_btnSave_clicked()
{
    if (m_ui->txtName->text().isEmpty()) {
        messages::entryFault(this, tr("Group name is empty!"));
        return;
    }
    if (m_members.isEmpty()) {
        messages::entryFault(this, tr("Product list is empty!"));
        return;
    }
    m_group.set_productName(sameNameInAllLanguages(m_ui->txtName->text()));
    m_group.set_upperTemp(m_settings.upperTemp);
    m_group.set_lowerTemp(m_settings.lowerTemp);
    m_group.set_zoneSplits(m_settings.zoneSplits);
    m_group.set_lidType(m_settings.lidType);
    m_group.set_fanSpeed(m_settings.fanSpeed);
    m_group.set_productList(m_members);
    m_group.set_defaultIndex(m_defaultIndex);
    accept();
}

void GroupEdit::on_btnAddProduct_clicked()
{
    const QListWidgetItem *item = m_ui->listWidgetProducts->currentItem();
    if (!item || m_ui->listWidgetProducts->selectedItems().isEmpty())
        return;
    const int id = item->data(idRole).toInt();
    const int row = m_ui->listWidgetProducts->currentRow();
    if (!m_members.contains(id))
        m_members.append(id);
    if (m_members.size() == 1)
        fixSettings(*m_products[row]);
    loadProducts();
    m_ui->listWidgetProducts->setCurrentRow(row);
    loadGroupProducts();
}

void GroupEdit::on_btnRemoveProduct_clicked()
{
    QListWidget *list = m_ui->listWidgetGroupProducts;
    const QListWidgetItem *item = list->currentItem();
    if (!item || list->selectedItems().isEmpty())
        return;
    const int position = positionOf(item);
    const int row = list->currentRow();
    m_members.removeAt(position);
    if (m_defaultIndex > position)
        --m_defaultIndex;
    if (m_members.isEmpty()) {
        m_settings = {};
        loadProducts();
    }
    loadGroupProducts();
    list->setCurrentRow(std::min(row, list->count() - 1));
}

void GroupEdit::on_listWidgetGroupProducts_itemChanged(QListWidgetItem *item)
{
    if (item == m_ui->listWidgetGroupProducts->currentItem())
        m_defaultIndex = positionOf(item);
    checkDefaultOnly();
}

void GroupEdit::on_listWidgetGroupProducts_itemClicked(QListWidgetItem *item)
{
    if (item != m_ui->listWidgetGroupProducts->currentItem())
        m_ui->listWidgetGroupProducts->setCurrentItem(item);
}

void GroupEdit::on_listWidgetProducts_itemSelectionChanged()
{
    m_ui->btnAddProduct->setEnabled(!m_ui->listWidgetProducts->selectedItems().isEmpty());
}

void GroupEdit::on_listWidgetGroupProducts_itemSelectionChanged()
{
    m_ui->btnRemoveProduct->setEnabled(!m_ui->listWidgetGroupProducts->selectedItems().isEmpty());
}
