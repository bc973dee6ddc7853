// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>
#include <QTranslator>
#include <QWidget>

/// A catalogue that changes every text there is, those of Qt too: it puts a mark before it.
class PseudoTranslator : public QTranslator
{
    Q_OBJECT

public:
    static constexpr QChar mark{u'\u00bb'};

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *sourceText, const char *disambiguation,
                                    int n) const override;
};

/// The texts of a window that no catalogue changed, each with its place. What is data does not count: cabinet
/// types and models, the product line's name, numbers, fractions, times, units and the given names.
[[nodiscard]] QStringList untranslatedTexts(QWidget &window, const QStringList &names);
/// Ends the test program when there are any, on any page of the window.
void checkTranslated(QWidget &window, const QStringList &names);
