// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QList>

#include "holding/cabinet.h"
#include "holding/timercolors.h"
#include "widgets/messages.h"
#include "widgets/refusabledialog.h"
#include "widgets/timeentry.h"

class MenuFile;
class ProductInfo;

namespace Ui {
class ProductEdit;
}

/// Edits one product of a holding-cabinet menu. The record is written only by a Save that passes every
/// check, and never its id: that is the menu's business.
class ProductEdit final : public RefusableDialog
{
    Q_OBJECT

public:
    /// `product` stays the caller's. `productIndex` is its place in the menu's products; for a new product
    /// any index that no product has.
    ProductEdit(ProductInfo &product, int productIndex, MenuFile *menuFile);
    ~ProductEdit() override;

public slots:
    void on_btnTimerColor_clicked();
    void on_btnCancel_clicked();
    void on_btnSave_clicked();

private:
    void fillChoices(int binsPerZone);
    void applyConfiguration();
    void loadRecord();
    void loadTypes();
    void loadTimerColor();
    void showTimerColor(const holding::TimerColor &entry);
    [[nodiscard]] int enteredId() const;
    [[nodiscard]] messages::WrongEntry firstWrongEntry() const;
    [[nodiscard]] messages::WrongEntry firstWrongTime() const;
    void writeRecord();

    std::unique_ptr<Ui::ProductEdit> m_ui;
    ProductInfo &m_product;
    const int m_productIndex;
    const holding::CabinetConfiguration m_configuration;
    const QList<ProductInfo *> m_products; ///< the menu's
    TimeEntry m_holdTime;
    TimeEntry m_warningTime;
    TimeEntry m_resetTime;
    QString m_timerColorName;
};
