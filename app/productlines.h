// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>

#include "widgets/menueditor.h"

class QMdiSubWindow;

/// What the main window knows of one line of cabinets. Texts are looked up each time that they are needed, as
/// the table outlives a translator.
struct ProductLine
{
    int resultCode;                   ///< of the product-line chooser; never 0
    QString name;                     ///< as the chooser shows it; a product's name, not translated
    QLatin1StringView subWindowName;  ///< object name of the sub-windows that hold its editors
    QList<QLatin1StringView> endings; ///< of its files, in lower case
    QString startName;                ///< proposed for a menu that was never saved
    QString (*saveCaption)();
    QString (*saveAsCaption)();
    QString (*fileFilter)();
    MenuEditor *(*create)(const QString &path, QWidget *parent);
    MenuEditor *(*cast)(QWidget *widget); ///< the line's editor, or null for anything else

    /// How to ask where to save; starts from the editor's current path if it has one.
    [[nodiscard]] SaveNameRequest saveRequest(const MenuEditor &editor) const;
    [[nodiscard]] SaveNameRequest saveAsRequest(const MenuEditor &editor) const;
};

/// The lines whose menus can be created and opened, in the order in which they are offered.
[[nodiscard]] const QList<ProductLine> &productLines();

/// By the chooser's result, or by a file's ending in any case; null when no line matches.
[[nodiscard]] const ProductLine *productLineByResult(int resultCode);
[[nodiscard]] const ProductLine *productLineOfFile(const QString &path);

/// An open menu: its editor and its line; both null for a sub-window that holds none.
struct OpenMenu
{
    const ProductLine *line = nullptr;
    MenuEditor *editor = nullptr;
};

[[nodiscard]] OpenMenu openMenuIn(const QMdiSubWindow &subWindow);
