// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>
#include <QString>

#include "model/temperature.h"

namespace Ui {
class TimerBarConfig;
}

/// Edits the cabinet model and the temperature unit of a Timer Bar menu.
class TimerBarConfig final : public QDialog
{
    Q_OBJECT

public:
    explicit TimerBarConfig(QWidget *parent = nullptr);
    ~TimerBarConfig() override;

public slots:
    /// The stored values; what the user chooses is stored by Save.
    [[nodiscard]] quint8 getTempUnit() const;
    void setTempUnit(quint8 value);
    [[nodiscard]] QString getCabinetModel() const;
    void setCabinetModel(const QString &value);
    void on_btnCancel_clicked();
    void on_btnAccept_clicked();

private:
    std::unique_ptr<Ui::TimerBarConfig> m_ui;
    quint8 m_tempUnit = unitFahrenheit;
    QString m_cabinetModel;
};
