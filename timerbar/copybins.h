// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

namespace Ui {
class CopyBins;
}

/// Asks from which of the other day parts the bins of one are taken over.
class CopyBins final : public QDialog
{
    Q_OBJECT

public:
    /// For the day part that takes them over, 0 to 5.
    explicit CopyBins(int daypart, QWidget *parent = nullptr);
    ~CopyBins() override;

    /// The chosen day part, once the dialog was accepted.
    [[nodiscard]] int source() const;

private slots:
    void on_btnCancel_clicked();
    void on_btnCopy_clicked();

private:
    std::unique_ptr<Ui::CopyBins> m_ui;
};
