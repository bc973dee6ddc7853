// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <optional>

#include <QJsonObject>

#include "holding/binbuttons.h"
#include "holding/menu.h"
#include "widgets/bingrid.h"
#include "widgets/binslots.h"
#include "widgets/entrypane.h"
#include "widgets/menueditor.h"

class Configuration;
class QListWidgetItem;

namespace Ui {
class MenuFile;
}

/// The editor of one holding-cabinet menu. It owns the menu: configuration, products, groups and day parts.
///
/// Rules and file format are in the core; the slots delegate. Dialogs read the configuration and
/// the lists while they are built.
class MenuFile final : public MenuEditor
{
    Q_OBJECT

public:
    /// An empty path makes a new menu, for which the user is asked for the cabinet.
    explicit MenuFile(const QString &filePath, QWidget *parent = nullptr);
    ~MenuFile() override;

    bool writeToFile(const QString &path) override;
    [[nodiscard]] SaveNameRequest nameRequest(SaveKind kind) const override;
    /// Asks for another name and writes there. The main window asks by itself, so that nothing in the program
    /// calls this; it is the editor's own way where there is no main window.
    void saveAs();

    [[nodiscard]] const holding::CabinetConfiguration &configuration() const { return m_menu.configuration; }

    /// Shows everything anew, with no current rows.
    void loadMenuFile();

public slots: // the file
    /// Reads the current path, also once more, and shows what it brought. An error has been shown; the menu
    /// is then not valid and holds what was read before it.
    bool readMenuFile();
    void loadDefaultMenu();
    QJsonObject setNameListToJson(const QStringList &nameList);
    QStringList readNameTranslationsFromJson(const QJsonObject &nameObj);

public slots: // the configuration
    int getBinsPerZone();
    QString getCabinetType();
    QString getCabinetModel();
    int getTemperatureUnit();
    bool getProductIdEnabled();
    bool getFanSpeedEnabled();
    bool getResetTimeEnabled();
    bool getTimerColorEnabled();
    void loadCabinetInfo();
    void on_btnConfig_clicked();

public slots: // products and groups
    /// The records stay the editor's and go with the next deletion.
    QList<ProductInfo *> getMenuProducts();
    QList<ProductInfo *> getMenuGroups();
    void loadProducts();
    void loadProductInfo();
    void loadGroups();
    void loadGroupInfo();
    ProductInfo *getProductObject(int id);
    bool removeIdFromAllGroups(int id);
    bool removeIdFromAllDayparts(int id);
    void on_btnAddProduct_clicked();
    void on_btnEditProduct_clicked();
    void on_btnDeleteProduct_clicked();
    void on_btnDuplicateProduct_clicked();
    void on_btnAddGroup_clicked();
    void on_btnEditGroup_clicked();
    void on_btnDeleteGroup_clicked();
    void on_btnDuplicateGroup_clicked();
    void on_listWidgetProducts_itemSelectionChanged();
    void on_listWidgetProducts_currentRowChanged(int currentRow);
    void on_listWidgetProducts_itemDoubleClicked(QListWidgetItem *item);
    void on_listWidgetGroups_itemSelectionChanged();
    void on_listWidgetGroups_currentRowChanged(int currentRow);
    void on_listWidgetGroups_itemDoubleClicked(QListWidgetItem *item);
    void on_btnSelectMultiProduct_clicked();
    void on_listWidgetProducts_itemChanged();
    void on_btnSelectMultiGroup_clicked();
    void on_listWidgetGroups_itemChanged();

public slots: // day parts
    void loadDayparts();
    void loadCurrentDaypart();
    int getDaypartButtonWidth(const QString &zoneSplits);
    void assignProductToBin(int rowIndex, int binIndex);
    int calculateButtonWidth(int binSize);
    void dayPartPressHoldDetected();
    FOR_EACH_BIN_BUTTON(DECLARE_BIN_BUTTON_SLOTS)
    void on_btnDaypartRemove_clicked();
    void on_btnCancelDaypartRemove_clicked();
    void on_comboDaypartSelect_currentIndexChanged(int index);
    void on_btnDeleteDaypart_clicked();
    void on_btnEditDaypart_clicked();
    void on_btnAddDaypart_clicked();
    void on_checkBoxDaypartInUse_stateChanged(int arg1);

public slots: // old menus
    /// Adds the entries of an old binary menu and takes over its cabinet and its two day parts. The old menu
    /// is never written: a new menu has no path of its own yet. An error has been shown and changes nothing.
    bool importQhxMenuFile(const QString &fileName);

protected:
    [[nodiscard]] QByteArray contents() const override;
    [[nodiscard]] Findings findings() const override;
    [[nodiscard]] QStringList textsOf(const QList<Finding> &findings) const override;
    void goTo(const MenuPlace &place) override;
    bool leaveMode() override;

private:
    [[nodiscard]] bool load(const QString &path);
    [[nodiscard]] bool readIntoMenu();
    [[nodiscard]] bool importIntoMenu(const QString &fileName);
    [[nodiscard]] bool createMenu();
    [[nodiscard]] bool askConfiguration(holding::CabinetConfiguration &configuration);
    [[nodiscard]] bool run(Configuration &dialog);

    void addProduct(std::unique_ptr<ProductInfo> product);
    void addGroup(std::unique_ptr<ProductInfo> group);
    [[nodiscard]] bool refuseWhenFull(const QString &message);
    void loadGroupMembers();
    void reloadEntries();

    void describeRows();
    void prepareGrid();
    void showRemovalMode(bool removing);
    void loadDaypartSelector();
    void duplicateDaypart();
    void saveBinPlan();
    /// Asks for the name; the day part takes the next vacant place and becomes the current one.
    void addDaypart(holding::Daypart daypart);
    void showRow(const holding::Daypart &daypart, int row);
    [[nodiscard]] holding::Daypart *currentDaypart();  ///< null while there is none
    [[nodiscard]] ProductInfo *currentProduct() const; ///< null for none
    [[nodiscard]] ProductInfo *currentGroup() const;   ///< null for none
    void deleteEntries(EntryPane &pane, Entries &entries, const QString &question);

    std::unique_ptr<Ui::MenuFile> m_ui;
    holding::Menu m_menu;
    holding::CabinetShape m_shape; ///< of the configured cabinet, kept up by loadCabinetInfo()
    EntryPane m_products;
    EntryPane m_groups;
    BinGrid m_grid;
};
