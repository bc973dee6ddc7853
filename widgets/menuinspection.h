// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>
#include <QStringList>

namespace Ui {
class MenuInspection;
}

/// Lists what somebody should look at in a menu and lets one of it be chosen, to go there. It changes
/// nothing.
class MenuInspection final : public QDialog
{
    Q_OBJECT

public:
    /// A row for each sentence. `unlisted` is how many more there are, which a last row tells.
    MenuInspection(const QStringList &sentences, qsizetype unlisted, QWidget *parent);
    ~MenuInspection() override;

    /// The selected sentence's row, -1 for none.
    [[nodiscard]] int chosenRow() const;

private slots:
    void on_listWidgetFindings_itemSelectionChanged();
    void on_listWidgetFindings_itemDoubleClicked();
    void on_btnClose_clicked();
    void on_btnGoTo_clicked();

private:
    void listSentences(const QStringList &sentences, qsizetype unlisted);

    std::unique_ptr<Ui::MenuInspection> m_ui;
};
