// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "timerbar/binbuttons.h"
#include "timerbar/menu.h"
#include "widgets/bingrid.h"
#include "widgets/binslots.h"
#include "widgets/entrypane.h"
#include "widgets/menueditor.h"

class QListWidgetItem;

namespace Ui {
class TimerBarMenuFile;
}

/// The editor of one Timer Bar menu. It owns the menu: model, unit, products and the bins of six day parts.
///
/// Rules and file format are in the core. The slots keep their names and order, as callers find them by name.
/// Dialogs read the accessors when they are built.
class TimerBarMenuFile final : public MenuEditor
{
    Q_OBJECT

public:
    /// An empty path makes a new menu, for which the user is asked for the cabinet.
    explicit TimerBarMenuFile(const QString &filePath, QWidget *parent = nullptr);
    ~TimerBarMenuFile() override;

    /// Writes in place, record by record: after an error, which has been shown, the file holds a part of the
    /// menu and the editor counts as invalid until a later read or write succeeds.
    bool writeMenuFile(const QString &fileName);
    bool writeToFile(const QString &path) override { return writeMenuFile(path); }
    [[nodiscard]] SaveNameRequest nameRequest(SaveKind kind) const override;

    [[nodiscard]] QString model() const { return m_menu.model; }
    [[nodiscard]] int temperatureUnit() const { return m_menu.temperatureUnit; }
    /// The records stay the editor's: they go when they are deleted or the file is read again.
    [[nodiscard]] QList<ProductInfo *> products() const;

public slots:
    // Forwarded, as they belong to the slots that callers find by name.
    void closeEvent(QCloseEvent *event) override;
    void reject() override;
    /// Reads the file again and shows it. After an error, which has been shown, the menu is as it was, and
    /// the editor counts as invalid until a later read or write succeeds.
    bool readMenuFile();
    void loadDefaultMenu();
    /// Shows everything anew, with no current row.
    void loadMenuFile();
    void loadCabinetInfo(); ///< the line above the tabs
    void loadProducts();
    void loadProductInfo();
    void loadDayparts();
    void loadCurrentDaypart();
    ProductInfo *getProductObject(int productId);
    bool removeIdFromAllDayparts(int productId);
    void assignProductToBin(int rowIndex, int binIndex);
    void on_btnConfig_clicked();
    void on_btnAddProduct_clicked();
    void on_btnEditProduct_clicked();
    void on_btnDuplicateProduct_clicked();
    void on_btnDeleteProduct_clicked();
    void on_btnSelectMultiProduct_clicked();
    void on_btnExportFile_clicked();
    void dayPartPressHoldDetected();
    FOR_EACH_TIMER_BAR_BIN_BUTTON(DECLARE_BIN_BUTTON_SLOTS)
    void on_btnCancelDaypartRemove_clicked();
    void on_btnDaypartRemove_clicked();
    void on_listWidgetProducts_itemSelectionChanged();
    void on_listWidgetProducts_currentRowChanged(int currentRow);
    void on_listWidgetProducts_itemDoubleClicked(QListWidgetItem *item);
    void on_comboDaypartSelect_currentIndexChanged(int index);
    void on_listWidgetProducts_itemChanged(QListWidgetItem *item);

protected:
    [[nodiscard]] QByteArray contents() const override;
    [[nodiscard]] Findings findings() const override;
    [[nodiscard]] QStringList textsOf(const QList<Finding> &findings) const override;
    void goTo(const MenuPlace &place) override;
    bool leaveMode() override;

private:
    [[nodiscard]] bool createMenu();
    [[nodiscard]] bool readInto(timerbar::Menu &menu);
    [[nodiscard]] ProductInfo *currentProduct() const; ///< null for none
    void addProduct(std::unique_ptr<ProductInfo> product);
    [[nodiscard]] bool refuseWhenFull();

    void prepareGrid();
    void showRemovalMode(bool removing);
    void registerBins(const timerbar::CabinetShape &shape);
    [[nodiscard]] timerbar::DaypartCells *currentCells(); ///< null while no day part is selected
    void copyBins();
    void saveBinPlan();

    std::unique_ptr<Ui::TimerBarMenuFile> m_ui;
    timerbar::Menu m_menu;
    EntryPane m_products;
    BinGrid m_grid;
};
