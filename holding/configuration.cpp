// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/configuration.h"

#include "ui_configuration.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

using namespace Qt::StringLiterals;

Configuration::Configuration(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::Configuration>())
{
    m_ui->setupUi(this);
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
    // The slots are connected by now: the first type shown fills the models and the stored values.
    m_ui->comboUnitType->addItems(holding::cabinetTypes());
    m_ui->comboUnitType->setCurrentText(u"ZPV"_s);
}

Configuration::~Configuration() = default;

void Configuration::setTempUnit(int value)
{
    m_values.temperatureUnit = value;
    (value == unitCelsius ? m_ui->rbTempUnitC : m_ui->rbTempUnitF)->setChecked(true);
}

void Configuration::setCabinetType(const QString &value)
{
    m_ui->comboUnitType->setCurrentText(value);
    m_values.type = value;
}

void Configuration::setCabinetModel(const QString &value)
{
    m_ui->comboUnitModel->setCurrentText(value);
    m_values.model = value;
}

void Configuration::setProductIdEnabled(bool value)
{
    m_values.productIdEnabled = value;
    m_ui->checkBoxProductIdEditEnabled->setChecked(value);
}

void Configuration::setFanSpeedEnabled(bool value)
{
    m_values.fanSpeedEnabled = value;
    m_ui->checkBoxFanSpeedEnabled->setChecked(value);
}

void Configuration::setResetTimeEnabled(bool value)
{
    m_values.resetTimeEnabled = value;
    m_ui->checkBoxResetTimeEnabled->setChecked(value);
}

void Configuration::setTimerColorEnabled(bool value)
{
    m_values.timerColorEnabled = value;
    m_ui->checkBoxTimerColorEnabled->setChecked(value);
}

void Configuration::setValues(const holding::CabinetConfiguration &values)
{
    setCabinetType(values.type);
    setCabinetModel(values.model);
    setTempUnit(values.temperatureUnit);
    setFanSpeedEnabled(values.fanSpeedEnabled);
    setResetTimeEnabled(values.resetTimeEnabled);
    setProductIdEnabled(values.productIdEnabled);
    setTimerColorEnabled(values.timerColorEnabled);
}

void Configuration::on_btnAccept_clicked()
{
    m_values.type = m_ui->comboUnitType->currentText();
    m_values.model = m_ui->comboUnitModel->currentText();
    m_values.fanSpeedEnabled = m_ui->checkBoxFanSpeedEnabled->isChecked();
    m_values.resetTimeEnabled = m_ui->checkBoxResetTimeEnabled->isChecked();
    m_values.productIdEnabled = m_ui->checkBoxProductIdEditEnabled->isChecked();
    m_values.timerColorEnabled = m_ui->checkBoxTimerColorEnabled->isChecked();
    accept();
}

void Configuration::on_btnCancel_clicked()
{
    reject();
}

void Configuration::on_comboUnitType_currentIndexChanged([[maybe_unused]] int index)
{
    m_ui->comboUnitModel->clear();
    m_ui->comboUnitModel->addItems(holding::cabinetModels(m_ui->comboUnitType->currentText()));
    m_values.type = m_ui->comboUnitType->currentText();
}

void Configuration::on_comboUnitModel_currentIndexChanged([[maybe_unused]] int index)
{
    m_values.model = m_ui->comboUnitModel->currentText();
}

void Configuration::on_rbTempUnitF_clicked()
{
    if (m_ui->rbTempUnitF->isChecked())
        m_values.temperatureUnit = unitFahrenheit;
}

void Configuration::on_rbTempUnitC_clicked()
{
    if (m_ui->rbTempUnitC->isChecked())
        m_values.temperatureUnit = unitCelsius;
}
