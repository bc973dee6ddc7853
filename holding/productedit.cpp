// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/productedit.h"

#include <algorithm>

#include "holding/menu.h"
#include "holding/menufile.h"
#include "holding/producttypes.h"
#include "holding/timercolorpicker.h"
#include "holding/timercolorsample.h"
#include "model/times.h"
#include "ui_productedit.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int minHoldSeconds = 6 * 60;
constexpr int maxHoldSeconds = 8 * 60 * 60;
constexpr int maxResetSeconds = 60 * 60 - 1;

int secondsIn(const QTimeEdit *edit)
{
    return secondsOf(edit->time());
}

// A stored 0 means that no temperature is set. In Celsius the box then reaches down to 0, so that opening
// and saving does not make up a temperature.
void loadTemperature(QSpinBox *box, int fahrenheit, int unit)
{
    if (unit == unitCelsius)
        box->setRange(fahrenheit == 0 ? 0 : 32, 107);
    else
        box->setRange(90, 225);
    box->setValue(shownTemperature(fahrenheit, unit));
}

} // namespace

ProductEdit::ProductEdit(ProductInfo &product, int productIndex, MenuFile *menuFile)
    : RefusableDialog(menuFile)
    , m_ui(std::make_unique<Ui::ProductEdit>())
    , m_product(product)
    , m_productIndex(productIndex)
    , m_menuFile(menuFile)
{
    m_ui->setupUi(this);
    m_ui->btnTimerColor->setAttribute(Qt::WA_StyledBackground); // else a flat button does not paint it
    letEnterPressFocusedButton(this);
    fixDesignedSize(this);
    setWindowTitle(tr("Product Edit"));
    fillChoices();
    applyConfiguration();
    m_ui->numProductId->setValue(product.get_productId());
    m_ui->txtName->setText(shownName(product.get_productName()));
    m_ui->txtName->setFocus();
    loadTemperatures();
    m_ui->timeHoldTime->setTime(timeOfSeconds(product.get_holdTime()));
    m_ui->timeWarningTime->setTime(timeOfSeconds(product.get_warningTime()));
    m_ui->timeResetTime->setTime(timeOfSeconds(product.get_resetTime()));
    m_ui->numFanSpeed->setValue(product.get_fanSpeed());
    m_ui->comboZoneSplits->setCurrentText(product.get_zoneSplits());
    loadTypes();
    loadTimerColor();
}

ProductEdit::~ProductEdit() = default;

void ProductEdit::fillChoices()
{
    m_ui->comboLidType->addItems(holding::lidTexts());
    m_ui->comboBottomType->addItems(holding::bottomTexts());
    const QStringList zoneSplits = holding::offeredZoneSplits(m_menuFile->getBinsPerZone());
    m_ui->comboZoneSplits->addItems(zoneSplits);
    if (zoneSplits.isEmpty())
        refuse(tr("Invalid bins per zone value!"));
}

void ProductEdit::applyConfiguration()
{
    const QString suffix = u"(%1)"_s.arg(unitText(m_menuFile->getTemperatureUnit()));
    const QString type = m_menuFile->getCabinetType();
    if (holding::isZpv(type)) {
        m_ui->lblTemp1->setText(tr("Temperature ") + suffix);
        m_ui->frameTemp2->hide();
        m_ui->frameLidType->hide();
    } else if (holding::isQhx(type)) {
        m_ui->lblTemp1->setText(tr("Upper Temperature ") + suffix);
        m_ui->lblTemp2->setText(tr("Lower Temperature ") + suffix);
    } else {
        refuse(tr("Unkown cabinet type!"));
    }
    m_ui->frameProductId->setVisible(m_menuFile->getProductIdEnabled());
    m_ui->frameFanSpeed->setVisible(m_menuFile->getFanSpeedEnabled());
    m_ui->frameResetTime->setVisible(m_menuFile->getResetTimeEnabled());
    m_ui->frameTimerColor->setVisible(m_menuFile->getTimerColorEnabled());
}

void ProductEdit::loadTemperatures()
{
    const int unit = m_menuFile->getTemperatureUnit();
    loadTemperature(m_ui->numTemp1, m_product.get_upperTemp(), unit);
    loadTemperature(m_ui->numTemp2, m_product.get_lowerTemp(), unit);
}

void ProductEdit::loadTypes()
{
    m_ui->comboLidType->setCurrentIndex(holding::lidIndex(m_product.get_lidType()));
    m_ui->comboBottomType->setCurrentIndex(holding::bottomIndex(m_product.get_bottomType()));
}

