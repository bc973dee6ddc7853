// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>
#include <QList>
#include <QStringList>

#include "holding/bins.h"
#include "widgets/listnotes.h"

class FindRows;
class MenuFile;
class ProductInfo;

namespace Ui {
class AssignDaypartItem;
}

/// Picks the product or group for one bin. Every entry of the menu is listed; those that cannot hold in the
/// bin are greyed and cannot be selected.
class AssignDaypartItem final : public QDialog
{
    Q_OBJECT

public:
    /// Temperatures in °F and the fan speed in RPM are what the entry must have; 0 is no requirement.
    AssignDaypartItem(const QStringList &allowedZoneSplits, int upperTemp, int lowerTemp, int fanSpeed,
                      bool singleBinSecondZone, MenuFile *menuFile);
    ~AssignDaypartItem() override;

    /// Says which bin is being filled: the day part's name, the place and the name of what stands there now.
    void setPlace(const QString &daypart, Bin bin, const QString &content);
    /// Looks for what was typed before the dialog came up.
    void find(const QString &text);

    /// The id of the chosen product or group, after an accepted run.
    [[nodiscard]] int resultId() const { return m_resultId; }

public slots:
    void loadProducts();
    void loadProductInfo();
    void on_btnCancel_clicked();
    void on_btnSelect_clicked();
    void on_listWidgetProducts_itemSelectionChanged();
    void on_listWidgetProducts_currentRowChanged(int currentRow);

private:
    [[nodiscard]] const ProductInfo *selectedEntry() const; ///< null for none

    [[nodiscard]] QString misfitOf(const ProductInfo &entry) const;

    std::unique_ptr<Ui::AssignDaypartItem> m_ui;
    ListNotes m_notes;
    FindRows *m_find = nullptr; ///< the list owns it
    const holding::CabinetConfiguration m_configuration;
    QStringList m_allowedZoneSplits;
    holding::BinLimits m_limits;
    /// The allowed splits already say what it means for the bin.
    [[maybe_unused]] bool m_singleBinSecondZone;
    const QList<ProductInfo *> m_entries; ///< the menu's products, then its groups
    int m_resultId = holding::emptyBin;
};
