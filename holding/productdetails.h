// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QList>
#include <QWidget>

#include "holding/cabinet.h"

class ProductInfo;
class QLabel;

namespace holding {
struct FieldDetail;
}
namespace Ui {
class ProductDetails;
}

/// Shows the values of one product or group, row by row. A group shows what it stores in the same rows.
class ProductDetails final : public QWidget
{
    Q_OBJECT

public:
    explicit ProductDetails(QWidget *parent = nullptr);
    ~ProductDetails() override;

    /// Shows an entry, or empties every value for null. The configuration decides the temperature unit and
    /// which rows there are.
    void showEntry(const ProductInfo *entry, const holding::CabinetConfiguration &configuration);
    /// What to do is painted beside the row names while no entry is shown.
    void setEmptyHint(const QString &hint) { m_emptyHint = hint; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Row
    {
        const holding::FieldDetail *detail;
        QLabel *label;
        QLabel *value;
    };

    [[nodiscard]] QLabel &label(QLatin1StringView prefix, const holding::FieldDetail &detail);
    void reserveRoom();
    void showTimerColor(const ProductInfo *entry);

    std::unique_ptr<Ui::ProductDetails> m_ui;
    QList<Row> m_rows;
    QString m_emptyHint;
    bool m_empty = true;
};
