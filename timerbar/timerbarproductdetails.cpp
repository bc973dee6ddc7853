// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarproductdetails.h"

#include "model/names.h"
#include "model/productinfo.h"
#include "model/temperature.h"
#include "model/times.h"
#include "ui_timerbarproductdetails.h"

namespace {

constexpr QStringView hoursAndMinutes = u"HH:mm";

} // namespace

TimerBarProductDetails::TimerBarProductDetails(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::TimerBarProductDetails>())
{
    m_ui->setupUi(this);
}

TimerBarProductDetails::~TimerBarProductDetails() = default;

void TimerBarProductDetails::showProduct(const ProductInfo *product, int temperatureUnit)
{
    if (!product) {
        for (QLabel *value :
             std::initializer_list<QLabel *>{m_ui->txtName, m_ui->txtShortName, m_ui->txtTempUpper,
                                             m_ui->txtTempLower, m_ui->txtHoldTime, m_ui->txtWarningTime})
            value->clear();
        return;
    }
    m_ui->txtName->setText(shownName(product->get_productName()));
    m_ui->txtShortName->setText(product->get_productShortName());
    m_ui->txtTempUpper->setText(temperatureText(product->get_upperTemp(), temperatureUnit));
    m_ui->txtTempLower->setText(temperatureText(product->get_lowerTemp(), temperatureUnit));
    m_ui->txtHoldTime->setText(timeText(product->get_holdTime(), hoursAndMinutes));
    m_ui->txtWarningTime->setText(timeText(product->get_warningTime(), hoursAndMinutes));
}

void TimerBarProductDetails::setShortNameLabel(const QString &label)
{
    m_ui->lblShortName->setText(label);
}
