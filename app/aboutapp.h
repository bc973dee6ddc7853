// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

namespace Ui {
class AboutApp;
}

/// The about box.
class AboutApp final : public QDialog
{
    Q_OBJECT

public:
    explicit AboutApp(QWidget *parent = nullptr);
    ~AboutApp() override;

public slots:
    void on_btnAccept_clicked();

private:
    std::unique_ptr<Ui::AboutApp> m_ui;
};
