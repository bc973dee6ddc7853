// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/groupedit.h"

#include <unordered_set>
#include <utility>

#include <QSignalBlocker>

#include "holding/menufile.h"
#include "holding/misfits.h"
#include "holding/producttypes.h"
#include "holding/rowdescription.h"
#include "ui_groupedit.h"
#include "widgets/announce.h"
#include "widgets/emptyhint.h"
#include "widgets/enterkey.h"
#include "widgets/findrows.h"
#include "widgets/fixedsize.h"
#include "widgets/listkeys.h"
#include "widgets/messages.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

namespace {

// A member's position in the group, which differs from its row where members before it are not listed.
constexpr int positionRole = Qt::UserRole;

int positionOf(const QListWidgetItem *item)
{
    return item->data(positionRole).toInt();
}

void appendMember(QListWidget *list, const ProductInfo &member, int position)
{
    QListWidgetItem *item = numberedrows::append(list, position + 1, shownName(member.get_productName()));
    item->setData(numberedrows::idRole, member.get_productId());
    item->setData(positionRole, position);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    numberedrows::colourFitting(item, position);
}

} // namespace

GroupEdit::GroupEdit(ProductInfo &group, MenuFile *menuFile)
    : RefusableDialog(menuFile)
    , m_ui(std::make_unique<Ui::GroupEdit>())
    , m_group(group)
    , m_configuration(menuFile->configuration())
    , m_products(menuFile->getMenuProducts())
    , m_productsById(indexById(m_products))
    , m_draft(group, m_configuration)
{
    m_ui->setupUi(this);
    for (QPushButton *button : {m_ui->btnAddProduct, m_ui->btnRemoveProduct})
        button->setAttribute(Qt::WA_StyledBackground); // else a flat button does not paint it
    numberedrows::prepareColouredList(m_ui->listWidgetProducts);
    numberedrows::prepareColouredList(m_ui->listWidgetGroupProducts);
    showWhenEmpty(m_ui->listWidgetProducts,
                  tr("This menu has no products yet. Cancel, and add some on the Products tab."));
    showWhenEmpty(m_ui->listWidgetGroupProducts,
                  tr("Choose a product on the left and add it with the green arrow."));
    m_notes = addListNotes(m_ui->listWidgetProducts, 1);
    // As wide as the dialog, as a demand names up to five settings.
    m_ui->verticalLayout->insertWidget(m_ui->verticalLayout->indexOf(m_ui->layoutLists) + 1, m_notes.below);
    m_find = new FindRows(m_ui->listWidgetProducts, u"txtFind"_s, m_ui->btnAddProduct);
    new ListKeys(m_ui->listWidgetProducts, m_ui->btnAddProduct);
    new ListKeys(m_ui->listWidgetGroupProducts, m_ui->btnRemoveProduct);
    describeRows();
    letEnterPressFocusedButton(this);
    setWindowTitle(tr("Group Edit"));
    applyConfiguration();
    fixSizeOnScreen(this);
    m_ui->txtName->setText(shownName(group.get_productName()));
    m_ui->txtName->setFocus();
    loadProducts();
    loadGroupProducts();
    m_ui->btnAddProduct->setEnabled(false);
    m_ui->btnRemoveProduct->setEnabled(false);
}

GroupEdit::~GroupEdit() = default;

void GroupEdit::describeRows()
{
    numberedrows::describe(m_ui->listWidgetProducts, [this](int row) {
        return holding::rowDescription(m_products.value(row), m_configuration);
    });
    numberedrows::describe(m_ui->listWidgetGroupProducts, [this](int row) {
        const int id = m_draft.members().value(positionOf(m_ui->listWidgetGroupProducts->item(row)));
        return holding::rowDescription(findEntry(m_productsById, id), m_configuration);
    });
}

void GroupEdit::applyConfiguration()
{
    if (holding::isZpv(m_configuration.type)) {
        for (QWidget *widget : {m_ui->lblTemp2, m_ui->txtTemp2, m_ui->lblLidType, m_ui->txtLidType})
            widget->hide();
        m_ui->lblTemp1->setText(tr("Temperature:"));
    } else if (!holding::isQhx(m_configuration.type)) {
        refuse(tr("Unkown cabinet value!"));
    }
    m_ui->widgetSpacer->setHidden(m_configuration.fanSpeedEnabled);
    m_ui->lblFanSpeed->setVisible(m_configuration.fanSpeedEnabled);
    m_ui->txtFanSpeed->setVisible(m_configuration.fanSpeedEnabled);
}

QString GroupEdit::misfitOf(const ProductInfo &product) const
{
    return holding::groupMisfitText(product, m_draft.settings(), m_configuration);
}

void GroupEdit::loadProducts()
{
    QListWidget *list = m_ui->listWidgetProducts;
    list->clear();
    int fitting = 0;
    for (const ProductInfo *candidate : std::as_const(m_products)) {
        const QString name = shownName(candidate->get_productName());
        const bool fits = m_draft.fits(*candidate);
        QListWidgetItem *item = numberedrows::appendToPick(
            list, {name, name, fits, [this, candidate] { return misfitOf(*candidate); }});
        item->setData(numberedrows::idRole, candidate->get_productId());
        fitting += fits ? 1 : 0;
    }
    m_notes.setBelow(
        demandLine(holding::groupDemandText(m_draft.settings(), m_configuration), fitting, list->count()));
    m_find->refresh();
}

