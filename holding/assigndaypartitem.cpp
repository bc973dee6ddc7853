// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/assigndaypartitem.h"

#include <utility>

#include <QListWidget>

#include "holding/menufile.h"
#include "holding/misfits.h"
#include "holding/rowdescription.h"
#include "ui_assigndaypartitem.h"
#include "widgets/emptyhint.h"
#include "widgets/enterkey.h"
#include "widgets/findrows.h"
#include "widgets/fixedsize.h"
#include "widgets/listkeys.h"
#include "widgets/numberedrows.h"

using namespace Qt::StringLiterals;

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
    m_notes = addListNotes(m_ui->listWidgetProducts);
    m_find = new FindRows(m_ui->listWidgetProducts, u"txtFind"_s, m_ui->btnSelect);
    m_find->setFocus();
    new ListKeys(m_ui->listWidgetProducts, m_ui->btnSelect);
    numberedrows::describe(m_ui->listWidgetProducts, [this](int row) {
        return holding::rowDescription(m_entries.value(row), m_configuration);
    });
    letEnterPressFocusedButton(this);
    // Room for a name of three lines below the other details, in any font.
    m_ui->spacerDetails->changeSize(0, 2 * fontMetrics().lineSpacing(), QSizePolicy::Minimum,
                                    QSizePolicy::Expanding);
    loadProducts();
    fixSizeOnScreen(this);
    setWindowTitle(tr("Assign Product/Group"));
    loadProductInfo();
    connect(m_ui->listWidgetProducts, &QListWidget::itemDoubleClicked, this,
            &AssignDaypartItem::on_btnSelect_clicked);
}

AssignDaypartItem::~AssignDaypartItem() = default;

void AssignDaypartItem::setPlace(const QString &daypart, Bin bin, const QString &content)
{
    m_notes.setAbove(placeText(daypart, bin, content));
    fixSizeOnScreen(this); // a long name in a large font takes lines of its own
}

void AssignDaypartItem::find(const QString &text)
{
    m_find->find(text);
}

QString AssignDaypartItem::misfitOf(const ProductInfo &entry) const
{
    return holding::binMisfitText(entry, m_limits, m_allowedZoneSplits, m_configuration);
}

void AssignDaypartItem::loadProducts()
{
    QListWidget *list = m_ui->listWidgetProducts;
    list->clear();
    int fitting = 0;
    for (const ProductInfo *entry : std::as_const(m_entries)) {
        const QString name = shownName(entry->get_productName());
        const bool fits =
            holding::fitsBin(*entry, m_limits, m_allowedZoneSplits, m_configuration.fanSpeedEnabled);
        QListWidgetItem *item =
            numberedrows::appendToPick(list, {name, name, fits, [this, entry] { return misfitOf(*entry); }});
        item->setData(numberedrows::idRole, entry->get_productId());
        fitting += fits ? 1 : 0;
    }
    m_notes.setBelow(demandLine(holding::binDemandText(m_limits, m_allowedZoneSplits, m_configuration),
                                fitting, list->count()));
    m_find->refresh();
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
