// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include "tour/chapter.h"

/// Makes the pictures of the documents, each in a light and in a dark palette. Comes last, as it leaves the
/// program dark.
class GuideChapter final : public Chapter
{
    Q_OBJECT

public:
    using Chapter::Chapter;

private slots:
    void init();
    void productLine_data() { looks(); }
    void productLine();
    void holdingEntries_data() { looks(); }
    void holdingEntries();
    void holdingBins_data() { looks(); }
    void holdingBins();
    void finding_data() { looks(); }
    void finding();
    void thingsToLookAt_data() { looks(); }
    void thingsToLookAt();
    void binPlan_data();
    void binPlan();
    void timerBar_data() { looks(); }
    void timerBar();
    void lanes_data() { looks(); }
    void lanes();

private:
    static void looks();
    /// Only what is named here is pictured, not each dialog.
    void picture(const QString &name, const QWidget &of);
    void pictureEditor(const QString &name);
    /// Of a dialog that a button of the active editor opens, with what is filled in; then it is left.
    template <typename Dialog>
    void pictureDialog(const char *button, const QString &name,
                       const std::function<void(const Dialog &)> &fillIn = {},
                       const char *leave = "btnCancel");
    void openBreakfast(const QString &fileName, const QByteArray &bytes);
};
