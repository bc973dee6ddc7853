// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "holding/menufile.h"

#include <array>

#include <QSignalBlocker>

#include "holding/assigndaypartitem.h"
#include "holding/binbuttons.h"
#include "holding/daypartedit.h"
#include "model/times.h"
#include "ui_menufile.h"
#include "widgets/messages.h"
#include "widgets/plaintext.h"

using namespace Qt::StringLiterals;

namespace {

using BinButtonMember = BinButton *Ui_MenuFile::*;

// [row][bin]; the last two rows have no third bin, and the second zone has five rows.
constexpr std::array<std::array<BinButtonMember, 3>, holding::maxRows> firstZoneButtons{{
    {&Ui_MenuFile::btnDaypartSelect0_0, &Ui_MenuFile::btnDaypartSelect0_1, &Ui_MenuFile::btnDaypartSelect0_2},
    {&Ui_MenuFile::btnDaypartSelect1_0, &Ui_MenuFile::btnDaypartSelect1_1, &Ui_MenuFile::btnDaypartSelect1_2},
    {&Ui_MenuFile::btnDaypartSelect2_0, &Ui_MenuFile::btnDaypartSelect2_1, &Ui_MenuFile::btnDaypartSelect2_2},
    {&Ui_MenuFile::btnDaypartSelect3_0, &Ui_MenuFile::btnDaypartSelect3_1, &Ui_MenuFile::btnDaypartSelect3_2},
    {&Ui_MenuFile::btnDaypartSelect4_0, &Ui_MenuFile::btnDaypartSelect4_1, &Ui_MenuFile::btnDaypartSelect4_2},
    {&Ui_MenuFile::btnDaypartSelect5_0, &Ui_MenuFile::btnDaypartSelect5_1, &Ui_MenuFile::btnDaypartSelect5_2},
    {&Ui_MenuFile::btnDaypartSelect6_0, &Ui_MenuFile::btnDaypartSelect6_1, nullptr},
    {&Ui_MenuFile::btnDaypartSelect7_0, &Ui_MenuFile::btnDaypartSelect7_1, nullptr},
}};
constexpr std::array<std::array<BinButtonMember, 2>, 5> secondZoneButtons{{
    {&Ui_MenuFile::btnDaypartSelectB0_0, &Ui_MenuFile::btnDaypartSelectB0_1},
    {&Ui_MenuFile::btnDaypartSelectB1_0, &Ui_MenuFile::btnDaypartSelectB1_1},
    {&Ui_MenuFile::btnDaypartSelectB2_0, &Ui_MenuFile::btnDaypartSelectB2_1},
    {&Ui_MenuFile::btnDaypartSelectB3_0, &Ui_MenuFile::btnDaypartSelectB3_1},
    {&Ui_MenuFile::btnDaypartSelectB4_0, &Ui_MenuFile::btnDaypartSelectB4_1},
}};

// Zones keep their width whatever stands in them, so that filling a bin never moves another one.
constexpr int onlyZoneWidth = 394;
constexpr int zoneWidth = 340;
constexpr int oneBinZoneWidth = 177;
constexpr int binGap = 2; // in the form; 265 and 127 leave no more in the only zone

int firstZoneWidth(const holding::CabinetShape &shape)
{
    return shape.zones == 2 ? zoneWidth : onlyZoneWidth;
}

int secondZoneWidth(const holding::CabinetShape &shape)
{
    return shape.singleBinSecondZone ? oneBinZoneWidth : zoneWidth;
}

template <typename Bins>
auto &binOf(Bins &daypart, Bin bin)
{
    return daypart.bins[static_cast<std::size_t>(bin.row)][static_cast<std::size_t>(bin.slot)];
}

// A bin whose entry is missing or has no name is no empty bin; its id is all there is to show.
QString binText(const holding::SlotContent &content, int id)
{
    const QString name = content.entry ? shownName(content.entry->get_productName()) : QString();
    return content.filled && name.isEmpty() ? MenuFile::tr("Id %1").arg(id) : name;
}

QString binToolTip(const ProductInfo *entry, const holding::CabinetConfiguration &configuration)
{
    if (!entry)
        return {};
    const int unit = configuration.temperatureUnit;
    QString temperatures = temperatureText(entry->get_upperTemp(), unit);
    if (!holding::isZpv(configuration.type))
        temperatures += u" / "_s + temperatureText(entry->get_lowerTemp(), unit);
    return MenuFile::tr("%1\nTemperature: %2\nHolding Time: %3")
        .arg(shownName(entry->get_productName()), temperatures, timeText(entry->get_holdTime()));
}

} // namespace

