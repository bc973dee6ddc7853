// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/assigndaypartitem.h"

#include <utility>

#include <QListWidget>

#include "holding/menufile.h"
#include "ui_assigndaypartitem.h"
#include "widgets/emptyhint.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"
#include "widgets/numberedrows.h"

AssignDaypartItem::AssignDaypartItem(const QStringList &allowedZoneSplits, int upperTemp, int lowerTemp,
                                     int fanSpeed, bool singleBinSecondZone, MenuFile *menuFile)
    : QDialog(menuFile)
    , m_ui(std::make_unique<Ui::AssignDaypartItem>())
    , m_configuration(menuFile->configuration())
    , m_allowedZoneSplits(allowedZoneSplits)
    , m_limits{upperTemp, lowerTemp, fanSpeed}
    , m_singleBinSecondZone(singleBinSecondZone)
    , m_entries(menuFile->getMenuProducts() + menuFile->getMenuGroups())
{
    m_ui->setupUi(this);
    numberedrows::prepareColouredList(m_ui->listWidgetProducts);
    showWhenEmpty(m_ui->listWidgetProducts,
                  tr("This menu has no products yet. Cancel, and add some on the Products tab."));
    m_ui->details->setEmptyHint(tr("Select a product or group"));
    letEnterPressFocusedButton(this);
    // Room for a name of three lines below the other details, in any font.
    m_ui->spacerDetails->changeSize(0, 2 * fontMetrics().lineSpacing(), QSizePolicy::Minimum,
                                    QSizePolicy::Expanding);
    fixSizeOnScreen(this);
    setWindowTitle(tr("Assign Product/Group"));
    loadProducts();
    loadProductInfo();
    connect(m_ui->listWidgetProducts, &QListWidget::itemDoubleClicked, this,
            &AssignDaypartItem::on_btnSelect_clicked);
}

AssignDaypartItem::~AssignDaypartItem() = default;

void AssignDaypartItem::loadProducts()
{
    QListWidget *list = m_ui->listWidgetProducts;
    list->clear();
    for (const ProductInfo *entry : std::as_const(m_entries)) {
        const bool fits =
            holding::fitsBin(*entry, m_limits, m_allowedZoneSplits, m_configuration.fanSpeedEnabled);
        QListWidgetItem *item = numberedrows::appendToPick(list, shownName(entry->get_productName()), fits);
        item->setData(numberedrows::idRole, entry->get_productId());
    }
}

const ProductInfo *AssignDaypartItem::selectedEntry() const
{
    return m_entries.value(numberedrows::selectedRow(m_ui->listWidgetProducts));
}

void AssignDaypartItem::loadProductInfo()
{
    const ProductInfo *entry = selectedEntry();
    m_ui->details->showEntry(entry, m_configuration);
    m_ui->btnSelect->setEnabled(entry != nullptr);
}

void AssignDaypartItem::on_btnCancel_clicked()
{
    reject();
}

void AssignDaypartItem::on_btnSelect_clicked()
{
    if (const ProductInfo *entry = selectedEntry()) {
        m_resultId = entry->get_productId();
        accept();
    }
}

void AssignDaypartItem::on_listWidgetProducts_itemSelectionChanged()
{
    loadProductInfo();
}

void AssignDaypartItem::on_listWidgetProducts_currentRowChanged([[maybe_unused]] int currentRow)
{
    loadProductInfo();
}
