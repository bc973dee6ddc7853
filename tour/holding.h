// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tour/chapter.h"

class MenuFile;

/// The main job of a holding-cabinet menu: from New to a file that opens as it was saved, then the same
/// windows in Celsius.
class HoldingChapter final : public Chapter
{
    Q_OBJECT

public:
    using Chapter::Chapter;

private slots:
    void createMenu();
    void editProduct();
    void duplicateProduct();
    void buildGroup();
    void saveMenu();
    void findEverythingInTheFile();
    void closeAndReopen();
    void saveSecondCopy();
    void switchToCelsius();
    void lookAtDialogsInCelsius();
    void takeProductOutOfGroup();
    void deleteSelectedProducts();
    void saveInCelsiusAndClose();

private:
    [[nodiscard]] MenuFile *editor() const;
    void saveAs(const QString &path);
};
