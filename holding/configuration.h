// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

#include "holding/cabinet.h"

namespace Ui {
class Configuration;
}

/// Edits the cabinet type and model, the temperature unit and the four switches of a menu.
///
/// The getters return the stored values; they are what the user sees only after Save.
class Configuration final : public QDialog
{
    Q_OBJECT

public:
    explicit Configuration(QWidget *parent = nullptr);
    ~Configuration() override;

    [[nodiscard]] int getTempUnit() const { return m_values.temperatureUnit; }
    void setTempUnit(int value);
    [[nodiscard]] QString getCabinetType() const { return m_values.type; }
    void setCabinetType(const QString &value);
    /// Set the type first: the models on offer are those of the type.
    [[nodiscard]] QString getCabinetModel() const { return m_values.model; }
    void setCabinetModel(const QString &value);
    [[nodiscard]] bool getProductIdEnabled() const { return m_values.productIdEnabled; }
    void setProductIdEnabled(bool value);
    [[nodiscard]] bool getFanSpeedEnabled() const { return m_values.fanSpeedEnabled; }
    void setFanSpeedEnabled(bool value);
    [[nodiscard]] bool getResetTimeEnabled() const { return m_values.resetTimeEnabled; }
    void setResetTimeEnabled(bool value);
    [[nodiscard]] bool getTimerColorEnabled() const { return m_values.timerColorEnabled; }
    void setTimerColorEnabled(bool value);

    /// All seven at once.
    [[nodiscard]] holding::CabinetConfiguration values() const { return m_values; }
    void setValues(const holding::CabinetConfiguration &values);

public slots:
    void on_btnAccept_clicked();
    void on_btnCancel_clicked();
    void on_comboUnitType_currentIndexChanged(int index);
    void on_comboUnitModel_currentIndexChanged(int index);
    void on_rbTempUnitF_clicked();
    void on_rbTempUnitC_clicked();

private:
    std::unique_ptr<Ui::Configuration> m_ui;
    holding::CabinetConfiguration m_values;
};
