// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"

#include <algorithm>
#include <array>

#include <QSignalBlocker>

#include "holding/assigndaypartitem.h"
#include "holding/binbuttons.h"
#include "holding/binlabel.h"
#include "holding/binplan.h"
#include "holding/rowdescription.h"
#include "holding/rowlook.h"
#include "model/times.h"
#include "ui_menufile.h"
#include "widgets/longtext.h"
#include "widgets/messages.h"
#include "widgets/plaintext.h"

using namespace Qt::StringLiterals;

namespace {

/// A button of the form and where it stands in its zone.
struct GridButton
{
    BinButton *Ui_MenuFile::*button;
    int zone;
    int row;
    int number; ///< in the zone

    [[nodiscard]] constexpr Bin binIn(const holding::CabinetShape &shape) const
    {
        return {row, shape.zone(zone).first + number};
    }
    [[nodiscard]] constexpr bool isIn(const holding::CabinetShape &shape) const
    {
        return row < shape.rows && zone < shape.zones && number < shape.zone(zone).count;
    }
};

constexpr std::array gridButtons{
#define GRID_BUTTON(button, zone, row, number) GridButton{&Ui_MenuFile::button, zone, row, number},
    FOR_EACH_BIN_BUTTON(GRID_BUTTON)
#undef GRID_BUTTON
};

constexpr bool hasOneButton(const holding::CabinetShape &shape, Bin bin)
{
    return std::count_if(gridButtons.begin(), gridButtons.end(), [&](const GridButton &each) {
               return each.isIn(shape) && each.binIn(shape) == bin;
           }) == 1;
}

constexpr bool hasItsButtons(const holding::CabinetModel &model)
{
    for (int row = 0; row < model.shape.rows; ++row) {
        for (int slot = 0; slot < model.shape.binsPerRow(); ++slot) {
            if (model.shape.hasBin({row, slot}) && !hasOneButton(model.shape, {row, slot}))
                return false;
        }
    }
    return true;
}

static_assert(std::all_of(holding::allModels.begin(), holding::allModels.end(), hasItsButtons),
              "a model has a bin without a button, or with two, in holding/binbuttons.h");

QString settingsText(const QString &title, const ProductInfo &entry, const QString &holdTime,
                     const holding::CabinetConfiguration &configuration)
{
    return MenuFile::tr("%1\nTemperature: %2\nHolding Time: %3")
        .arg(title, holding::temperaturesText(entry, configuration), holdTime);
}

// What is painted in a bin below the name.
QString binDetails(const ProductInfo *entry, const QString &holdTime,
                   const holding::CabinetConfiguration &configuration)
{
    return entry ? holding::shortTemperaturesText(*entry, configuration) + u"  "_s + holdTime : QString();
}

QString binToolTip(const holding::BinLabel &label, const ProductInfo *entry, const QString &holdTime,
                   const holding::CabinetConfiguration &configuration)
{
    QString title = beginningOf(label.name);
    if (!label.remark.isEmpty())
        title = MenuFile::tr("%1: %2").arg(title, label.remark);
    return entry ? settingsText(title, *entry, holdTime, configuration) : title;
}

} // namespace

void MenuFile::prepareGrid()
{
    styleWhenShown(m_ui->frameGrid, m_ui->tabDayparts, m_ui->tabWidget);
    showRemovalMode(false);
    connect(m_ui->btnDuplicateDaypart, &QPushButton::clicked, this, &MenuFile::duplicateDaypart);
    connect(m_ui->btnBinPlan, &QPushButton::clicked, this, &MenuFile::saveBinPlan);
    keepRoomWhenHidden(m_ui->btnBinPlan);
    connect(&m_grid, &BinGrid::holdDetected, this, &MenuFile::dayPartPressHoldDetected);
    connect(&m_grid, &BinGrid::removalModeChanged, this,
            [this](bool removing) { showRemovalMode(removing); });
}

void MenuFile::showRemovalMode(bool removing)
{
    const bool hadFocus = m_ui->btnDaypartRemove->hasFocus() || m_ui->btnCancelDaypartRemove->hasFocus();
    for (QWidget *widget : {m_ui->btnDaypartRemove, m_ui->btnCancelDaypartRemove})
        widget->setVisible(removing);
    for (QWidget *widget : {m_ui->btnAddDaypart, m_ui->btnEditDaypart, m_ui->btnDuplicateDaypart,
                            m_ui->btnDeleteDaypart, m_ui->btnBinPlan})
        widget->setHidden(removing);
    m_ui->comboDaypartSelect->setDisabled(removing);
    m_ui->checkBoxDaypartInUse->setDisabled(removing);
    BinGrid::showHint(m_ui->lblDaypartHint, removing);
    if (hadFocus)
        m_grid.setFocus();
}

holding::Daypart *MenuFile::currentDaypart()
{
    const int index = m_ui->comboDaypartSelect->currentIndex();
    return index < 0 ? nullptr : &m_menu.dayparts[index];
}

