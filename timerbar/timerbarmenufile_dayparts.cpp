// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timerbar/timerbarmenufile.h"

#include <algorithm>
#include <array>

#include <QSignalBlocker>

#include "model/names.h"
#include "model/temperature.h"
#include "model/times.h"
#include "timerbar/binbuttons.h"
#include "timerbar/binplan.h"
#include "timerbar/bins.h"
#include "timerbar/copybins.h"
#include "timerbar/timerbardaypartassignitem.h"
#include "ui_timerbarmenufile.h"
#include "widgets/binbutton.h"
#include "widgets/messages.h"
#include "widgets/plaintext.h"

using namespace Qt::StringLiterals;

namespace {

struct GridButton
{
    BinButton *Ui_TimerBarMenuFile::*button;
    Bin bin;
};

constexpr auto gridButtons = std::to_array<GridButton>({
#define GRID_BUTTON(button, row, column) {&Ui_TimerBarMenuFile::button, {row, column}},
    FOR_EACH_TIMER_BAR_BIN_BUTTON(GRID_BUTTON)
#undef GRID_BUTTON
});

constexpr bool hasOneButton(Bin bin)
{
    return std::count_if(gridButtons.begin(), gridButtons.end(),
                         [bin](const GridButton &each) { return each.bin == bin; }) == 1;
}

constexpr bool hasItsButtons(const timerbar::CabinetModel &model)
{
    for (int row = 0; row < model.shape.rows; ++row) {
        for (int column = 0; column < model.shape.columns(); ++column) {
            if (!hasOneButton({row, column}))
                return false;
        }
    }
    return true;
}

static_assert(std::all_of(timerbar::allModels.begin(), timerbar::allModels.end(), hasItsButtons),
              "A model has a bin without a button, or with two, in timerbar/binbuttons.h");

QString toolTipOf(const ProductInfo *product, int unit)
{
    if (!product)
        return {};
    return TimerBarMenuFile::tr("%1\nTemperature: %2 / %3")
        .arg(shownName(product->get_productName()), temperatureText(product->get_upperTemp(), unit),
             temperatureText(product->get_lowerTemp(), unit));
}

// What is painted in a bin below the name.
QString detailsOf(const ProductInfo *product, int unit)
{
    if (!product)
        return {};
    return shortTemperatures(product->get_upperTemp(), product->get_lowerTemp(), unit) + u"  "_s +
           timeText(product->get_holdTime(), u"HH:mm");
}

} // namespace

void TimerBarMenuFile::prepareGrid()
{
    styleWhenShown(m_ui->frameGrid, m_ui->tabDayparts, m_ui->tabWidget);
    keepRoomWhenHidden(m_ui->btnDaypartRemove);
    keepRoomWhenHidden(m_ui->btnCancelDaypartRemove);
    showRemovalMode(false);
    connect(m_ui->btnCopyDaypart, &QPushButton::clicked, this, &TimerBarMenuFile::copyBins);
    connect(m_ui->btnBinPlan, &QPushButton::clicked, this, &TimerBarMenuFile::saveBinPlan);
    connect(&m_grid, &BinGrid::holdDetected, this, &TimerBarMenuFile::dayPartPressHoldDetected);
    connect(&m_grid, &BinGrid::removalModeChanged, this,
            [this](bool removing) { showRemovalMode(removing); });
}

void TimerBarMenuFile::showRemovalMode(bool removing)
{
    const bool hadFocus = m_ui->btnDaypartRemove->hasFocus() || m_ui->btnCancelDaypartRemove->hasFocus();
    m_ui->btnDaypartRemove->setVisible(removing);
    m_ui->btnCancelDaypartRemove->setVisible(removing);
    m_ui->comboDaypartSelect->setDisabled(removing);
    m_ui->btnCopyDaypart->setDisabled(removing);
    m_ui->btnBinPlan->setDisabled(removing);
    BinGrid::showHint(m_ui->lblDaypartHint, removing);
    if (hadFocus)
        m_grid.setFocus();
}

timerbar::DaypartCells *TimerBarMenuFile::currentCells()
{
    const int index = m_ui->comboDaypartSelect->currentIndex();
    return index < 0 ? nullptr : &m_menu.dayparts[index];
}

void TimerBarMenuFile::copyBins()
{
    const int daypart = m_ui->comboDaypartSelect->currentIndex();
    if (daypart < 0)
        return;
    CopyBins dialog(daypart, this);
    if (dialog.exec() != Accepted)
        return;
    const int source = dialog.source();
    const QStringList names = timerbar::daypartNames();
    if (m_menu.hasFilledBins(daypart) &&
        !messages::confirm(this, tr("Copy Bins"),
                           tr("Replace the bins of %1 with those of %2?").arg(names[daypart], names[source])))
        return;
    m_menu.copyBins(source, daypart);
    loadCurrentDaypart();
    noteChange();
}

void TimerBarMenuFile::loadDayparts()
{
    const timerbar::CabinetShape shape = m_menu.shape();
    registerBins(shape);
    m_ui->frameRightPair->setVisible(shape.columnLayout == 2);
    m_ui->frameLeftPair->setFixedWidth(timerbar::pairWidth);
    m_ui->frameRightPair->setFixedWidth(shape.threeColumns ? timerbar::oneBinPairWidth : timerbar::pairWidth);
    if (!shape.isKnown())
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
    m_grid.clear();
    for (const auto &[member, bin] : gridButtons) {
        BinButton *button = (*m_ui).*member;
        button->setVisible(shape.hasBin(bin));
        if (shape.hasBin(bin))
            m_grid.add(button, bin);
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
        const int id = (*cells)[bin];
        const ProductInfo *product = id == timerbar::emptyCell ? nullptr : getProductObject(id);
        m_grid.showContent(bin, product ? product->get_productShortName() : QString());
        auto *button = qobject_cast<BinButton *>(m_grid.button(bin));
        button->setDetails(detailsOf(product, m_menu.temperatureUnit));
        button->setToolTip(asPlainText(toolTipOf(product, m_menu.temperatureUnit)));
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
    const int id = (*cells)[bin];
    const ProductInfo *product = id == timerbar::emptyCell ? nullptr : getProductObject(id);
    dialog.setPlace(m_ui->comboDaypartSelect->currentText(), bin,
                    product ? shownName(product->get_productName()) : QString());
    dialog.find(m_grid.typed());
    if (dialog.exec() != Accepted)
        return;
    (*cells)[bin] = dialog.chosenId();
    loadCurrentDaypart();
    noteChange();
}

void TimerBarMenuFile::dayPartPressHoldDetected()
{
    const timerbar::DaypartCells *cells = currentCells();
    m_grid.settleHold([cells](Bin bin) { return cells && (*cells)[bin] < timerbar::emptyCell; });
}

#define DEFINE_SLOTS(...) DEFINE_BIN_BUTTON_SLOTS(TimerBarMenuFile, __VA_ARGS__)
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
            (*cells)[bin] = timerbar::emptyCell;
    }
    loadCurrentDaypart();
    noteChange();
}

void TimerBarMenuFile::on_comboDaypartSelect_currentIndexChanged([[maybe_unused]] int index)
{
    loadCurrentDaypart();
}

void TimerBarMenuFile::saveBinPlan()
{
    writeBinPlan(timerbar::plannedCabinet(m_menu), tr("No bin is filled."));
}
