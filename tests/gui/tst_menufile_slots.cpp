// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menufile.h"
#include "tests/support/slotlist.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestMenuFileSlots : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
};

void TestMenuFileSlots::slotsAreInOrder()
{
    const QStringList expected{
        // the file
        u"readMenuFile()"_s,
        u"loadDefaultMenu()"_s,
        u"setNameListToJson(QStringList nameList)"_s,
        u"readNameTranslationsFromJson(QJsonObject nameObj)"_s,
        // the configuration
        u"getBinsPerZone()"_s,
        u"getCabinetType()"_s,
        u"getCabinetModel()"_s,
        u"getTemperatureUnit()"_s,
        u"getProductIdEnabled()"_s,
        u"getFanSpeedEnabled()"_s,
        u"getResetTimeEnabled()"_s,
        u"getTimerColorEnabled()"_s,
        u"loadCabinetInfo()"_s,
        u"on_btnConfig_clicked()"_s,
        // products and groups
        u"getMenuProducts()"_s,
        u"getMenuGroups()"_s,
        u"loadProducts()"_s,
        u"loadProductInfo()"_s,
        u"loadGroups()"_s,
        u"loadGroupInfo()"_s,
        u"getProductObject(int id)"_s,
        u"removeIdFromAllGroups(int id)"_s,
        u"removeIdFromAllDayparts(int id)"_s,
        u"on_btnAddProduct_clicked()"_s,
        u"on_btnEditProduct_clicked()"_s,
        u"on_btnDeleteProduct_clicked()"_s,
        u"on_btnDuplicateProduct_clicked()"_s,
        u"on_btnAddGroup_clicked()"_s,
        u"on_btnEditGroup_clicked()"_s,
        u"on_btnDeleteGroup_clicked()"_s,
        u"on_btnDuplicateGroup_clicked()"_s,
        u"on_listWidgetProducts_itemSelectionChanged()"_s,
        u"on_listWidgetProducts_currentRowChanged(int currentRow)"_s,
        u"on_listWidgetProducts_itemDoubleClicked(QListWidgetItem* item)"_s,
        u"on_listWidgetGroups_itemSelectionChanged()"_s,
        u"on_listWidgetGroups_currentRowChanged(int currentRow)"_s,
        u"on_listWidgetGroups_itemDoubleClicked(QListWidgetItem* item)"_s,
        u"on_btnSelectMultiProduct_clicked()"_s,
        u"on_listWidgetProducts_itemChanged()"_s,
        u"on_btnSelectMultiGroup_clicked()"_s,
        u"on_listWidgetGroups_itemChanged()"_s,
    };
    QCOMPARE(ownSlots(MenuFile::staticMetaObject), expected);
}

QTEST_MAIN(TestMenuFileSlots)
#include "tst_menufile_slots.moc"
