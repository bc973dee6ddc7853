// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/productedit.h"

#include "holding/menufile.h"
#include "holding/productrules.h"
#include "holding/producttypes.h"
#include "holding/timercolorpicker.h"
#include "holding/timercolorsample.h"
#include "holding/zonesplits.h"
#include "model/timelimits.h"
#include "ui_productedit.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Ui::ProductEdit> makeForm(ProductEdit *dialog)
{
    auto form = std::make_unique<Ui::ProductEdit>();
    form->setupUi(dialog);
    return form;
}

void loadTemperature(TemperatureBox *box, int fahrenheit, int unit)
{
    box->setTemperatures(holding::productTemperatureRange(unit),
                         holding::mayHaveNoTemperature(unit, fahrenheit));
    box->setValue(shownTemperature(fahrenheit, unit));
}

} // namespace

ProductEdit::ProductEdit(ProductInfo &product, int productIndex, MenuFile *menuFile)
    : RefusableDialog(menuFile)
    , m_ui(makeForm(this))
    , m_product(product)
    , m_productIndex(productIndex)
    , m_configuration(menuFile->configuration())
    , m_products(menuFile->getMenuProducts())
    , m_holdTime(m_ui->timeHoldTime)
    , m_warningTime(m_ui->timeWarningTime)
    , m_resetTime(m_ui->timeResetTime)
{
    m_ui->btnTimerColor->setAttribute(Qt::WA_StyledBackground); // else a flat button does not paint it
    letEnterPressFocusedButton(this);
    setWindowTitle(tr("Product Edit"));
    fillChoices(menuFile->getBinsPerZone());
    applyConfiguration();
    fixSizeOnScreen(this);
    loadRecord();
    loadTypes();
    loadTimerColor();
}

ProductEdit::~ProductEdit() = default;

void ProductEdit::fillChoices(int binsPerZone)
{
    m_ui->numFanSpeed->setMaximum(holding::maxFanSpeed);
    m_ui->comboLidType->addItems(holding::lidTexts());
    m_ui->comboBottomType->addItems(holding::bottomTexts());
    const QStringList zoneSplits = holding::offeredZoneSplits(binsPerZone);
    m_ui->comboZoneSplits->addItems(zoneSplits);
    if (zoneSplits.isEmpty())
        refuse(tr("Invalid bins per zone value!"));
}

void ProductEdit::applyConfiguration()
{
    const QString suffix = u"(%1)"_s.arg(unitText(m_configuration.temperatureUnit));
    if (holding::isZpv(m_configuration.type)) {
        m_ui->lblTemp1->setText(tr("Temperature ") + suffix);
        m_ui->frameTemp2->hide();
        m_ui->frameLidType->hide();
    } else if (holding::isQhx(m_configuration.type)) {
        m_ui->lblTemp1->setText(tr("Upper Temperature ") + suffix);
        m_ui->lblTemp2->setText(tr("Lower Temperature ") + suffix);
    } else {
        refuse(tr("Unkown cabinet type!"));
    }
    m_ui->frameProductId->setVisible(m_configuration.productIdEnabled);
    m_ui->frameFanSpeed->setVisible(m_configuration.fanSpeedEnabled);
    m_ui->frameResetTime->setVisible(m_configuration.resetTimeEnabled);
    m_ui->frameTimerColor->setVisible(m_configuration.timerColorEnabled);
}

void ProductEdit::loadRecord()
{
    m_ui->numProductId->setValue(m_product.get_productId());
    m_ui->txtName->setText(shownName(m_product.get_productName()));
    m_ui->txtName->setFocus();
    loadTemperature(m_ui->numTemp1, m_product.get_upperTemp(), m_configuration.temperatureUnit);
    loadTemperature(m_ui->numTemp2, m_product.get_lowerTemp(), m_configuration.temperatureUnit);
    m_holdTime.show(m_product.get_holdTime());
    m_warningTime.show(m_product.get_warningTime());
    m_resetTime.show(m_product.get_resetTime());
    m_ui->numFanSpeed->setValue(m_product.get_fanSpeed());
    m_ui->comboZoneSplits->setCurrentText(m_product.get_zoneSplits());
}

