// SPDX-FileCopyrightText: 2026 The Varno Plexora developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/selectproductline.h"

#include "app/productlines.h"
#include "ui_selectproductline.h"
#include "widgets/enterkey.h"
#include "widgets/fixedsize.h"

SelectProductLine::SelectProductLine(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::SelectProductLine>())
{
    m_ui->setupUi(this);
    for (const ProductLine &line : productLines())
        m_ui->comboProductLineSelect->addItem(line.name, line.resultCode);
    letEnterPressFocusedButton(this);
    fixSizeOnScreen(this);
}

SelectProductLine::~SelectProductLine() = default;

void SelectProductLine::on_btnCancel_clicked()
{
    done(0);
}

void SelectProductLine::on_btnAccept_clicked()
{
    done(m_ui->comboProductLineSelect->currentData().toInt());
}
