// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

#include "widgets/messages.h"
#include "widgets/timeentry.h"

class ProductInfo;
class QLineEdit;
class TimerBarMenuFile;

namespace Ui {
class TimerBarProductEdit;
}

/// Edits one product of a Timer Bar menu. Only a Save that passes every check writes the record.
class TimerBarProductEdit final : public QDialog
{
    Q_OBJECT

public:
    /// `product` stays the caller's.
    TimerBarProductEdit(ProductInfo &product, TimerBarMenuFile *menuFile);
    ~TimerBarProductEdit() override;

public slots:
    void on_btnCancel_clicked();
    void on_btnSave_clicked();
    void on_txtShortName_textChanged(const QString &arg1);
    void on_txtProductName_textChanged(const QString &arg1);

private:
    void fillNames();
    void fillTemperatures();
    void revert(QLineEdit *edit, const QString &acceptedText, const QString &message);
    [[nodiscard]] messages::WrongEntry firstWrongEntry() const;
    [[nodiscard]] int holdSeconds() const; ///< whole minutes
    void storeNamesAndTemperatures();
    void noticeLowTemperatures();
    void storeTimes();

    std::unique_ptr<Ui::TimerBarProductEdit> m_ui;
    ProductInfo &m_product;
    int m_temperatureUnit;
    TimeEntry m_holdTime;
    TimeEntry m_alertTime;
    // What a field goes back to when a character cannot be taken.
    QString m_acceptedName;
    QString m_acceptedShortName;
};