void MenuFile::prepareGrid()
{
    // Styling the grid takes a sixth of the time and a third of the memory of opening a menu, and many menus
    // are opened without a look at it.
    connect(m_ui->tabWidget, &QTabWidget::currentChanged, m_ui->frameGrid, [this] {
        if (m_ui->tabWidget->currentWidget() == m_ui->tabDayparts && m_ui->frameGrid->styleSheet().isEmpty())
            m_ui->frameGrid->setStyleSheet(binButtonStyle());
    });
    for (QWidget *widget : {m_ui->btnAddDaypart, m_ui->btnEditDaypart, m_ui->btnDeleteDaypart,
                            m_ui->btnDaypartRemove, m_ui->btnCancelDaypartRemove})
        keepRoomWhenHidden(widget);
    showRemovalMode(false);
    connect(&m_grid, &BinGrid::holdDetected, this, &MenuFile::dayPartPressHoldDetected);
    connect(&m_grid, &BinGrid::removalModeChanged, this,
            [this](bool removing) { showRemovalMode(removing); });
}

void MenuFile::showRemovalMode(bool removing)
{
    for (QWidget *widget : {m_ui->btnDaypartRemove, m_ui->btnCancelDaypartRemove})
        widget->setVisible(removing);
    for (QWidget *widget : {m_ui->btnAddDaypart, m_ui->btnEditDaypart, m_ui->btnDeleteDaypart})
        widget->setHidden(removing);
    m_ui->comboDaypartSelect->setDisabled(removing);
    m_ui->checkBoxDaypartInUse->setDisabled(removing);
    BinGrid::showHint(m_ui->lblDaypartHint, removing);
}

holding::Daypart *MenuFile::currentDaypart()
{
    const int index = m_ui->comboDaypartSelect->currentIndex();
    return index < 0 ? nullptr : &m_menu.dayparts[static_cast<std::size_t>(index)];
}

void MenuFile::loadDayparts()
{
    m_grid.clear();
#define HIDE_BIN_BUTTON(button) m_ui->button->hide();
    FOR_EACH_BIN_BUTTON(HIDE_BIN_BUTTON)
#undef HIDE_BIN_BUTTON
    if (holding::isShowableRowCount(m_shape.rows))
        registerBins();
    else
        messages::refusal(this, tr("Invalid number of rows!"));
    m_ui->frameFirstZone->setFixedWidth(firstZoneWidth(m_shape));
    m_ui->frameSecondZone->setFixedWidth(secondZoneWidth(m_shape));
    m_ui->frameSecondZone->setVisible(m_shape.zones == 2);
    loadDaypartSelector();
    loadCurrentDaypart();
}

void MenuFile::registerBins()
{
    for (int row = 0; row < m_shape.rows; ++row) {
        const auto place = static_cast<std::size_t>(row);
        for (int bin = 0; bin < m_shape.binsPerZone; ++bin)
            m_grid.add((*m_ui).*(firstZoneButtons[place][static_cast<std::size_t>(bin)]), {row, bin});
        if (m_shape.zones != 2)
            continue;
        const holding::Zone zone = holding::zoneOfSlot(m_shape, m_shape.binsPerZone);
        for (int bin = 0; bin < zone.count; ++bin)
            m_grid.add((*m_ui).*(secondZoneButtons[place][static_cast<std::size_t>(bin)]),
                       {row, zone.first + bin});
    }
}

void MenuFile::loadDaypartSelector()
{
    const QSignalBlocker blocker(m_ui->comboDaypartSelect);
    m_ui->comboDaypartSelect->clear();
    for (int i = 0; i < m_menu.daypartCount; ++i)
        m_ui->comboDaypartSelect->addItem(shownName(m_menu.dayparts[static_cast<std::size_t>(i)].names));
    m_ui->btnDeleteDaypart->setEnabled(m_menu.daypartCount > 1);
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
    for (int row = 0; row < m_shape.rows; ++row)
        showRow(daypart, row);
}

