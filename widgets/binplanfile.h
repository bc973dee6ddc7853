// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include "model/binplan.h"

/// The plan as a PDF file: texts are texts, and every font that they need is embedded.
[[nodiscard]] QByteArray pdfOf(const binplan::Plan &plan);
