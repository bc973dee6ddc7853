// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QtEndian>

#include "fuzz/fuzzing.h"
#include "fuzz/holdingroundtrip.h"
#include "holding/qhximport.h"

using namespace fuzzing;

namespace {

constexpr qsizetype headerSize = 18;
constexpr qsizetype configurationSize = 26;
constexpr qsizetype entrySize = 134;
constexpr qsizetype daypartSize = 82;

qint64 offsetAt(const QByteArray &file, qsizetype place)
{
    return qFromLittleEndian<quint32>(file.constData() + place);
}

// The header last: where a record lies over it, the menu is read up to that record at least.
void sealAll(QByteArray &file)
{
    if (file.size() < headerSize)
        return;
    const int entries = static_cast<quint8>(file[4]);
    const qint64 firstEntry = offsetAt(file, 10);
    const qint64 firstDaypart = offsetAt(file, 14);
    sealRecord(file, offsetAt(file, 6), configurationSize);
    for (int i = 0; i < entries; ++i)
        sealRecord(file, firstEntry + i * entrySize, entrySize);
    for (int i = 0; i < 2; ++i)
        sealRecord(file, firstDaypart + i * daypartSize, daypartSize);
    sealRecord(file, 0, headerSize);
}

// Old menus have no switches. All are on here, so that nothing that was imported is lost in the document.
void switchAllOn(holding::CabinetConfiguration &configuration)
{
    configuration.fanSpeedEnabled = true;
    configuration.resetTimeEnabled = true;
    configuration.productIdEnabled = true;
    configuration.timerColorEnabled = true;
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    const std::size_t newSize = LLVMFuzzerMutate(data, size, maxSize);
    if (seed % 16 == 0) // broken checksums now and then
        return newSize;
    QByteArray file = viewOf(data, newSize);
    sealAll(file);
    return hand(file, data, maxSize);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    holding::Menu imported;
    if (!holding::importQhxMenu(viewOf(data, size), imported).isEmpty())
        return 0;
    holding::Menu menu;
    switchAllOn(menu.configuration);
    holding::addImportedMenu(std::move(imported), menu);
    demandRoundTrip(menu);
    return 0;
}
