// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSpinBox>

#include "model/temperature.h"

/// A number box for a product's temperature in the menu's unit. Where no temperature is stored yet it may
/// also hold 0 for none, but nothing between that and the lowest temperature.
class TemperatureBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit TemperatureBox(QWidget *parent = nullptr);

    void setTemperatures(const TemperatureRange &range, bool mayBeNone);

    void stepBy(int steps) override;

protected:
    [[nodiscard]] QValidator::State validate(QString &text, int &position) const override;

private:
    [[nodiscard]] bool isBetween(int value) const { return value > minimum() && value < m_lowest; }

    int m_lowest = 0; ///< the least temperature; minimum() is less only where there may be none
};