void ProductEdit::loadTimerColor()
{
    if (!m_menuFile->getTimerColorEnabled())
        return;
    const holding::TimerColor &entry = holding::timerColorByName(m_product.get_timerColor());
    m_timerColorName = entry.colorName;
    showTimerColor(entry);
}

void ProductEdit::showTimerColor(const holding::TimerColor &entry)
{
    const auto sample = holding::timerColorSample(entry);
    m_ui->btnTimerColor->setStyleSheet(sample.styleSheet);
    m_ui->btnTimerColor->setText(sample.text);
}

void ProductEdit::on_btnTimerColor_clicked()
{
    TimerColorPicker picker(this);
    picker.setWindowTitle(tr("Colors"));
    if (picker.exec() != Accepted)
        return;
    const holding::TimerColor &entry = *picker.chosen();
    m_timerColorName = entry.colorName;
    showTimerColor(entry);
    if (entry.isNone())
        m_ui->btnTimerColor->setStyleSheet(
            u"background-color: rgb(250, 255, 189); border-image: url(:/images/noColor.png);"_s);
}

void ProductEdit::on_btnCancel_clicked()
{
    reject();
}

void ProductEdit::on_btnSave_clicked()
{
    if (const QString fault = firstFault(); !fault.isEmpty()) {
        messages::entryFault(this, fault);
        return;
    }
    writeRecord();
    accept();
}

// A menu's hundredth entry and products of a file may have an id outside the box's range: as long as the box
// shows what it made of that id, it stands for the id itself.
int ProductEdit::enteredId() const
{
    const QSpinBox *box = m_ui->numProductId;
    const int ownId = m_product.get_productId();
    const bool showsOwnId = box->value() == std::clamp(ownId, box->minimum(), box->maximum());
    return showsOwnId ? ownId : box->value();
}

bool ProductEdit::isIdTaken() const
{
    const int id = enteredId();
    const QList<ProductInfo *> products = m_menuFile->getMenuProducts();
    for (qsizetype i = 0; i < products.size(); ++i) {
        if (i != m_productIndex && products[i]->get_productId() == id)
            return true;
    }
    return false;
}

QString ProductEdit::firstFault() const
{
    const int holdSeconds = secondsIn(m_ui->timeHoldTime);
    if (m_menuFile->getProductIdEnabled() && isIdTaken())
        return tr("Product Id is duplicated!");
    if (m_ui->txtName->text().isEmpty())
        return tr("Product name is empty!");
    if (holdSeconds < minHoldSeconds)
        return tr("Invalid hold time. Minimum value is 6 minutes!");
    if (holdSeconds > maxHoldSeconds)
        return tr("Invalid hold time. Maximum value is 8 hours!");
    if (holdSeconds <= secondsIn(m_ui->timeWarningTime))
        return tr("Invalid cook more alert time. Value must be less than hold time!");
    if (m_menuFile->getResetTimeEnabled() && secondsIn(m_ui->timeResetTime) > maxResetSeconds)
        return tr("Invalid reset time!");
    return {};
}

void ProductEdit::writeRecord()
{
    const int unit = m_menuFile->getTemperatureUnit();
    const int upperTemp = enteredTemperature(m_ui->numTemp1->value(), m_product.get_upperTemp(), unit);
    const int lowerTemp = enteredTemperature(m_ui->numTemp2->value(), m_product.get_lowerTemp(), unit);
    const bool oneTemperature = m_ui->frameTemp2->isHidden();
    m_product.set_productName(sameNameInAllLanguages(m_ui->txtName->text()));
    m_product.set_upperTemp(upperTemp);
    m_product.set_lowerTemp(oneTemperature ? upperTemp : lowerTemp);
    m_product.set_holdTime(secondsIn(m_ui->timeHoldTime));
    m_product.set_warningTime(secondsIn(m_ui->timeWarningTime));
    m_product.set_resetTime(m_menuFile->getResetTimeEnabled() ? secondsIn(m_ui->timeResetTime) : 0);
    m_product.set_fanSpeed(m_menuFile->getFanSpeedEnabled() ? m_ui->numFanSpeed->value() : 0);
    m_product.set_zoneSplits(m_ui->comboZoneSplits->currentText());
    m_product.set_lidType(holding::lidTypes().value(m_ui->comboLidType->currentIndex()));
    m_product.set_bottomType(holding::bottomTypes().value(m_ui->comboBottomType->currentIndex()));
    m_product.set_timerColor(m_menuFile->getTimerColorEnabled() ? m_timerColorName
                                                                : holding::timerPalette().front().colorName);
}
