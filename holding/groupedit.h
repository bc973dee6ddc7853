// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QList>

#include "holding/groupdraft.h"
#include "model/entries.h"
#include "widgets/listnotes.h"
#include "widgets/refusabledialog.h"

class FindRows;
class MenuFile;
class ProductInfo;
class QListWidgetItem;

namespace Ui {
class GroupEdit;
}

/// Edits one group of a holding-cabinet menu: which products it has and which of them is the default.
///
/// The first member fixes the settings that all members share. The record is written only by a Save that
/// passes every check. Members whose product the menu does not have are not listed, but keep their place.
class GroupEdit final : public RefusableDialog
{
    Q_OBJECT

public:
    /// `group` stays the caller's.
    GroupEdit(ProductInfo &group, MenuFile *menuFile);
    ~GroupEdit() override;

public slots:
    void loadProducts();
    void loadGroupProducts();
    void on_btnCancel_clicked();
    void on_btnSave_clicked();
    void on_btnAddProduct_clicked();
    void on_btnRemoveProduct_clicked();
    void on_listWidgetGroupProducts_itemChanged(QListWidgetItem *item);
    void on_listWidgetGroupProducts_itemClicked(QListWidgetItem *item);
    void on_listWidgetProducts_itemSelectionChanged();
    void on_listWidgetGroupProducts_itemSelectionChanged();

private:
    void applyConfiguration();
    void describeRows();
    void checkDefaultOnly();
    void showSummary();
    [[nodiscard]] int nextRowToAdd(int row) const;

    [[nodiscard]] QString misfitOf(const ProductInfo &product) const;

    std::unique_ptr<Ui::GroupEdit> m_ui;
    ListNotes m_notes;
    FindRows *m_find = nullptr; ///< the list of all products owns it
    ProductInfo &m_group;
    const holding::CabinetConfiguration m_configuration;
    const QList<ProductInfo *> m_products; ///< the menu's, in its order
    const EntryIndex m_productsById;
    holding::GroupDraft m_draft;
};
