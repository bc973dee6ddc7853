// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>

#include <QByteArray>

#include "model/entries.h"

/// What the targets share. A Qt warning ends each of them, as it fails each test.
namespace fuzzing {

/// Ends the program where something does not hold; the runner then keeps the input.
void demand(bool holds, const char *message);

/// Looks at the input in place, so that a reader that goes beyond its end is caught.
[[nodiscard]] QByteArray viewOf(const std::uint8_t *data, std::size_t size);

/// The same records in the same order, in every field.
[[nodiscard]] bool sameEntries(const Entries &one, const Entries &other);

/// Puts the checksum of the other bytes of a record into its first two, so that the reader gets behind it.
/// Leaves a record alone that is not whole.
void sealRecord(QByteArray &file, qint64 offset, qsizetype size);

/// Makes `file` the mutated input and returns its size. A file that has become too large is cut.
std::size_t hand(const QByteArray &file, std::uint8_t *data, std::size_t maxSize);

} // namespace fuzzing

/// The mutations that the runner has of its own, for the targets' mutators. Returns the new size.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);
