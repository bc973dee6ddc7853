// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>
#include <QList>

#include "timerbar/bins.h"
#include "widgets/listnotes.h"

class FindRows;
class TimerBarMenuFile;

namespace Ui {
class TimerBarDaypartAssignItem;
}

/// Picks the product for one bin. Products that do not suit the bin's neighbour are greyed and cannot be
/// selected.
class TimerBarDaypartAssignItem final : public QDialog
{
    Q_OBJECT

public:
    /// The neighbour's temperatures in °F, 0 and 0 without one.
    TimerBarDaypartAssignItem(int upperTemp, int lowerTemp, TimerBarMenuFile *menuFile);
    ~TimerBarDaypartAssignItem() override;

    /// Says which bin is being filled: the day part's name, the place and the name of what stands there now.
    void setPlace(const QString &daypart, Bin bin, const QString &content);
    /// Looks for what was typed before the dialog came up.
    void find(const QString &text);

    /// The chosen product's id; timerbar::emptyCell for none.
    [[nodiscard]] int chosenId() const { return m_chosenId; }

public slots:
    void loadProducts();
    void loadProductInfo();
    void on_btnCancel_clicked();
    void on_btnSelect_clicked();
    void on_listWidgetProducts_itemSelectionChanged();
    void on_listWidgetProducts_currentRowChanged(int currentRow);

private:
    [[nodiscard]] const ProductInfo *selectedProduct() const; ///< null for none

    std::unique_ptr<Ui::TimerBarDaypartAssignItem> m_ui;
    ListNotes m_notes;
    FindRows *m_find = nullptr;      ///< the list owns it
    QList<ProductInfo *> m_products; ///< the editor's
    timerbar::ReferenceTemperatures m_reference;
    int m_temperatureUnit;
    int m_chosenId = timerbar::emptyCell;
};
