// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

class ProductInfo;

namespace Ui {
class TimerBarProductDetails;
}

/// Shows the values of one Timer Bar product, row by row.
class TimerBarProductDetails final : public QWidget
{
    Q_OBJECT

public:
    explicit TimerBarProductDetails(QWidget *parent = nullptr);
    ~TimerBarProductDetails() override;

    /// Shows a product with its temperatures in the menu's unit, or empties every value for null.
    void showProduct(const ProductInfo *product, int temperatureUnit);
    void setShortNameLabel(const QString &label);

protected:
    /// What to do is painted beside the row names while no product is shown.
    void paintEvent(QPaintEvent *event) override;

private:
    void tellPairs();

    std::unique_ptr<Ui::TimerBarProductDetails> m_ui;
    bool m_empty = true;
};
