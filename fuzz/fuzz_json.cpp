// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QJsonDocument>

#include "fuzz/fuzzing.h"
#include "fuzz/holdingroundtrip.h"
#include "fuzz/jsonchange.h"
#include "holding/menujson.h"

using namespace fuzzing;

namespace {

/// Some model with its switches on or off, as the input decides.
void configure(holding::CabinetConfiguration &configuration, qsizetype choice)
{
    const auto &model = holding::allModels[static_cast<std::size_t>(choice) % holding::allModels.size()];
    configuration.type = model.type;
    configuration.model = model.name;
    configuration.fanSpeedEnabled = choice & 1;
    configuration.resetTimeEnabled = choice & 2;
}

} // namespace

// Changes the bytes or the values behind them.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    const QJsonDocument document = QJsonDocument::fromJson(viewOf(data, size));
    if (seed % 4 == 0 || !document.isObject())
        return LLVMFuzzerMutate(data, size, maxSize);
    Random random(seed);
    const QJsonObject changed = withOneChange(document.object(), random);
    const QByteArray bytes = QJsonDocument(changed).toJson(QJsonDocument::Compact);
    return hand(bytes, data, maxSize);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray json = viewOf(data, size);
    bool asked = false;
    const auto cancel = [&asked](holding::CabinetConfiguration &) {
        asked = true;
        return false;
    };
    const auto accept = [&json](holding::CabinetConfiguration &configuration) {
        configure(configuration, json.size());
        return true;
    };
    holding::Menu menu;
    QString fault = holding::readMenu(json, menu, cancel);
    if (asked) {
        demand(!fault.isEmpty(), "a cancelled question ends the reading");
        fault = holding::readMenu(json, menu, accept);
    }
    if (fault.isEmpty())
        demandRoundTrip(menu);
    return 0;
}
