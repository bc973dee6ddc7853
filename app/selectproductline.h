// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

namespace Ui {
class SelectProductLine;
}

/// Asks for the product line of a new menu. The result is the chosen line's code, 0 when cancelled.
class SelectProductLine final : public QDialog
{
    Q_OBJECT

public:
    explicit SelectProductLine(QWidget *parent = nullptr);
    ~SelectProductLine() override;

public slots:
    void on_btnCancel_clicked();
    void on_btnAccept_clicked();

private:
    std::unique_ptr<Ui::SelectProductLine> m_ui;
};
