// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include "timerbar/menu.h"

class QIODevice;

/// The binary file of a Timer Bar menu.
namespace timerbar {

/// Reads a menu into a fresh `menu`. Returns an empty text, or the message of the first error; `menu` then
/// holds the products that were read before it. Bytes behind the last record are passed over.
[[nodiscard]] QString readMenu(const QByteArray &bytes, Menu &menu);

/// Writes a menu record by record, the header last, to a device that is open for writing and empty. Returns
/// an empty text or the message of the record that could not be written; the device then holds a part of the
/// menu, without a header that fits.
///
/// Every record's write is believed only when the device took all of it: open files unbuffered.
[[nodiscard]] QString writeMenu(QIODevice &device, const Menu &menu);

} // namespace timerbar
