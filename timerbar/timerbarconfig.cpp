// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarconfig.h"

#include "timerbar/cabinet.h"
#include "ui_timerbarconfig.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

TimerBarConfig::TimerBarConfig(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TimerBarConfig>())
{
    m_ui->setupUi(this);
    m_ui->comboUnitModel->addItems(timerbar::cabinetModels());
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
}

TimerBarConfig::~TimerBarConfig() = default;

quint8 TimerBarConfig::getTempUnit() const
{
    return m_tempUnit;
}

void TimerBarConfig::setTempUnit(quint8 value)
{
    m_tempUnit = value;
    (value == unitCelsius ? m_ui->rbTempUnitC : m_ui->rbTempUnitF)->setChecked(true);
}

QString TimerBarConfig::getCabinetModel() const
{
    return m_cabinetModel;
}

void TimerBarConfig::setCabinetModel(const QString &value)
{
    m_cabinetModel = value;
    m_ui->comboUnitModel->setCurrentText(value);
}

void TimerBarConfig::on_btnCancel_clicked()
{
    done(0);
}

void TimerBarConfig::on_btnAccept_clicked()
{
    m_cabinetModel = m_ui->comboUnitModel->currentText();
    m_tempUnit = m_ui->rbTempUnitC->isChecked() ? unitCelsius : unitFahrenheit;
    done(1);
}
