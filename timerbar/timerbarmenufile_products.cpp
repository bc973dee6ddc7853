// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarmenufile.h"

#include <algorithm>

#include <QListWidget>
#include <QMessageBox>
#include <QSignalBlocker>

#include "timerbar/bins.h"
#include "timerbar/newentries.h"
#include "timerbar/timerbarproductedit.h"
#include "ui_timerbarmenufile.h"
#include "widgets/messages.h"

QList<ProductInfo *> TimerBarMenuFile::products() const
{
    return pointersTo(m_menu.products);
}

ProductInfo *TimerBarMenuFile::currentProduct() const
{
    return entryAt(m_menu.products, m_products.currentRow());
}

void TimerBarMenuFile::loadProducts()
{
    m_products.showNames(namesOf(m_menu.products));
    const QSignalBlocker blocker(m_ui->listWidgetProducts);
    int row = 0;
    for (const auto &product : m_menu.products)
        m_ui->listWidgetProducts->item(row++)->setData(Qt::UserRole, product->get_productId());
}

void TimerBarMenuFile::loadProductInfo()
{
    m_ui->details->showProduct(currentProduct(), m_menu.temperatureUnit);
    m_products.updateButtons();
}

ProductInfo *TimerBarMenuFile::getProductObject(int productId)
{
    return m_menu.product(productId);
}

bool TimerBarMenuFile::removeIdFromAllDayparts(int productId)
{
    return m_menu.removeFromDayparts(productId);
}

bool TimerBarMenuFile::refuseWhenFull()
{
    if (!m_menu.isFull())
        return false;
    messages::refusal(this, tr("Cannot add products. Maximum products and groups reached!"));
    return true;
}

void TimerBarMenuFile::addProduct(std::unique_ptr<ProductInfo> product)
{
    TimerBarProductEdit dialog(*product, this);
    if (dialog.exec() != Accepted)
        return;
    m_menu.products.push_back(std::move(product));
    m_products.setCurrentRow(static_cast<int>(m_menu.products.size()) - 1);
    loadProducts();
    loadProductInfo();
    noteChange();
}

void TimerBarMenuFile::on_btnAddProduct_clicked()
{
    if (!refuseWhenFull())
        addProduct(timerbar::newProduct(m_menu.nextFreeId()));
}

void TimerBarMenuFile::on_btnDuplicateProduct_clicked()
{
    if (refuseWhenFull())
        return;
    if (const ProductInfo *source = currentProduct())
        addProduct(timerbar::duplicateOf(*source, m_menu.nextFreeId()));
}

void TimerBarMenuFile::on_btnEditProduct_clicked()
{
    ProductInfo *product = currentProduct();
    if (!product || m_products.isMultiSelecting())
        return;
    const timerbar::ReferenceTemperatures before = timerbar::temperaturesOf(*product);
    if (TimerBarProductEdit(*product, this).exec() != Accepted)
        return;
    const bool changed = timerbar::temperaturesOf(*product) != before;
    const bool leftDayparts = changed && removeIdFromAllDayparts(product->get_productId());
    loadProducts();
    loadProductInfo();
    loadCurrentDaypart();
    noteChange();
    if (leftDayparts)
        messages::warning(this, tr("Product has been removed from daypart(s) assignemnts"),
                          QMessageBox::Close);
}

void TimerBarMenuFile::on_btnDeleteProduct_clicked()
{
    const QList<int> rows = m_products.rowsToDelete();
    if (rows.isEmpty() ||
        !messages::confirmDelete(this, m_products.isMultiSelecting() ? tr("Delete all selected products?")
                                                                     : tr("Delete selected product?")))
        return;
    m_products.setMultiSelecting(false);
    std::for_each(rows.rbegin(), rows.rend(), [this](int row) {
        const auto place = m_menu.products.begin() + row;
        removeIdFromAllDayparts((*place)->get_productId());
        m_menu.products.erase(place);
    });
    loadProducts();
    loadProductInfo();
    loadCurrentDaypart();
    noteChange();
    m_products.focusList();
}

void TimerBarMenuFile::on_btnSelectMultiProduct_clicked()
{
    m_products.setMultiSelecting(!m_products.isMultiSelecting());
    loadProductInfo();
}

void TimerBarMenuFile::on_listWidgetProducts_itemSelectionChanged()
{
    m_products.followSelection();
    loadProductInfo();
}

void TimerBarMenuFile::on_listWidgetProducts_currentRowChanged([[maybe_unused]] int currentRow)
{
    m_products.followSelection();
    loadProductInfo();
}

void TimerBarMenuFile::on_listWidgetProducts_itemDoubleClicked(QListWidgetItem *item)
{
    m_products.setCurrentRow(item);
    on_btnEditProduct_clicked();
}

void TimerBarMenuFile::on_listWidgetProducts_itemChanged([[maybe_unused]] QListWidgetItem *item)
{
    m_products.updateButtons();
}
