// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarmenufile.h"

#include <array>

#include <QPushButton>
#include <QSignalBlocker>

#include "model/names.h"
#include "timerbar/bins.h"
#include "timerbar/timerbardaypartassignitem.h"
#include "ui_timerbarmenufile.h"
#include "widgets/binbutton.h"
#include "widgets/messages.h"
#include "widgets/plaintext.h"

using namespace Qt::StringLiterals;

namespace {

using BinButtonMember = BinButton *Ui_TimerBarMenuFile::*;
using Form = Ui_TimerBarMenuFile;

// [row][column]; the last row has no right pair.
constexpr std::array<std::array<BinButtonMember, timerbar::maxColumns>, timerbar::maxRows> binButtons{{
    {&Form::btnDaypartSelect0_0, &Form::btnDaypartSelect0_1, &Form::btnDaypartSelectB0_0,
     &Form::btnDaypartSelectB0_1},
    {&Form::btnDaypartSelect1_0, &Form::btnDaypartSelect1_1, &Form::btnDaypartSelectB1_0,
     &Form::btnDaypartSelectB1_1},
    {&Form::btnDaypartSelect2_0, &Form::btnDaypartSelect2_1, &Form::btnDaypartSelectB2_0,
     &Form::btnDaypartSelectB2_1},
    {&Form::btnDaypartSelect3_0, &Form::btnDaypartSelect3_1, nullptr, nullptr},
}};

// Pairs keep their width whatever stands in them, so that filling a bin never moves another one.
constexpr int pairWidth = 340;
constexpr int oneBinPairWidth = 177;

template <typename Cells>
auto &cellAt(Cells &cells, Bin bin)
{
    return cells[static_cast<std::size_t>(bin.row)][static_cast<std::size_t>(bin.slot)];
}

QString toolTipOf(const ProductInfo *product, int unit)
{
    if (!product)
        return {};
    return TimerBarMenuFile::tr("%1\nTemperature: %2 / %3")
        .arg(shownName(product->get_productName()), temperatureText(product->get_upperTemp(), unit),
             temperatureText(product->get_lowerTemp(), unit));
}

} // namespace

void TimerBarMenuFile::prepareGrid()
{
    m_ui->frameGrid->setStyleSheet(binButtonStyle());
    keepRoomWhenHidden(m_ui->btnDaypartRemove);
    keepRoomWhenHidden(m_ui->btnCancelDaypartRemove);
    showRemovalMode(false);
    connect(&m_grid, &BinGrid::holdDetected, this, &TimerBarMenuFile::dayPartPressHoldDetected);
    connect(&m_grid, &BinGrid::removalModeChanged, this,
            [this](bool removing) { showRemovalMode(removing); });
}

void TimerBarMenuFile::showRemovalMode(bool removing)
{
    m_ui->btnDaypartRemove->setVisible(removing);
    m_ui->btnCancelDaypartRemove->setVisible(removing);
    m_ui->comboDaypartSelect->setDisabled(removing);
    BinGrid::showHint(m_ui->lblDaypartHint, removing);
}

timerbar::DaypartCells *TimerBarMenuFile::currentCells()
{
    const int index = m_ui->comboDaypartSelect->currentIndex();
    return index < 0 ? nullptr : &m_menu.dayparts[index];
}

void TimerBarMenuFile::loadDayparts()
{
    m_grid.clear();
#define HIDE_BIN_BUTTON(button) m_ui->button->hide();
    FOR_EACH_TIMER_BAR_BIN_BUTTON(HIDE_BIN_BUTTON)
#undef HIDE_BIN_BUTTON
    const timerbar::CabinetShape shape = m_menu.shape();
    m_ui->frameRightPair->setVisible(shape.columnLayout == 2);
    m_ui->frameLeftPair->setFixedWidth(pairWidth);
    m_ui->frameRightPair->setFixedWidth(shape.threeColumns ? oneBinPairWidth : pairWidth);
    if (shape.rows >= 2 && shape.rows <= timerbar::maxRows)
        registerBins(shape);
    else
        messages::fileFault(tr("Invalid number of rows!"));
    {
        const QSignalBlocker blocker(m_ui->comboDaypartSelect);
        m_ui->comboDaypartSelect->clear();
        m_ui->comboDaypartSelect->addItems(timerbar::daypartNames());
    }
    loadCurrentDaypart();
}

void TimerBarMenuFile::registerBins(const timerbar::CabinetShape &shape)
{
    for (int row = 0; row < shape.rows; ++row) {
        for (int column = 0; column < shape.columns(); ++column) {
            QPushButton *button = (*m_ui).*cellAt(binButtons, {row, column});
            m_grid.add(button, {row, column});
            button->show();
        }
    }
}

void TimerBarMenuFile::loadCurrentDaypart()
{
    m_grid.leaveRemovalMode();
    const timerbar::DaypartCells *cells = currentCells();
    if (!cells)
        return;
    const QList<Bin> bins = m_grid.bins();
    for (const Bin bin : bins) {
        const int id = cellAt(*cells, bin);
        const ProductInfo *product = id == timerbar::emptyCell ? nullptr : getProductObject(id);
        m_grid.showContent(bin, product ? product->get_productShortName() : QString());
        m_grid.button(bin)->setToolTip(asPlainText(toolTipOf(product, m_menu.temperatureUnit)));
    }
}

void TimerBarMenuFile::assignProductToBin(int rowIndex, int binIndex)
{
    timerbar::DaypartCells *cells = currentCells();
    const Bin bin{rowIndex, binIndex};
    if (m_menu.products.empty() || !cells || !m_grid.button(bin))
        return;
    const int daypart = m_ui->comboDaypartSelect->currentIndex();
    const auto reference = timerbar::neighbourTemperatures(m_menu, daypart, bin);
    TimerBarDaypartAssignItem dialog(reference.upper, reference.lower, this);
    if (dialog.exec() != Accepted)
        return;
    cellAt(*cells, bin) = dialog.chosenId();
    loadCurrentDaypart();
}

void TimerBarMenuFile::dayPartPressHoldDetected()
{
    const timerbar::DaypartCells *cells = currentCells();
    m_grid.settleHold([cells](Bin bin) { return cells && cellAt(*cells, bin) < timerbar::emptyCell; });
}

#define DEFINE_SLOTS(button) DEFINE_BIN_BUTTON_SLOTS(TimerBarMenuFile, button)
FOR_EACH_TIMER_BAR_BIN_BUTTON(DEFINE_SLOTS)
#undef DEFINE_SLOTS

void TimerBarMenuFile::on_btnCancelDaypartRemove_clicked()
{
    loadCurrentDaypart();
}

void TimerBarMenuFile::on_btnDaypartRemove_clicked()
{
    if (timerbar::DaypartCells *cells = currentCells()) {
        const QList<Bin> bins = m_grid.checkedBins();
        for (const Bin bin : bins)
            cellAt(*cells, bin) = timerbar::emptyCell;
    }
    loadCurrentDaypart();
}

void TimerBarMenuFile::on_comboDaypartSelect_currentIndexChanged([[maybe_unused]] int index)
{
    loadCurrentDaypart();
}