void MenuFile::showRow(const holding::Daypart &daypart, int row)
{
    const holding::RowContent content = holding::rowContent(m_menu, daypart, row);
    auto looks = holding::rowLook(m_shape, content);
    holding::fitIntoZone(looks, holding::zoneOfSlot(m_shape, 0), firstZoneWidth(m_shape), binGap);
    if (m_shape.zones == 2)
        holding::fitIntoZone(looks, holding::zoneOfSlot(m_shape, m_shape.binsPerZone),
                             secondZoneWidth(m_shape), binGap);
    for (std::size_t slot = 0; slot < looks.size(); ++slot) {
        const Bin bin{row, static_cast<int>(slot)};
        QPushButton *button = m_grid.button(bin);
        if (!button)
            continue;
        button->setMinimumWidth(looks[slot].minimumWidth);
        m_grid.showContent(bin, binText(content[slot], binOf(daypart, bin)));
        button->setToolTip(asPlainText(binToolTip(content[slot].entry, m_menu.configuration)));
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
        holding::zoneLimits(row, holding::zoneOfSlot(m_shape, binIndex), binIndex, getFanSpeedEnabled());
    AssignDaypartItem dialog(holding::allowedZoneSplits(m_shape, row, binIndex), limits.upperTemp,
                             limits.lowerTemp, limits.fanSpeed, m_shape.singleBinSecondZone, this);
    if (dialog.exec() != Accepted)
        return;
    binOf(*daypart, {rowIndex, binIndex}) = dialog.resultId();
    loadCurrentDaypart();
}

void MenuFile::dayPartPressHoldDetected()
{
    const holding::Daypart *daypart = currentDaypart();
    m_grid.settleHold([daypart](Bin bin) { return daypart && binOf(*daypart, bin) != holding::emptyBin; });
}

#define DEFINE_SLOTS(button) DEFINE_BIN_BUTTON_SLOTS(MenuFile, button)
FOR_EACH_BIN_BUTTON(DEFINE_SLOTS)
#undef DEFINE_SLOTS

void MenuFile::on_btnDaypartRemove_clicked()
{
    if (holding::Daypart *daypart = currentDaypart()) {
        const QList<Bin> bins = m_grid.checkedBins();
        for (const Bin bin : bins)
            binOf(*daypart, bin) = holding::emptyBin;
    }
    loadCurrentDaypart();
}

void MenuFile::on_btnCancelDaypartRemove_clicked()
{
    m_grid.leaveRemovalMode();
}

void MenuFile::on_comboDaypartSelect_currentIndexChanged([[maybe_unused]] int index)
{
    loadCurrentDaypart();
}

void MenuFile::on_btnDeleteDaypart_clicked()
{
    const int index = m_ui->comboDaypartSelect->currentIndex();
    if (index < 0 || !messages::confirmDelete(this, tr("Delete selected daypart?")))
        return;
    m_menu.removeDaypart(index);
    loadDayparts();
}

void MenuFile::on_btnEditDaypart_clicked()
{
    holding::Daypart *daypart = currentDaypart();
    if (!daypart)
        return;
    DaypartEdit dialog(daypart->names, this);
    if (dialog.exec() != Accepted)
        return;
    daypart->names = dialog.names();
    m_ui->comboDaypartSelect->setItemText(m_ui->comboDaypartSelect->currentIndex(),
                                          shownName(daypart->names));
    loadCurrentDaypart();
}

void MenuFile::on_btnAddDaypart_clicked()
{
    if (m_menu.daypartCount >= holding::maxDayparts) {
        messages::refusal(this, tr("Cannot add dayparts. Maximum dayparts reached!"));
        return;
    }
    DaypartEdit dialog(sameNameInAllLanguages({}), this);
    if (dialog.exec() != Accepted)
        return;
    m_menu.addDaypart(dialog.names());
    loadDaypartSelector();
    const QSignalBlocker blocker(m_ui->comboDaypartSelect);
    m_ui->comboDaypartSelect->setCurrentIndex(m_menu.daypartCount - 1);
    loadCurrentDaypart();
}

void MenuFile::on_checkBoxDaypartInUse_stateChanged(int arg1)
{
    if (holding::Daypart *daypart = currentDaypart())
        daypart->inUse = arg1 == Qt::Checked;
}
