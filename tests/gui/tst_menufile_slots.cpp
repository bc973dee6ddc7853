// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include "holding/menufile.h"
#include "tests/support/cabinets.h"
#include "tests/support/slotlist.h"
#include "tests/support/textlists.h"
#include "tests/support/warnings.h"

using namespace Qt::StringLiterals;

class TestMenuFileSlots : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void slotsAreInOrder();
};

namespace {

const QStringList ofTheFile{
    u"readMenuFile()"_s,
    u"loadDefaultMenu()"_s,
    u"setNameListToJson(QStringList nameList)"_s,
    u"readNameTranslationsFromJson(QJsonObject nameObj)"_s,
};

const QStringList ofTheConfiguration{
    u"getBinsPerZone()"_s,       u"getCabinetType()"_s,       u"getCabinetModel()"_s,
    u"getTemperatureUnit()"_s,   u"getProductIdEnabled()"_s,  u"getFanSpeedEnabled()"_s,
    u"getResetTimeEnabled()"_s,  u"getTimerColorEnabled()"_s, u"loadCabinetInfo()"_s,
    u"on_btnConfig_clicked()"_s,
};

const QStringList ofProductsAndGroups{
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

const QStringList ofDayparts{
    u"loadDayparts()"_s,
    u"loadCurrentDaypart()"_s,
    u"getDaypartButtonWidth(QString zoneSplits)"_s,
    u"assignProductToBin(int rowIndex, int binIndex)"_s,
    u"calculateButtonWidth(int binSize)"_s,
    u"dayPartPressHoldDetected()"_s,
};

const QStringList ofRemovalAndDayparts{
    u"on_btnDaypartRemove_clicked()"_s,
    u"on_btnCancelDaypartRemove_clicked()"_s,
    u"on_comboDaypartSelect_currentIndexChanged(int index)"_s,
    u"on_btnDeleteDaypart_clicked()"_s,
    u"on_btnEditDaypart_clicked()"_s,
    u"on_btnAddDaypart_clicked()"_s,
    u"on_checkBoxDaypartInUse_stateChanged(int arg1)"_s,
};

const QStringList ofOldMenus{
    u"importQhxMenuFile(QString fileName)"_s,
};

QStringList binButtonSlots()
{
    QStringList names;
    for (const QString &button : cabinets::binButtons()) {
        for (const QString &signal : {u"pressed"_s, u"released"_s, u"clicked"_s})
            names.append(u"on_%1_%2()"_s.arg(button, signal));
    }
    return names;
}

} // namespace

void TestMenuFileSlots::slotsAreInOrder()
{
    const QStringList expected = ofTheFile + ofTheConfiguration + ofProductsAndGroups + ofDayparts +
                                 binButtonSlots() + ofRemovalAndDayparts + ofOldMenus;
    QCOMPARE(differenceOf(ownSlots(MenuFile::staticMetaObject), expected), QString());
}

QTEST_MAIN(TestMenuFileSlots)
#include "tst_menufile_slots.moc"
