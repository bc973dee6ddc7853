// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/productdetails.h"

#include "holding/producttypes.h"
#include "holding/timercolorsample.h"
#include "model/names.h"
#include "model/productinfo.h"
#include "model/times.h"
#include "ui_productdetails.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize samplePadding(16, 4);

void setRowVisible(QLabel *label, QLabel *value, bool visible)
{
    label->setVisible(visible);
    value->setVisible(visible);
}

} // namespace

ProductDetails::ProductDetails(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ProductDetails>())
{
    m_ui->setupUi(this);
    reserveRoom();
}

ProductDetails::~ProductDetails() = default;

// The editor's size is fixed, whatever it shows later: room for the sample's text, in any font.
void ProductDetails::reserveRoom()
{
    QLabel *sample = m_ui->txtTimerColor;
    sample->setText(holding::timerColorSample(holding::timerPalette().back()).text);
    sample->setFixedSize(sample->minimumSize().expandedTo(sample->sizeHint() + samplePadding));
}

void ProductDetails::showEntry(const ProductInfo *entry, const holding::CabinetConfiguration &configuration)
{
    showRows(configuration);
    if (!entry) {
        clear();
        return;
    }
    const int unit = configuration.temperatureUnit;
    m_ui->txtProductId->setText(QString::number(entry->get_productId()));
    m_ui->txtName->setText(shownName(entry->get_productName()));
    m_ui->txtTemp1->setText(temperatureText(entry->get_upperTemp(), unit));
    m_ui->txtTemp2->setText(temperatureText(entry->get_lowerTemp(), unit));
    m_ui->txtHoldTime->setText(timeText(entry->get_holdTime()));
    m_ui->txtWarningTime->setText(timeText(entry->get_warningTime()));
    m_ui->txtResetTime->setText(timeText(entry->get_resetTime()));
    m_ui->txtFanSpeed->setText(tr("%1 (RPM)").arg(entry->get_fanSpeed()));
    m_ui->txtLidType->setText(holding::lidText(entry->get_lidType()));
    m_ui->txtBottomType->setText(holding::bottomText(entry->get_bottomType()));
    m_ui->txtZoneSplits->setText(entry->get_zoneSplits());
    showTimerColor(entry->get_timerColor());
}

void ProductDetails::showRows(const holding::CabinetConfiguration &configuration)
{
    const bool zpv = holding::isZpv(configuration.type);
    m_ui->lblTemp1->setText(zpv ? tr("Temperature:") : tr("Upper Temperature:"));
    setRowVisible(m_ui->lblTemp2, m_ui->txtTemp2, !zpv);
    setRowVisible(m_ui->lblLidType, m_ui->txtLidType, !zpv);
    setRowVisible(m_ui->lblProductId, m_ui->txtProductId, configuration.productIdEnabled);
    setRowVisible(m_ui->lblFanSpeed, m_ui->txtFanSpeed, configuration.fanSpeedEnabled);
    setRowVisible(m_ui->lblResetTime, m_ui->txtResetTime, configuration.resetTimeEnabled);
    setRowVisible(m_ui->lblTimerColor, m_ui->txtTimerColor, configuration.timerColorEnabled);
}

void ProductDetails::clear()
{
    for (QLabel *value : std::initializer_list<QLabel *>{
             m_ui->txtProductId, m_ui->txtName, m_ui->txtTemp1, m_ui->txtTemp2, m_ui->txtHoldTime,
             m_ui->txtWarningTime, m_ui->txtResetTime, m_ui->txtFanSpeed, m_ui->txtLidType,
             m_ui->txtBottomType, m_ui->txtZoneSplits, m_ui->txtTimerColor})
        value->clear();
    m_ui->txtTimerColor->setStyleSheet({});
}

void ProductDetails::showTimerColor(const QString &colorName)
{
    const auto sample = holding::timerColorSample(holding::timerColorByName(colorName));
    m_ui->txtTimerColor->setStyleSheet(sample.styleSheet);
    m_ui->txtTimerColor->setText(sample.text);
}
