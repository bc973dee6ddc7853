// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QList>
#include <QString>

#include "widgets/menueditor.h"

class QMdiSubWindow;

/// A line's class of editors.
struct EditorClass
{
    /// For a file, or for a new menu with an empty path. See MenuEditor for one that is not valid.
    std::unique_ptr<MenuEditor> (*create)(const QString &path, QWidget *parent);
    /// The widget if it is such an editor, else null.
    MenuEditor *(*cast)(QWidget *widget);
};

/// One line of cabinets, as the main window tells it from the others.
struct ProductLine
{
    int resultCode;                    ///< of the product-line chooser; never 0
    QString name;                      ///< as the chooser shows it; a product's name, not translated
    QLatin1StringView subWindowName;   ///< object name of the sub-windows that hold its editors
    QList<QLatin1StringView> suffixes; ///< of its files, in lower case
    QString (*openFilter)();           ///< its own entry in the open dialog; asked anew for each translation
    EditorClass editor;
};

/// The lines whose menus can be created and opened, in the order in which they are offered.
[[nodiscard]] const QList<ProductLine> &productLines();

/// By the chooser's result, or by a file's suffix in any case; null when no line matches.
[[nodiscard]] const ProductLine *productLineByResult(int resultCode);
[[nodiscard]] const ProductLine *productLineOfFile(const QString &path);

/// The filter of the open dialog: the files of all lines, then an entry for each line.
[[nodiscard]] QString openFilter();

/// Which line a sub-window is of, by its name; null for none.
[[nodiscard]] const ProductLine *productLineOf(const QMdiSubWindow &subWindow);

/// The editor in a sub-window: both the sub-window's name and the editor's class have to be those of a line.
/// Null for none.
[[nodiscard]] MenuEditor *menuEditorIn(const QMdiSubWindow &subWindow);
