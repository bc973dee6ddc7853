// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarproductdetails.h"

#include <QPainter>

#include "model/names.h"
#include "model/productinfo.h"
#include "model/temperature.h"
#include "model/times.h"
#include "ui_timerbarproductdetails.h"
#include "widgets/announce.h"
#include "widgets/emptyhint.h"

namespace {

constexpr QStringView hoursAndMinutes = u"HH:mm";

QString emptyHint()
{
    return TimerBarProductDetails::tr("Select a product");
}

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
    const auto show = [product](QLabel *label, const auto &textOf) {
        label->setText(product ? textOf(*product) : QString());
    };
    const auto time = [](int seconds) { return timeText(seconds, hoursAndMinutes); };
    const auto temperature = [=](int fahrenheit) { return temperatureText(fahrenheit, temperatureUnit); };
    show(m_ui->txtName, [](const ProductInfo &shown) { return shownName(shown.get_productName()); });
    show(m_ui->txtShortName, [](const ProductInfo &shown) { return shown.get_productShortName(); });
    show(m_ui->txtTempUpper, [&](const ProductInfo &shown) { return temperature(shown.get_upperTemp()); });
    show(m_ui->txtTempLower, [&](const ProductInfo &shown) { return temperature(shown.get_lowerTemp()); });
    show(m_ui->txtHoldTime, [&](const ProductInfo &shown) { return time(shown.get_holdTime()); });
    show(m_ui->txtWarningTime, [&](const ProductInfo &shown) { return time(shown.get_warningTime()); });
    tellPairs();
    if (m_empty == static_cast<bool>(product))
        update();
    m_empty = !product;
    announce::description(this, m_empty ? emptyHint() : QString());
}

void TimerBarProductDetails::tellPairs()
{
    announce::pair(m_ui->lblName, m_ui->txtName);
    announce::pair(m_ui->lblShortName, m_ui->txtShortName);
    announce::pair(m_ui->lblTempUpper, m_ui->txtTempUpper);
    announce::pair(m_ui->lblTempLower, m_ui->txtTempLower);
    announce::pair(m_ui->lblHoldTime, m_ui->txtHoldTime);
    announce::pair(m_ui->lblWarningTime, m_ui->txtWarningTime);
}

void TimerBarProductDetails::paintEvent([[maybe_unused]] QPaintEvent *event)
{
    if (!m_empty)
        return;
    QPainter painter(this);
    paintEmptyHint(painter, *this, rect().adjusted(m_ui->txtName->x(), 0, 0, 0), emptyHint());
}

void TimerBarProductDetails::setShortNameLabel(const QString &label)
{
    m_ui->lblShortName->setText(label);
}
