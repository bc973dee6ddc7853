// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QMetaType>
#include <QString>

#include "holding/bins.h"

Q_DECLARE_METATYPE(holding::CabinetShape)

/// Rows of bins written as text, a character a slot: '.' is empty, '?' an id of no entry, and the splits are
/// '1' for "1/1", '2' for "1/2", '3' for "1/3", 'T' for "2/3". A layout names the zone of each slot, such as
/// "aab" for two bins beside one; it is as long as the row.
namespace binrows {

/// Test columns "shape" and "layout": every model.
void addModels();
/// The same, and a shape with four bins a zone, which no model has.
void addShapes();

/// Calls `look` with every way to fill the slots of a row.
void forEachRow(const std::function<void(const QString &)> &look);

/// The slots of the slot's zone.
[[nodiscard]] QString zoneOf(const QString &fill, const QString &layout, int slot);
/// The slot and the empty ones that follow it in its zone.
[[nodiscard]] int freeRun(const QString &fill, const QString &layout, int slot);

[[nodiscard]] QString splitsOf(QChar fill);

/// The entries that rows are filled with. The one in slot n holds at up to 201 + n °F, at least 101 + n °F
/// and with 10 + 10 n RPM.
class Entries
{
public:
    Entries();
    /// Slots that are not written are empty.
    [[nodiscard]] holding::RowContent row(const QString &fill) const;

private:
    FixedList<std::vector<std::unique_ptr<ProductInfo>>, holding::maxSlots> m_entries;
};

} // namespace binrows