void GroupEdit::loadGroupProducts()
{
    QListWidget *list = m_ui->listWidgetGroupProducts;
    const QSignalBlocker blocker(list);
    list->clear();
    QList<int> listedPositions;
    for (int position = 0; position < m_draft.members().size(); ++position) {
        const ProductInfo *member = findEntry(m_productsById, m_draft.members()[position]);
        if (!member)
            continue;
        appendMember(list, *member, position);
        listedPositions.append(position);
    }
    m_draft.settleDefault(listedPositions);
    checkDefaultOnly();
    showSummary();
    on_listWidgetGroupProducts_itemSelectionChanged();
}

void GroupEdit::checkDefaultOnly()
{
    QListWidget *list = m_ui->listWidgetGroupProducts;
    const QSignalBlocker blocker(list);
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem *item = list->item(row);
        const auto state = positionOf(item) == m_draft.defaultPosition() ? Qt::Checked : Qt::Unchecked;
        const bool changes = item->checkState() != state;
        item->setCheckState(state); // gives a new row its box, too
        if (changes)
            announce::checkMark(list, row);
    }
}

void GroupEdit::showSummary()
{
    const int unit = m_configuration.temperatureUnit;
    const holding::HoldingSettings &settings = m_draft.settings();
    m_ui->txtTemp1->setText(temperatureText(settings.upperTemp, unit));
    m_ui->txtTemp2->setText(temperatureText(settings.lowerTemp, unit));
    m_ui->txtLidType->setText(holding::lidText(settings.lidType));
    m_ui->txtZoneSplits->setText(settings.zoneSplits);
    m_ui->txtFanSpeed->setText(tr("%1 RPM").arg(settings.fanSpeed));
    announce::pair(m_ui->lblTemp1, m_ui->txtTemp1);
    announce::pair(m_ui->lblTemp2, m_ui->txtTemp2);
    announce::pair(m_ui->lblLidType, m_ui->txtLidType);
    announce::pair(m_ui->lblZoneSplits, m_ui->txtZoneSplits);
    announce::pair(m_ui->lblFanSpeed, m_ui->txtFanSpeed);
}

void GroupEdit::on_btnCancel_clicked()
{
    reject();
}

void GroupEdit::on_btnSave_clicked()
{
    if (m_ui->txtName->text().isEmpty()) {
        messages::entryFault(this, {tr("Group name is empty!"), m_ui->txtName});
        return;
    }
    if (m_draft.members().isEmpty()) {
        messages::entryFault(this, {tr("Product list is empty!"), m_ui->listWidgetProducts});
        return;
    }
    m_group.set_productName(sameNameInAllLanguages(m_ui->txtName->text()));
    m_draft.writeTo(m_group);
    accept();
}

void GroupEdit::on_btnAddProduct_clicked()
{
    const QListWidgetItem *item = m_ui->listWidgetProducts->currentItem();
    if (!item || m_ui->listWidgetProducts->selectedItems().isEmpty())
        return;
    const int row = m_ui->listWidgetProducts->currentRow();
    m_draft.add(*m_products[row]);
    loadProducts();
    m_ui->listWidgetProducts->setCurrentRow(nextRowToAdd(row));
    m_ui->listWidgetProducts->setFocus();
    loadGroupProducts();
}

// So that products are added one after the other; the row itself where nothing in sight is left behind it.
int GroupEdit::nextRowToAdd(int row) const
{
    const std::unordered_set<int> members(m_draft.members().begin(), m_draft.members().end());
    for (int next = row + 1; next < m_products.size(); ++next) {
        const ProductInfo &product = *m_products[next];
        const bool inSight = !m_ui->listWidgetProducts->isRowHidden(next);
        if (inSight && m_draft.fits(product) && !members.contains(product.get_productId()))
            return next;
    }
    return row;
}

void GroupEdit::on_btnRemoveProduct_clicked()
{
    QListWidget *list = m_ui->listWidgetGroupProducts;
    const QListWidgetItem *item = list->currentItem();
    if (!item || list->selectedItems().isEmpty())
        return;
    const int row = list->currentRow();
    m_draft.remove(positionOf(item));
    if (m_draft.members().isEmpty())
        loadProducts();
    loadGroupProducts();
    list->setCurrentRow(std::min(row, list->count() - 1));
    list->setFocus();
}

void GroupEdit::on_listWidgetGroupProducts_itemChanged(QListWidgetItem *item)
{
    QListWidget *list = m_ui->listWidgetGroupProducts;
    const Qt::CheckState chosen = item->checkState();
    if (item == list->currentItem())
        m_draft.setDefault(positionOf(item));
    checkDefaultOnly();
    if (item->checkState() == chosen)
        announce::checkMark(list, list->row(item));
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
