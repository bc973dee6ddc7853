// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include "holding/menujson.h"

/// Small menu documents put together as text, so that they can hold what no writer writes.
namespace document {

/// A whole document. The default cabinet is a KTR24: 2 rows of 2 zones with 2 bins each.
[[nodiscard]] inline QByteArray
of(const QByteArray &menu, const QByteArray &header = R"({"cabinetType":"QHX","cabinetModel":"KTR24"})")
{
    return "{\"header\":" + header + ",\"menu\":" + menu + '}';
}

/// A document with these elements in its three lists.
[[nodiscard]] inline QByteArray withLists(const QByteArray &products, const QByteArray &groups,
                                          const QByteArray &dayparts)
{
    return of(R"({"products":[)" + products + R"(],"productGroups":[)" + groups + R"(],"layout":[)" +
              dayparts + "]}");
}

/// Reads a document that must name a known cabinet; the message of the first fault.
[[nodiscard]] inline QString read(const QByteArray &json, holding::Menu &menu)
{
    return holding::readMenu(json, menu, [](holding::CabinetConfiguration &) { return false; });
}

} // namespace document
