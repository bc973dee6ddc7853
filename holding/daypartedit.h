// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>
#include <QStringList>

namespace Ui {
class DaypartEdit;
}

/// Edits the name of a day part.
class DaypartEdit final : public QDialog
{
    Q_OBJECT

public:
    explicit DaypartEdit(const QStringList &names, QWidget *parent = nullptr);
    ~DaypartEdit() override;

    /// One name a language; the new ones after an accepted run.
    [[nodiscard]] QStringList names() const { return m_names; }

public slots:
    void on_btnCancel_clicked();
    /// An empty name is refused and closes the dialog too.
    void on_btnSave_clicked();

private:
    std::unique_ptr<Ui::DaypartEdit> m_ui;
    QStringList m_names;
};
