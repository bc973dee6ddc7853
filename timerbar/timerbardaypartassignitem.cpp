// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbardaypartassignitem.h"

#include "model/names.h"
#include "timerbar/timerbarmenufile.h"
#include "ui_timerbardaypartassignitem.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"
#include "widgets/numberedrows.h"
#include "widgets/plaintext.h"

TimerBarDaypartAssignItem::TimerBarDaypartAssignItem(int upperTemp, int lowerTemp, TimerBarMenuFile *menuFile)
    : QDialog(menuFile)
    , m_ui(std::make_unique<Ui::TimerBarDaypartAssignItem>())
    , m_products(menuFile->products())
    , m_reference{upperTemp, lowerTemp}
    , m_temperatureUnit(menuFile->temperatureUnit())
{
    m_ui->setupUi(this);
    numberedrows::prepareColouredList(m_ui->listWidgetProducts);
    m_ui->details->setShortNameLabel(tr("Shor Name:"));
    letEnterPressFocusedButton(this);
    fixDesignedSize(this);
    loadProducts();
    loadProductInfo();
    m_ui->btnSelect->setEnabled(false);
    connect(m_ui->listWidgetProducts, &QListWidget::itemDoubleClicked, this,
            &TimerBarDaypartAssignItem::on_btnSelect_clicked);
}

TimerBarDaypartAssignItem::~TimerBarDaypartAssignItem() = default;

void TimerBarDaypartAssignItem::loadProducts()
{
    QListWidget *list = m_ui->listWidgetProducts;
    list->clear();
    for (int row = 0; row < m_products.size(); ++row) {
        const ProductInfo &product = *m_products[row];
        QListWidgetItem *item = numberedrows::append(list, product.get_productShortName());
        item->setData(Qt::UserRole, product.get_productId());
        item->setToolTip(asPlainText(shownName(product.get_productName())));
        if (timerbar::fitsNeighbour(product, m_reference))
            numberedrows::colourFitting(item, row);
        else
            numberedrows::colourUnfitting(item, row);
    }
}

void TimerBarDaypartAssignItem::loadProductInfo()
{
    m_ui->details->showProduct(m_products.value(m_selectedRow), m_temperatureUnit);
}

void TimerBarDaypartAssignItem::on_btnCancel_clicked()
{
    m_chosenId = timerbar::emptyCell;
    done(0);
}

void TimerBarDaypartAssignItem::on_btnSelect_clicked()
{
    if (const ProductInfo *product = m_products.value(m_selectedRow)) {
        m_chosenId = product->get_productId();
        done(1);
    }
}

void TimerBarDaypartAssignItem::on_listWidgetProducts_itemSelectionChanged()
{
    const QListWidget *list = m_ui->listWidgetProducts;
    setSelectedRow(list->selectedItems().isEmpty() ? -1 : list->currentRow());
}

void TimerBarDaypartAssignItem::on_listWidgetProducts_currentRowChanged(int currentRow)
{
    if (!m_ui->listWidgetProducts->selectedItems().isEmpty())
        setSelectedRow(currentRow);
}

void TimerBarDaypartAssignItem::setSelectedRow(int row)
{
    m_selectedRow = row;
    loadProductInfo();
    m_ui->btnSelect->setEnabled(row >= 0);
}
