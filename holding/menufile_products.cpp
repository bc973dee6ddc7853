// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"

#include "holding/newentries.h"
#include "holding/productedit.h"
#include "holding/settings.h"
#include "ui_menufile.h"
#include "widgets/messages.h"

ProductInfo *MenuFile::currentProduct() const
{
    return entryAt(m_menu.products, m_products.currentRow());
}

QList<ProductInfo *> MenuFile::getMenuProducts()
{
    return pointersTo(m_menu.products);
}

void MenuFile::loadProducts()
{
    m_products.showNames(namesOf(m_menu.products));
}

void MenuFile::loadProductInfo()
{
    m_ui->detailsProduct->showEntry(currentProduct(), m_menu.configuration);
    m_products.updateButtons();
}

void MenuFile::addProduct(std::unique_ptr<ProductInfo> product)
{
    const int row = static_cast<int>(m_menu.products.size());
    if (ProductEdit(*product, row, this).exec() != Accepted)
        return;
    m_menu.products.push_back(std::move(product));
    m_products.setCurrentRow(row);
    reloadEntries();
    noteChange();
}

void MenuFile::on_btnAddProduct_clicked()
{
    if (!refuseWhenFull(tr("Cannot add products. Maximum products and groups reached!")))
        addProduct(holding::newProduct(m_menu.nextFreeId(), getBinsPerZone()));
}

void MenuFile::on_btnDuplicateProduct_clicked()
{
    if (refuseWhenFull(tr("Cannot add products. Maximum products and groups reached!")))
        return;
    if (const ProductInfo *source = currentProduct())
        addProduct(holding::duplicateOf(*source, m_menu.nextFreeId()));
}

void MenuFile::on_btnEditProduct_clicked()
{
    ProductInfo *product = currentProduct();
    if (!product || m_products.isMultiSelecting())
        return;
    const holding::HoldingSettings before = holding::holdingSettings(*product, getFanSpeedEnabled());
    if (ProductEdit(*product, m_products.currentRow(), this).exec() != Accepted)
        return;
    // Groups and bins were chosen to suit these settings.
    const bool changed = holding::holdingSettings(*product, getFanSpeedEnabled()) != before;
    const bool leftGroups = changed && removeIdFromAllGroups(product->get_productId());
    const bool leftDayparts = changed && removeIdFromAllDayparts(product->get_productId());
    reloadEntries();
    noteChange();
    if (leftGroups && leftDayparts)
        messages::warning(this, tr("Product has been removed from group(s) and daypart(s) assignemnts"));
    else if (leftDayparts)
        messages::warning(this, tr("Product has been removed from daypart(s) assignemnts"));
    else if (leftGroups)
        messages::warning(this, tr("Product has been removed from group(s)"));
}

void MenuFile::on_btnDeleteProduct_clicked()
{
    deleteEntries(m_products, m_menu.products,
                  m_products.isMultiSelecting() ? tr("Delete all selected products?")
                                                : tr("Delete selected product?"));
}

void MenuFile::on_listWidgetProducts_itemSelectionChanged()
{
    m_products.followSelection();
    loadProductInfo();
}

void MenuFile::on_listWidgetProducts_currentRowChanged([[maybe_unused]] int currentRow)
{
    m_products.followSelection();
    loadProductInfo();
}

void MenuFile::on_listWidgetProducts_itemDoubleClicked(QListWidgetItem *item)
{
    m_products.setCurrentRow(item);
    on_btnEditProduct_clicked();
}

void MenuFile::on_btnSelectMultiProduct_clicked()
{
    m_products.setMultiSelecting(!m_products.isMultiSelecting());
    loadProductInfo();
}

void MenuFile::on_listWidgetProducts_itemChanged()
{
    m_products.updateButtons();
}
