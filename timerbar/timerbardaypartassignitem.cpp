// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbardaypartassignitem.h"

#include <utility>

#include <QListWidget>

#include "model/names.h"
#include "timerbar/rowdescription.h"
#include "timerbar/timerbarmenufile.h"
#include "ui_timerbardaypartassignitem.h"
#include "widgets/emptyhint.h"
#include "widgets/enterkey.h"
#include "widgets/findrows.h"
#include "widgets/fixedsize.h"
#include "widgets/listkeys.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

TimerBarDaypartAssignItem::TimerBarDaypartAssignItem(int upperTemp, int lowerTemp, TimerBarMenuFile *menuFile)
    : QDialog(menuFile)
    , m_ui(std::make_unique<Ui::TimerBarDaypartAssignItem>())
    , m_products(menuFile->products())
    , m_reference{upperTemp, lowerTemp}
    , m_temperatureUnit(menuFile->temperatureUnit())
{
    m_ui->setupUi(this);
    numberedrows::prepareColouredList(m_ui->listWidgetProducts);
    m_notes = addListNotes(m_ui->listWidgetProducts);
    m_find = new FindRows(m_ui->listWidgetProducts, u"txtFind"_s, m_ui->btnSelect);
    m_find->setFocus();
    new ListKeys(m_ui->listWidgetProducts, m_ui->btnSelect);
    numberedrows::describe(m_ui->listWidgetProducts, [this](int row) {
        return timerbar::rowDescription(m_products.value(row), m_temperatureUnit);
    });
    m_ui->details->setShortNameLabel(tr("Shor Name:"));
    showWhenEmpty(m_ui->listWidgetProducts,
                  tr("This menu has no products yet. Cancel, and add some on the Products tab."));
    letEnterPressFocusedButton(this);
    loadProducts();
    fixSizeOnScreen(this);
    loadProductInfo();
    connect(m_ui->listWidgetProducts, &QListWidget::itemDoubleClicked, this,
            &TimerBarDaypartAssignItem::on_btnSelect_clicked);
}

TimerBarDaypartAssignItem::~TimerBarDaypartAssignItem() = default;

void TimerBarDaypartAssignItem::setPlace(const QString &daypart, Bin bin, const QString &content)
{
    m_notes.setAbove(placeText(daypart, bin, content));
    fixSizeOnScreen(this); // a long name in a large font takes lines of its own
}

void TimerBarDaypartAssignItem::find(const QString &text)
{
    m_find->find(text);
}

void TimerBarDaypartAssignItem::loadProducts()
{
    QListWidget *list = m_ui->listWidgetProducts;
    list->clear();
    int fitting = 0;
    for (const ProductInfo *product : std::as_const(m_products)) {
        const bool fits = timerbar::fitsNeighbour(*product, m_reference);
        const auto misfit = [this, product] {
            return timerbar::misfitText(*product, m_reference, m_temperatureUnit);
        };
        QListWidgetItem *item = numberedrows::appendToPick(
            list, {product->get_productShortName(), shownName(product->get_productName()), fits, misfit});
        item->setData(Qt::UserRole, product->get_productId());
        fitting += fits ? 1 : 0;
    }
    m_notes.setBelow(
        demandLine(timerbar::demandText(m_reference, m_temperatureUnit), fitting, list->count()));
    m_find->refresh();
}

const ProductInfo *TimerBarDaypartAssignItem::selectedProduct() const
{
    return m_products.value(numberedrows::selectedRow(m_ui->listWidgetProducts));
}

void TimerBarDaypartAssignItem::loadProductInfo()
{
    const ProductInfo *product = selectedProduct();
    m_ui->details->showProduct(product, m_temperatureUnit);
    m_ui->btnSelect->setEnabled(product != nullptr);
}

void TimerBarDaypartAssignItem::on_btnCancel_clicked()
{
    m_chosenId = timerbar::emptyCell;
    done(0);
}

void TimerBarDaypartAssignItem::on_btnSelect_clicked()
{
    if (const ProductInfo *product = selectedProduct()) {
        m_chosenId = product->get_productId();
        done(1);
    }
}

void TimerBarDaypartAssignItem::on_listWidgetProducts_itemSelectionChanged()
{
    loadProductInfo();
}

void TimerBarDaypartAssignItem::on_listWidgetProducts_currentRowChanged([[maybe_unused]] int currentRow)
{
    loadProductInfo();
}