void ProductEdit::loadTypes()
{
    m_ui->comboLidType->setCurrentIndex(holding::lidIndex(m_product.get_lidType()));
    m_ui->comboBottomType->setCurrentIndex(holding::bottomIndex(m_product.get_bottomType()));
}

void ProductEdit::loadTimerColor()
{
    if (!m_configuration.timerColorEnabled)
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
    m_ui->btnTimerColor->setAccessibleDescription(holding::colorWords(entry));
}

void ProductEdit::on_btnTimerColor_clicked()
{
    TimerColorPicker picker(this);
    picker.setWindowTitle(tr("Colors"));
    picker.setCurrent(m_timerColorName);
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
    if (const messages::WrongEntry wrong = firstWrongEntry(); wrong.input) {
        messages::entryFault(this, wrong);
        return;
    }
    writeRecord();
    accept();
}

int ProductEdit::enteredId() const
{
    const QSpinBox *box = m_ui->numProductId;
    return holding::enteredId(box->value(), box->minimum(), box->maximum(), m_product.get_productId());
}

messages::WrongEntry ProductEdit::firstWrongEntry() const
{
    if (m_configuration.productIdEnabled && holding::isIdTaken(m_products, m_productIndex, enteredId()))
        return {tr("Product Id is duplicated!"), m_ui->numProductId};
    if (m_ui->txtName->text().isEmpty())
        return {tr("Product name is empty!"), m_ui->txtName};
    return firstWrongTime();
}

messages::WrongEntry ProductEdit::firstWrongTime() const
{
    if (const QString fault = holdTimeFault(m_holdTime.seconds()); !fault.isEmpty())
        return {fault, m_ui->timeHoldTime};
    if (const QString fault = alertTimeFault(m_holdTime.seconds(), m_warningTime.seconds()); !fault.isEmpty())
        return {fault, m_ui->timeWarningTime};
    if (!m_configuration.resetTimeEnabled)
        return {};
    const QString fault = resetTimeFault(m_resetTime.seconds());
    return fault.isEmpty() ? messages::WrongEntry() : messages::WrongEntry{fault, m_ui->timeResetTime};
}

void ProductEdit::writeRecord()
{
    const int unit = m_configuration.temperatureUnit;
    const int upperTemp = enteredTemperature(m_ui->numTemp1->value(), m_product.get_upperTemp(), unit);
    const int lowerTemp = enteredTemperature(m_ui->numTemp2->value(), m_product.get_lowerTemp(), unit);
    const bool oneTemperature = holding::isZpv(m_configuration.type);
    m_product.set_productName(sameNameInAllLanguages(m_ui->txtName->text()));
    m_product.set_upperTemp(upperTemp);
    m_product.set_lowerTemp(oneTemperature ? upperTemp : lowerTemp);
    m_product.set_holdTime(m_holdTime.seconds());
    m_product.set_warningTime(m_warningTime.seconds());
    m_product.set_resetTime(m_configuration.resetTimeEnabled ? m_resetTime.seconds() : 0);
    m_product.set_fanSpeed(m_configuration.fanSpeedEnabled ? m_ui->numFanSpeed->value() : 0);
    m_product.set_zoneSplits(m_ui->comboZoneSplits->currentText());
    m_product.set_lidType(holding::lidTypes().value(m_ui->comboLidType->currentIndex()));
    m_product.set_bottomType(holding::bottomTypes().value(m_ui->comboBottomType->currentIndex()));
    m_product.set_timerColor(m_configuration.timerColorEnabled ? m_timerColorName
                                                               : holding::timerPalette().front().colorName);
}
