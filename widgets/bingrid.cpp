// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/bingrid.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopedValueRollback>

#include "widgets/announce.h"
#include "widgets/longtext.h"

using namespace std::chrono_literals;

namespace {

constexpr auto holdTime = 800ms;

// Disabling a button does not end its press: Qt keeps the state, and the slightest move of a mouse that is
// let go later would count as a click. A release outside the button does end it.
void releaseOutside(QPushButton *button)
{
    const QPointF outside(-1, -1);
    QMouseEvent release(QEvent::MouseButtonRelease, outside, button->mapToGlobal(outside), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &release);
}

void endPress(QPushButton *button)
{
    const bool hadFocus = button->hasFocus();
    releaseOutside(button);
    button->setEnabled(false);
    button->setEnabled(true);
    if (hadFocus)
        button->setFocus();
}

} // namespace

BinGrid::BinGrid(QObject *parent)
    : QObject(parent)
{
    m_holdTimer.setSingleShot(true);
    m_holdTimer.setTimerType(Qt::PreciseTimer); // a coarse one may be early
    m_holdTimer.setInterval(holdTime);
    connect(&m_holdTimer, &QTimer::timeout, this, &BinGrid::holdDetected);
    connect(&m_keys, &GridKeys::typed, this, &BinGrid::assignByTyping);
}

void BinGrid::clear()
{
    leaveRemovalMode();
    release();
    m_keys.clear();
    m_places.clear();
}

void BinGrid::add(QPushButton *button, Bin bin)
{
    m_places.append({button, bin});
    m_keys.add(button, bin.row, bin.slot);
}

QPushButton *BinGrid::button(Bin bin) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [bin](const Place &place) { return place.bin == bin; });
    return found == m_places.end() ? nullptr : found->button;
}

QList<Bin> BinGrid::bins() const
{
    QList<Bin> bins;
    for (const Place &place : m_places)
        bins.append(place.bin);
    return bins;
}

void BinGrid::showContent(Bin bin, const QString &text, const QString &remark) const
{
    QPushButton *shown = button(bin);
    shown->setText(text);
    shown->setShortcut({}); // an ampersand is part of the name, no key opens a bin
    const QString content = text.isEmpty() ? tr("Empty") : beginningOf(text);
    const QString place = tr("Row %1, Bin %2: %3").arg(bin.row + 1).arg(bin.slot + 1).arg(content);
    const QString name = remark.isEmpty() ? place : tr("%1, %2").arg(place, remark);
    if (name != shown->accessibleName()) // else the whole grid would be told of at each change
        shown->setAccessibleName(name);
}

std::optional<Bin> BinGrid::binOf(const QPushButton *button) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [button](const Place &place) { return place.button == button; });
    return found == m_places.end() ? std::nullopt : std::optional(found->bin);
}

void BinGrid::setFocus() const
{
    if (QWidget *stop = m_keys.stop())
        stop->setFocus();
}

void BinGrid::setFocus(Bin bin) const
{
    QPushButton *shown = button(bin);
    while (shown && shown->isHidden() && bin.slot > 0)
        shown = button({bin.row, --bin.slot});
    if (shown)
        shown->setFocus();
}

void BinGrid::press(QPushButton *button)
{
    if (button->isCheckable())
        return;
    m_pressed = button;
    m_holdTimer.start();
}

void BinGrid::release()
{
    m_holdTimer.stop();
    m_pressed = nullptr;
}

std::optional<Bin> BinGrid::clickedBin(const QPushButton *button) const
{
    return button->isCheckable() ? std::nullopt : binOf(button);
}

// In removal mode a click means something else.
void BinGrid::assignByTyping(QWidget *widget, const QString &text)
{
    auto *button = qobject_cast<QPushButton *>(widget);
    if (!button || isRemoving())
        return;
    const QScopedValueRollback typed(m_typed, text);
    button->click();
}

void BinGrid::settleHold(const std::function<bool(Bin)> &isFilled)
{
    QPushButton *held = std::exchange(m_pressed, nullptr);
    if (!held)
        return;
    endPress(held);
    const std::optional<Bin> bin = binOf(held);
    if (bin && isFilled(*bin))
        enterRemovalMode(held, isFilled);
}

void BinGrid::enterRemovalMode(const QPushButton *held, const std::function<bool(Bin)> &isFilled)
{
    for (const Place &place : std::as_const(m_places)) {
        if (place.button->isHidden())
            continue;
        const bool filled = isFilled(place.bin);
        place.button->setEnabled(filled);
        place.button->setCheckable(filled);
        place.button->setChecked(filled && place.button == held);
    }
    emit removalModeChanged(true);
}

void BinGrid::leaveRemovalMode()
{
    if (!isRemoving())
        return;
    for (const Place &place : std::as_const(m_places)) {
        place.button->setChecked(false);
        place.button->setCheckable(false);
        place.button->setEnabled(true);
    }
    emit removalModeChanged(false);
}

bool BinGrid::isRemoving() const
{
    return std::any_of(m_places.begin(), m_places.end(),
                       [](const Place &place) { return place.button->isCheckable(); });
}

QList<Bin> BinGrid::checkedBins() const
{
    QList<Bin> bins;
    for (const Place &place : m_places) {
        if (place.button->isChecked() && !place.button->isHidden())
            bins.append(place.bin);
    }
    return bins;
}

void BinGrid::showHint(QLabel *label, bool removing)
{
    announce::news(label, removing ? tr("Choose the bins to clear, then press Remove.")
                                   : tr("Click a bin to assign it. Hold a filled bin to clear bins."));
    QFont font = label->font();
    font.setBold(removing);
    label->setFont(font);
}

void keepRoomWhenHidden(QWidget *widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}