void MenuFile::loadDayparts()
{
    m_grid.clear();
    for (const GridButton &place : gridButtons) {
        QPushButton *button = (*m_ui).*place.button;
        button->hide();
        if (place.isIn(m_shape))
            m_grid.add(button, place.binIn(m_shape));
    }
    if (!holding::isShowableRowCount(m_shape.rows))
        messages::refusal(this, tr("Invalid number of rows!"));
    m_ui->frameFirstZone->setFixedWidth(holding::zoneWidth(m_shape, 0));
    m_ui->frameSecondZone->setFixedWidth(holding::zoneWidth(m_shape, 1));
    m_ui->frameSecondZone->setVisible(m_shape.zones == 2);
    loadDaypartSelector();
    loadCurrentDaypart();
}

void MenuFile::loadCurrentDaypart()
{
    m_grid.leaveRemovalMode();
    const holding::Daypart none;
    const holding::Daypart *current = currentDaypart();
    const holding::Daypart &daypart = current ? *current : none;
    {
        const QSignalBlocker blocker(m_ui->checkBoxDaypartInUse);
        m_ui->checkBoxDaypartInUse->setChecked(daypart.inUse);
    }
    m_ui->checkBoxDaypartInUse->setEnabled(current);
    m_ui->btnEditDaypart->setEnabled(current);
    m_ui->btnDuplicateDaypart->setEnabled(current);
    for (int row = 0; row < m_shape.rows; ++row)
        showRow(daypart, row);
}

void MenuFile::showRow(const holding::Daypart &daypart, int row)
{
    const holding::RowContent content = holding::rowContent(m_menu, daypart, row);
    holding::RowLook looks = holding::rowLook(m_shape, content);
    for (int zone = 0; zone < m_shape.zones; ++zone)
        holding::fitIntoZone(looks, m_shape.zone(zone), holding::zoneWidth(m_shape, zone));
    for (int slot = 0; slot < holding::maxSlots; ++slot) {
        const Bin bin{row, slot};
        auto *button = qobject_cast<BinButton *>(m_grid.button(bin));
        if (!button)
            continue;
        button->setMinimumWidth(looks[slot].minimumWidth);
        const ProductInfo *entry = content[slot].entry;
        const QString holdTime = entry ? timeText(entry->get_holdTime()) : QString(); // dear to make
        const holding::BinLabel label = holding::binLabel(content[slot], daypart.bins[bin]);
        m_grid.showContent(bin, label.name, label.remark);
        button->setDetails(binDetails(entry, holdTime, m_menu.configuration));
        button->setToolTip(asPlainText(binToolTip(label, entry, holdTime, m_menu.configuration)));
        button->setVisible(looks[slot].visible);
    }
}

int MenuFile::getDaypartButtonWidth(const QString &zoneSplits)
{
    return holding::binButtonWidth(m_shape, zoneSplits);
}

// The width of a button in an older arrangement of the grid; nothing asks for it any more, but it is part of
// what an editor offers.
int MenuFile::calculateButtonWidth([[maybe_unused]] int binSize)
{
    return 55;
}

void MenuFile::assignProductToBin(int rowIndex, int binIndex)
{
    holding::Daypart *daypart = currentDaypart();
    if (!daypart || !m_grid.button({rowIndex, binIndex}))
        return;
    const holding::RowContent row = holding::rowContent(m_menu, *daypart, rowIndex);
    const holding::BinLimits limits =
        holding::zoneLimits(row, m_shape.zoneOfSlot(binIndex), binIndex, getFanSpeedEnabled());
    AssignDaypartItem dialog(holding::allowedZoneSplits(m_shape, row, binIndex), limits.upperTemp,
                             limits.lowerTemp, limits.fanSpeed, m_shape.singleBinSecondZone, this);
    const Bin bin{rowIndex, binIndex};
    dialog.setPlace(shownName(daypart->names), bin,
                    holding::binLabel(row[binIndex], daypart->bins[bin]).name);
    dialog.find(m_grid.typed());
    if (dialog.exec() != Accepted)
        return;
    daypart->bins[bin] = dialog.resultId();
    loadCurrentDaypart();
    noteChange();
}

void MenuFile::dayPartPressHoldDetected()
{
    const holding::Daypart *daypart = currentDaypart();
    m_grid.settleHold([daypart](Bin bin) { return daypart && daypart->bins[bin] != holding::emptyBin; });
}

#define DEFINE_SLOTS(button, ...) DEFINE_BIN_BUTTON_SLOTS(MenuFile, button)
FOR_EACH_BIN_BUTTON(DEFINE_SLOTS)
#undef DEFINE_SLOTS

void MenuFile::on_btnDaypartRemove_clicked()
{
    if (holding::Daypart *daypart = currentDaypart()) {
        const QList<Bin> bins = m_grid.checkedBins();
        for (const Bin bin : bins)
            daypart->bins[bin] = holding::emptyBin;
    }
    loadCurrentDaypart();
    noteChange();
}

void MenuFile::on_btnCancelDaypartRemove_clicked()
{
    m_grid.leaveRemovalMode();
}

void MenuFile::on_comboDaypartSelect_currentIndexChanged([[maybe_unused]] int index)
{
    loadCurrentDaypart();
}

void MenuFile::saveBinPlan()
{
    writeBinPlan(holding::plannedCabinet(m_menu), tr("No day part is in use."));
}
