// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <QBuffer>

#include "fuzz/fuzzing.h"
#include "model/names.h"
#include "timerbar/cbrfile.h"

using namespace fuzzing;

namespace {

QByteArray bytesOf(const timerbar::Menu &menu)
{
    QBuffer buffer;
    demand(buffer.open(QIODevice::WriteOnly), "the buffer opens");
    demand(timerbar::writeMenu(buffer, menu).isEmpty(), "a menu that was read is written");
    return buffer.data();
}

timerbar::Menu readAgain(const QByteArray &bytes)
{
    timerbar::Menu menu;
    demand(timerbar::readMenu(bytes, menu).isEmpty(), "what was written is read");
    return menu;
}

QString shortNameInCapitals(const ProductInfo &product)
{
    return product.get_productShortName().toUpper().left(4);
}

/// What the reader finds of it: it ends at the first character that has no byte in the file, and not with a
/// blank. "ß" becomes two letters; "ÿ" and "µ" have no capitals of one byte.
QString keptOf(QString shortName)
{
    const auto *lost = std::find_if(shortName.cbegin(), shortName.cend(),
                                    [](QChar character) { return character.unicode() > 0xFF; });
    shortName.truncate(lost - shortName.cbegin());
    while (shortName.endsWith(u' '))
        shortName.chop(1);
    return shortName;
}

/// Makes the short names what the file keeps of them. True when that is less than was written.
bool keepWhatTheFileKeeps(timerbar::Menu &menu)
{
    bool lost = false;
    for (const auto &product : menu.products) {
        const QString written = shortNameInCapitals(*product);
        product->set_productShortName(keptOf(written));
        lost = lost || product->get_productShortName() != written;
    }
    return lost;
}

void demandSame(const timerbar::Menu &one, const timerbar::Menu &other)
{
    demand(one.model == other.model, "the model comes back");
    demand(one.temperatureUnit == other.temperatureUnit, "the unit comes back");
    demand(sameEntries(one.products, other.products), "the products come back");
    demand(one.dayparts == other.dayparts, "the day parts come back");
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    const std::size_t newSize = LLVMFuzzerMutate(data, size, maxSize);
    if (seed % 16 == 0) // broken checksums now and then
        return newSize;
    QByteArray file = viewOf(data, newSize);
    sealRecord(file, 0, file.size());
    return hand(file, data, maxSize);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    timerbar::Menu menu;
    if (!timerbar::readMenu(viewOf(data, size), menu).isEmpty())
        return 0;
    const QByteArray written = bytesOf(menu);
    const timerbar::Menu again = readAgain(written);
    const bool lost = keepWhatTheFileKeeps(menu);
    demandSame(again, menu);
    // Where a short name ended early, the rest of it stands in the file until it is written again.
    const QByteArray rewritten = bytesOf(again);
    demand(lost || rewritten == written, "what was read is written as before");
    demandSame(readAgain(rewritten), again);
    demand(bytesOf(readAgain(rewritten)) == rewritten, "what was read twice is written as before");
    return 0;
}
